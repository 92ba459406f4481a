#include <ovoui/frame/ThemeData.h>

#include <testkit/ImportPatch.h>

#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using ovo::testkit::ImportPatch;

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

// With entry points of the test's own

namespace
{

/// What the entry points of an engine answer, and what they were asked.
struct Engine
{
    std::vector<std::string> names; ///< of entry points that were looked for
    std::vector<std::string> calls;
    BOOL isOn = TRUE;
    bool hasTheme = true;
    bool writesColour = true;
    const RECT* rect = nullptr; ///< that was drawn into
    HWND wnd = nullptr;         ///< whose theme was opened
};

Engine s_engine;

constexpr COLORREF kEngineColour = RGB(1, 2, 3);

const HTHEME kEngineTheme = reinterpret_cast<HTHEME>(0x1234);

void note(const std::string& name, const std::vector<int>& numbers)
{
    std::string call = name;
    for (const int number : numbers)
        call += " " + std::to_string(number);
    s_engine.calls.push_back(call);
}

HTHEME WINAPI openTheme(HWND wnd, LPCWSTR classes)
{
    const std::wstring asked = classes;
    s_engine.calls.push_back("open " + std::string(asked.begin(), asked.end()));
    s_engine.wnd = wnd;
    return s_engine.hasTheme ? kEngineTheme : nullptr;
}

HRESULT WINAPI closeTheme(HTHEME theme)
{
    s_engine.calls.push_back(theme == kEngineTheme ? "close" : "close another");
    return S_OK;
}

/// Fails, whether or not it has written a colour.
HRESULT WINAPI themeColour(HTHEME, int part, int state, int property, COLORREF* colour)
{
    note("colour", {part, state, property});
    if (s_engine.writesColour)
        *colour = kEngineColour;
    return E_FAIL;
}

HBRUSH WINAPI themeBrush(HTHEME, int id)
{
    note("brush", {id});
    return nullptr;
}

BOOL WINAPI themesOn()
{
    s_engine.calls.push_back("on");
    return s_engine.isOn;
}

HRESULT WINAPI drawTheme(HTHEME, HDC, int part, int state, LPCRECT rect, LPCRECT clip)
{
    note(clip ? "draw clipped" : "draw", {part, state});
    s_engine.rect = rect;
    return E_FAIL;
}

FARPROC WINAPI entryPointOf(HMODULE, LPCSTR name)
{
    const struct
    {
        const char* name;
        void* function;
    } points[] = {
        {"OpenThemeData", reinterpret_cast<void*>(&openTheme)},
        {"CloseThemeData", reinterpret_cast<void*>(&closeTheme)},
        {"GetThemeColor", reinterpret_cast<void*>(&themeColour)},
        {"GetThemeSysColorBrush", reinterpret_cast<void*>(&themeBrush)},
        {"IsAppThemed", reinterpret_cast<void*>(&themesOn)},
        {"DrawThemeBackground", reinterpret_cast<void*>(&drawTheme)},
    };
    s_engine.names.push_back(name);
    for (const auto& point : points)
        if (s_engine.names.back() == point.name)
            return reinterpret_cast<FARPROC>(point.function);
    return nullptr;
}

HMODULE anyLibrary(const wchar_t*)
{
    return ::LoadLibraryW(L"uxtheme.dll"); // the theme data lets go of it
}

CThemeData ofEngine()
{
    s_engine = {};
    const ImportPatch patch{L"ovoui.dll", "GetProcAddress", reinterpret_cast<void*>(&entryPointOf)};
    return CThemeData(&anyLibrary);
}

using Calls = std::vector<std::string>;

/// The calls since this was asked last.
Calls callsSince()
{
    return std::exchange(s_engine.calls, {});
}

} // namespace

TEST_F(ThemeDataAnyTheme, ItsEntryPointsAreFoundByNameOnceAndInOrder)
{
    const CThemeData themes = ofEngine();
    EXPECT_EQ(s_engine.names, (Calls{"OpenThemeData", "CloseThemeData", "GetThemeColor",
                                     "GetThemeSysColorBrush", "IsAppThemed", "DrawThemeBackground"}));
    themes.GroupboxText(m_wnd);
    EXPECT_EQ(s_engine.names.size(), 6u) << "not looked for anew";
}

TEST_F(ThemeDataAnyTheme, WhetherThemesAreOnIsAskedAtEveryCall)
{
    CThemeData themes = ofEngine();
    for (const BOOL answer : {FALSE, TRUE, BOOL{0x100}, BOOL{-1}, FALSE}) {
        s_engine.isOn = answer;
        EXPECT_EQ(themes.IsAppThemed(), answer != FALSE) << answer;
    }
    EXPECT_EQ(callsSince(), Calls(5, "on"));
}

TEST_F(ThemeDataAnyTheme, TheGroupTitleIsWhatTheEngineHasWrittenWhateverItAnswers)
{
    const CThemeData themes = ofEngine();
    EXPECT_EQ(themes.GroupboxText(m_wnd), kEngineColour);
    EXPECT_EQ(callsSince(), (Calls{"open Button", "colour 4 1 3803", "close"}));
    EXPECT_EQ(s_engine.wnd, m_wnd);
    s_engine.writesColour = false;
    EXPECT_EQ(themes.GroupboxText(m_wnd), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(callsSince(), (Calls{"open Button", "colour 4 1 3803", "close"}));
    s_engine.hasTheme = false;
    EXPECT_EQ(themes.GroupboxText(m_wnd), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(callsSince(), Calls{"open Button"}) << "nothing to close";
}

TEST_F(ThemeDataAnyTheme, AButtonIsDrawnInItsStateWithoutAClipRectangle)
{
    CThemeData themes = ofEngine();
    for (int state = 1; state <= 5; ++state) {
        EXPECT_TRUE(draw(themes, L"bUTTON", state)) << "whatever the engine answers";
        EXPECT_EQ(callsSince(), (Calls{"open bUTTON", "draw 1 " + std::to_string(state), "close"}));
        EXPECT_EQ(s_engine.rect, &kArea);
        EXPECT_EQ(s_engine.wnd, m_wnd);
    }
    EXPECT_TRUE(draw(themes, L"Tab"));
    EXPECT_EQ(callsSince(), (Calls{"open Tab", "close"}));
    s_engine.hasTheme = false;
    EXPECT_TRUE(draw(themes, L"Button"));
    EXPECT_EQ(callsSince(), Calls{"open Button"});
}

TEST_F(ThemeDataAnyTheme, TheSystemsColoursAreNotAskedOfTheEngine)
{
    CThemeData themes = ofEngine();
    EXPECT_EQ(themes.ButtonFace(m_wnd), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(themes.BackgroundBrush(m_wnd), ::GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(callsSince(), Calls{});
}
