#include <ovoui/frame/ThemeData.h>

#include <afxwin.h>
#include <gtest/gtest.h>

namespace
{

HMODULE noLibrary(const wchar_t*)
{
    return nullptr;
}

const wchar_t* s_asked = nullptr;

HMODULE recordingLoader(const wchar_t* name)
{
    s_asked = name;
    return nullptr;
}

/// A window to ask themes for, and a bitmap that shows whether anything was drawn.
class ThemeScene : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_wnd = ::CreateWindowExW(0, L"BUTTON", L"", WS_POPUP, 0, 0, 80, 30, nullptr, nullptr, nullptr, nullptr);
        ASSERT_NE(m_wnd, nullptr);
        m_dc = ::CreateCompatibleDC(nullptr);
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 80, -30, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_previous = ::SelectObject(m_dc, m_bitmap);
        const RECT all{0, 0, 80, 30};
        const HBRUSH magenta = ::CreateSolidBrush(kBackground);
        ::FillRect(m_dc, &all, magenta);
        ::DeleteObject(magenta);
    }
    void TearDown() override
    {
        ::SelectObject(m_dc, m_previous);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
        ::DestroyWindow(m_wnd);
    }

    /// Pixels that no longer have the background's colour.
    int drawnPixels() const
    {
        int drawn = 0;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 80; ++x)
                drawn += ::GetPixel(m_dc, x, y) != kBackground;
        return drawn;
    }

    bool draw(CThemeData& themes, const wchar_t* classList, int state = PBS_NORMAL)
    {
        return themes.drawBackground(m_dc, &kArea, m_wnd, classList, state);
    }

    static constexpr COLORREF kBackground = RGB(255, 0, 255);
    static constexpr RECT kArea{4, 4, 76, 26};
    static constexpr int PBS_NORMAL = 1;
    HWND m_wnd = nullptr;
    HDC m_dc = nullptr;

private:
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};

using ThemeDataAnyTheme = ThemeScene;

bool themesAreOn()
{
    return ::IsAppThemed() != FALSE;
}

} // namespace

TEST_F(ThemeDataAnyTheme, AgreesWithThePlatformOnWhetherThemesAreOn)
{
    EXPECT_EQ(CThemeData::getThemeData().IsAppThemed(), themesAreOn());
}

TEST_F(ThemeDataAnyTheme, TheSystemColoursDoNotDependOnTheTheme)
{
    CThemeData& themes = CThemeData::getThemeData();
    EXPECT_EQ(themes.ButtonFace(m_wnd), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(themes.ButtonFace(nullptr), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(themes.BackgroundBrush(m_wnd), ::GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(themes.BackgroundBrush(nullptr), ::GetSysColorBrush(COLOR_BTNFACE));
}

TEST_F(ThemeDataAnyTheme, TheGroupTitleHasTheThemesColourElseTheHighlightColour)
{
    COLORREF expected = ::GetSysColor(COLOR_HIGHLIGHT);
    if (const HTHEME theme = ::OpenThemeData(m_wnd, L"Button")) {
        ::GetThemeColor(theme, 4, 1, 3803, &expected);
        ::CloseThemeData(theme);
    }
    EXPECT_EQ(CThemeData::getThemeData().GroupboxText(m_wnd), expected);
}

TEST_F(ThemeDataAnyTheme, ButtonsAreDrawnExactlyWhenThemesAreOn)
{
    EXPECT_TRUE(draw(CThemeData::getThemeData(), L"Button"));
    EXPECT_EQ(drawnPixels() > 0, themesAreOn());
}

TEST_F(ThemeDataAnyTheme, TheClassNamesCaseDoesNotMatter)
{
    EXPECT_TRUE(draw(CThemeData::getThemeData(), L"BUTTON"));
    EXPECT_EQ(drawnPixels() > 0, themesAreOn());
}

TEST_F(ThemeDataAnyTheme, AnotherClassDrawsNothingAndStillAnswersTrue)
{
    EXPECT_TRUE(draw(CThemeData::getThemeData(), L"Tab"));
    EXPECT_EQ(drawnPixels(), 0);
}

TEST_F(ThemeDataAnyTheme, AClassWithoutAThemeDrawsNothingAndStillAnswersTrue)
{
    EXPECT_TRUE(draw(CThemeData::getThemeData(), L"NoSuchClassOfControls"));
    EXPECT_EQ(drawnPixels(), 0);
}

TEST_F(ThemeDataAnyTheme, ACheckBoxIsDrawnForAWindowWithAThemeWhichItKeeps)
{
    constexpr int kChecked = 5; // CBS_CHECKEDNORMAL
    CThemeData& themes = CThemeData::getThemeData();
    CWnd plain;
    plain.CreateEx(0, AfxRegisterWndClass(0), L"plain", WS_POPUP, 0, 0, 80, 30, nullptr, nullptr);
    EXPECT_FALSE(themes.drawCheckBox(m_dc, &kArea, plain, kChecked)) << "a window without a theme";
    EXPECT_EQ(drawnPixels(), 0);

    const HTHEME own = ::OpenThemeData(plain, L"Edit");
    EXPECT_EQ(own != nullptr, themesAreOn());
    EXPECT_EQ(themes.drawCheckBox(m_dc, &kArea, plain, kChecked), themesAreOn());
    EXPECT_EQ(drawnPixels() > 0, themesAreOn());
    EXPECT_EQ(::GetPixel(m_dc, 1, 1), kBackground);
    EXPECT_EQ(::GetWindowTheme(plain), own);
    if (own)
        ::CloseThemeData(own);
    plain.DestroyWindow();
}

TEST_F(ThemeDataAnyTheme, NothingIsDrawnOutsideTheRectangle)
{
    draw(CThemeData::getThemeData(), L"Button");
    EXPECT_EQ(::GetPixel(m_dc, 1, 1), kBackground);
    EXPECT_EQ(::GetPixel(m_dc, 78, 28), kBackground);
}

TEST_F(ThemeDataAnyTheme, AThemeOpenedIsClosedAgain)
{
    CThemeData& themes = CThemeData::getThemeData();
    for (int i = 0; i < 20000; ++i) {
        themes.GroupboxText(m_wnd);
        themes.drawBackground(m_dc, &kArea, m_wnd, L"Tab", 1);
    }
    EXPECT_TRUE(draw(themes, L"Button"));
    EXPECT_EQ(drawnPixels() > 0, themesAreOn()) << "theme handles ran out";
}

TEST_F(ThemeDataAnyTheme, WithoutUxThemeTheSystemColoursStand)
{
    CThemeData themes(&noLibrary);
    EXPECT_FALSE(themes.IsAppThemed());
    EXPECT_EQ(themes.GroupboxText(m_wnd), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(themes.ButtonFace(m_wnd), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(themes.BackgroundBrush(m_wnd), ::GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_FALSE(draw(themes, L"Button"));
    EXPECT_EQ(drawnPixels(), 0);
}

TEST_F(ThemeDataAnyTheme, AsksTheLoaderForUxTheme)
{
    s_asked = nullptr;
    const CThemeData themes(&recordingLoader);
    EXPECT_STREQ(s_asked, L"UxTheme.dll");
}

TEST_F(ThemeDataAnyTheme, ACopySharesTheModule)
{
    const HMODULE extra = ::LoadLibraryW(L"uxtheme.dll"); // the copy's release must not unload it under us
    CThemeData copy(&noLibrary);
    {
        CThemeData original;
        copy = original;
        ::LoadLibraryW(L"uxtheme.dll"); // balances the copy's own release
    }
    EXPECT_EQ(copy.IsAppThemed(), themesAreOn());
    EXPECT_TRUE(draw(copy, L"Button"));
    ::FreeLibrary(extra);
}

TEST_F(ThemeDataAnyTheme, OneInstanceServesTheProcess)
{
    EXPECT_EQ(&CThemeData::getThemeData(), &CThemeData::getThemeData());
}
