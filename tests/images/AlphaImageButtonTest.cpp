// A push button with an image, with visual styles and without.
#include "AddedImage.h"
#include "resource.h"

#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <ovoui/frame/ThemeData.h>
#include <ovoui/images/AlphaImageButton.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <vssym32.h>

using namespace ovo::testkit;

namespace
{

bool themed()
{
    return CThemeData::getThemeData().IsAppThemed();
}

/// The library finds no theme engine while this object lives.
class WithoutThemes
{
public:
    WithoutThemes()
        : m_before(CThemeData::getThemeData())
    {
        ::LoadLibraryW(L"uxtheme.dll"); // which the copy will let go of
        CThemeData::getThemeData() = CThemeData([](const wchar_t*) -> HMODULE { return nullptr; });
    }
    ~WithoutThemes() { CThemeData::getThemeData() = m_before; }
    WithoutThemes(const WithoutThemes&) = delete;
    WithoutThemes& operator=(const WithoutThemes&) = delete;

private:
    const CThemeData m_before;
};

/// Opens what a host cannot see.
class Button : public CAlphaImageButton
{
public:
    using CAlphaImageButton::OnEraseBkgnd;
};

class AlphaImageButton : public ::testing::Test
{
protected:
    AlphaImageButton()
    {
        button.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON | BS_BITMAP,
                      CRect(20, 20, 140, 60), &parent, 3);
        other.Create(L"x", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(150, 20, 190, 60), &parent, 4);
        button.setSize(16);
    }

    Picture shown() { return Picture::ofClient(button.m_hWnd); }

    /// How much of the button is green, as the images of "add" and "refresh" are.
    int count(bool (*is)(COLORREF))
    {
        const Picture picture = shown();
        int found = 0;
        for (int y = 10; y < 30; ++y)
            for (int x = 4; x < 116; ++x)
                found += is(picture.at(x, y)) ? 1 : 0;
        return found;
    }
    static bool green(COLORREF colour)
    {
        return GetGValue(colour) > GetRValue(colour) + 40 && GetGValue(colour) > GetBValue(colour) + 40;
    }

    UINT strip() const { return themed() ? IDB_BUTTONS_16 : IDB_BUTTONS_16_CLASSIC; }

    GdiPlusSession gdiPlus;
    RecordingParent parent{CSize(200, 100)};
    Button button;
    CButton other;
};

} // namespace

TEST_F(AlphaImageButton, ShowsTheFirstImageOfTheStripInItsMiddle)
{
    button.loadImage(strip());
    present(parent);
    if (themed()) {
        EXPECT_GT(count(&green), 30);
        const Picture picture = shown();
        int left = 120;
        int right = 0;
        for (int x = 0; x < 120; ++x)
            if (green(picture.at(x, 20))) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        EXPECT_NEAR(left + right, 119, 2) << "in the middle";
        EXPECT_LT(right - left, 16) << "one image, not the strip";
    } else {
        EXPECT_GT(count(&green), 0);
    }
}

TEST_F(AlphaImageButton, EveryStateLooksLikeAButtonWithTheImage)
{
    button.loadImage(strip());
    present(parent);
    const Picture normal = shown();
    Robot user;

    button.EnableWindow(FALSE);
    const Picture disabled = shown();
    EXPECT_GT(disabled.differences(normal), 0) << "disabled";
    button.EnableWindow(TRUE);

    button.SetFocus();
    const Picture focused = shown();
    EXPECT_GT(focused.differences(normal), 0) << "focused";

    if (themed()) {
        other.SetFocus();
        button.SendMessage(WM_MOUSEHOVER, 0, MAKELPARAM(20, 20));
        const Picture hot = shown();
        EXPECT_GT(hot.differences(normal), 0) << "hot";
        EXPECT_GT(count(&green), 30) << "hot, with its image";
        button.SendMessage(WM_MOUSELEAVE);
        button.SetFocus();
    }

    int pressed = 0;
    user.press(button).then([&] { pressed = shown().differences(focused); }).release();
    EXPECT_GT(pressed, 0) << "pressed";
    EXPECT_EQ(parent.log().count(BN_CLICKED), 1);

    other.SetFocus();
    button.SetButtonStyle(BS_DEFPUSHBUTTON | BS_BITMAP);
    EXPECT_GT(shown().differences(normal), 0) << "default";
    if (themed()) {
        EXPECT_GT(count(&green), 30) << "still with its image";
    }
}

TEST_F(AlphaImageButton, AnotherImageTakesThePlaceOfTheFirst)
{
    button.loadImage(strip());
    present(parent);
    const Picture first = shown();
    button.loadImage(themed() ? IDB_TOOLBAR_16 : IDB_TOOLBAR_16_CLASSIC);
    EXPECT_GT(shown().differences(first), 20);
}

TEST_F(AlphaImageButton, AMissingResourceShowsNoImage)
{
    present(parent);
    button.loadImage(60001);
    EXPECT_EQ(count(&green), 0);
    button.loadImage(strip());
    EXPECT_GT(count(&green), 0);
}

TEST_F(AlphaImageButton, LoadingWithoutAWindowMakesNoOtherWindowInvalid)
{
    present(parent);
    GuiThread::settleOnScreen();
    parent.UpdateWindow();
    ASSERT_FALSE(parent.GetUpdateRect(nullptr));
    CAlphaImageButton later;
    later.setSize(16);
    later.loadImage(strip());
    EXPECT_FALSE(parent.GetUpdateRect(nullptr));
}

TEST_F(AlphaImageButton, ADisabledImageIsMadeFromTheNormalOneOnRequest)
{
    button.useDisabledImage(true);
    button.loadImage(strip());
    present(parent);
    EXPECT_GT(count(&green), themed() ? 30 : 0);
    button.EnableWindow(FALSE);
    BUTTON_IMAGELIST list{};
    if (!themed()) {
        EXPECT_FALSE(button.SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)) && list.himl)
            << "the classic image is the system's";
        return;
    }
    EXPECT_EQ(count(&green), 0) << "grey";
    ASSERT_TRUE(button.SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)));
    EXPECT_EQ(::ImageList_GetImageCount(list.himl), 6) << "one for each state";
    const Picture disabled = shown();
    button.loadImage(60001);
    EXPECT_GT(shown().differences(disabled), 20) << "it was seen";
}

TEST_F(AlphaImageButton, OnlyTheDisabledStateHasTheGreyImage)
{
    if (!themed())
        return; // the classic image is the system's
    button.useDisabledImage(true);
    button.loadImage(strip());
    BUTTON_IMAGELIST list{};
    ASSERT_TRUE(button.SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)));
    ASSERT_EQ(::ImageList_GetImageCount(list.himl), 6);
    for (int state = PBS_NORMAL; state <= 6; ++state) {
        const Picture picture(16, 16);
        ::ImageList_Draw(list.himl, state - PBS_NORMAL, picture.dc(), 0, 0, ILD_NORMAL);
        int found = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                found += green(picture.at(x, y)) ? 1 : 0;
        EXPECT_EQ(found > 10, state != PBS_DISABLED) << state;
    }
}

namespace
{

/// How many objects the platform's button loses each time it is given a bitmap: one under Wine.
int lostByThePlatform(CWnd& parent)
{
    CButton plain;
    plain.Create(L"", WS_CHILD | BS_PUSHBUTTON | BS_BITMAP, CRect(0, 0, 20, 20), &parent, 5);
    HBITMAP bitmaps[2]{};
    for (HBITMAP& bitmap : bitmaps)
        bitmap = ::CreateBitmap(16, 16, 1, 1, nullptr);
    plain.SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmaps[0]));
    const GdiCounter gdi;
    plain.SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmaps[1]));
    const int lost = gdi.grown();
    plain.DestroyWindow();
    for (const HBITMAP bitmap : bitmaps)
        ::DeleteObject(bitmap);
    return lost;
}

} // namespace

TEST_F(AlphaImageButton, LoadingOftenLeavesNothingBehind)
{
    present(parent);
    button.loadImage(strip());
    shown();
    constexpr int kOften = 50;
    const int lost = themed() ? 0 : lostByThePlatform(parent);
    const GdiCounter gdi;
    for (int i = 0; i < kOften; ++i)
        button.loadImage(strip());
    EXPECT_EQ(gdi.grown(), kOften * lost);
}

TEST_F(AlphaImageButton, TheImageListIsTheButtonsInAndOutOfThemes)
{
    button.loadImage(strip());
    BUTTON_IMAGELIST list{};
    const bool has = button.SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)) && list.himl;
    EXPECT_EQ(has, themed());
    if (!themed()) {
        EXPECT_NE(button.SendMessage(BM_GETIMAGE, IMAGE_BITMAP), 0);
        return;
    }
    EXPECT_EQ(list.uAlign, UINT{BUTTON_IMAGELIST_ALIGN_CENTER});
    EXPECT_EQ(list.margin.left + list.margin.top + list.margin.right + list.margin.bottom, 0);
    int cx = 0;
    int cy = 0;
    ::ImageList_GetIconSize(list.himl, &cx, &cy);
    EXPECT_EQ(cx, 16);
    EXPECT_EQ(cy, 16);
    EXPECT_EQ(::ImageList_GetImageCount(list.himl), 1);
}

namespace
{

CSize g_createdSize;

HIMAGELIST WINAPI createList(int cx, int cy, UINT flags, int initial, int grow)
{
    g_createdSize = CSize(cx, cy);
    return ::ImageList_Create(cx, cy, flags, initial, grow);
}

} // namespace

TEST_F(AlphaImageButton, WithoutASizeTheListIsForNothing)
{
    if (!themed())
        return; // no list is made
    g_createdSize = CSize(-1, -1);
    const ImportPatch patch(L"ovomfc.dll", "ImageList_Create", reinterpret_cast<void*>(&createList));
    button.setSize(0);
    button.loadImage(strip());
    EXPECT_EQ(g_createdSize, CSize(0, 0));
}

TEST_F(AlphaImageButton, TheFirstImageOfAStripWithoutAlphaTakesTheColourOfTextsForItsBlack)
{
    if (!themed())
        return; // TheBlackOfAClassicBitmapIsTheColourOfTexts
    const AddedImages added;
    const int element = COLOR_BTNTEXT;
    const COLORREF before = ::GetSysColor(element);
    const COLORREF text = RGB(10, 20, 200);
    ::SetSysColors(1, &element, &text);
    button.setSize(8);
    button.loadImage(TESTSTRIP_24);
    ::SetSysColors(1, &element, &before);
    ASSERT_EQ(added.all().size(), 1u);
    const AddedImage& image = added.last();
    EXPECT_TRUE(image.masked) << "in the normal list";
    EXPECT_EQ(image.width, 8);
    EXPECT_EQ(image.height, 8);
    EXPECT_EQ(image.at(3, 0), 0xFF000000u | text) << "black before";
    EXPECT_EQ(image.at(0, 0), 0xFFFF0000u) << "all else is as it was";
    EXPECT_EQ(image.at(7, 3) >> 24, 0u) << "light grey before";
}

// The classic way is forced, whatever the theme of the test is.

TEST_F(AlphaImageButton, AClassicBitmapTakesTheSystemsColours)
{
    {
        const WithoutThemes plain;
        button.loadImage(IDB_TOOLBAR_16_CLASSIC);
    }
    const auto bitmap = reinterpret_cast<HBITMAP>(button.SendMessage(BM_GETIMAGE, IMAGE_BITMAP));
    ASSERT_NE(bitmap, nullptr);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    EXPECT_EQ(::GetPixel(dc, 0, 0), ::GetSysColor(COLOR_BTNFACE)) << "light grey before";
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
}

TEST_F(AlphaImageButton, TheBlackOfAClassicBitmapIsTheColourOfTexts)
{
    const int element = COLOR_BTNTEXT;
    const COLORREF before = ::GetSysColor(element);
    const COLORREF text = RGB(10, 20, 200);
    ::SetSysColors(1, &element, &text);
    {
        const WithoutThemes plain;
        button.loadImage(TESTSTRIP_4);
    }
    ::SetSysColors(1, &element, &before);
    const auto bitmap = reinterpret_cast<HBITMAP>(button.SendMessage(BM_GETIMAGE, IMAGE_BITMAP));
    ASSERT_NE(bitmap, nullptr);
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    EXPECT_EQ(::GetPixel(dc, 3, 0), text) << "black before";
    EXPECT_EQ(::GetPixel(dc, 7, 3), ::GetSysColor(COLOR_BTNFACE)) << "light grey before";
    EXPECT_EQ(::GetPixel(dc, 0, 0), RGB(255, 0, 0)) << "all else is as it was";
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
}

TEST_F(AlphaImageButton, AChangeOfTheThemeDoesNotBreakIt)
{
    present(parent);
    button.loadImage(strip());
    {
        const WithoutThemes plain;
        button.loadImage(IDB_BUTTONS_16_CLASSIC);
        button.SendMessage(WM_THEMECHANGED);
        shown();
    }
    button.loadImage(strip());
    button.SendMessage(WM_THEMECHANGED);
    EXPECT_GT(count(&green), 0);
}

// Erasing

TEST_F(AlphaImageButton, ErasingDrawsAnAreaAsLargeAsTheViewport)
{
    Picture picture(40, 40, RGB(255, 0, 255));
    CDC dc;
    dc.Attach(picture.dc());
    const int result = button.OnEraseBkgnd(&dc);
    dc.Detach();
    EXPECT_EQ(result, TRUE) << "the theme engine is there";
    // A single pixel in the usual mapping mode, and none without a theme.
    const int untouched = picture.count(RGB(255, 0, 255));
    EXPECT_GE(untouched, 40 * 40 - 1);
    if (!themed()) {
        EXPECT_EQ(untouched, 40 * 40);
    }
}

TEST_F(AlphaImageButton, ErasingALargerViewportReachesFurther)
{
    if (!themed())
        return; // nothing is drawn
    Picture picture(40, 40, RGB(255, 0, 255));
    CDC dc;
    dc.Attach(picture.dc());
    ::SetMapMode(picture.dc(), MM_ANISOTROPIC);
    ::SetWindowExtEx(picture.dc(), 30, 30, nullptr);
    ::SetViewportExtEx(picture.dc(), 30, 30, nullptr);
    button.OnEraseBkgnd(&dc);
    dc.Detach();
    EXPECT_LT(picture.count(RGB(255, 0, 255)), 40 * 40 - 400);
}

TEST_F(AlphaImageButton, WithoutAThemeEngineTheUsualErasingRuns)
{
    const WithoutThemes plain;
    Picture picture(40, 40);
    CDC dc;
    dc.Attach(picture.dc());
    EXPECT_EQ(button.OnEraseBkgnd(&dc), FALSE);
    dc.Detach();
}

TEST(AlphaImageButtonClass, IsAButtonAtRunTime)
{
    CAlphaImageButton button;
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_STREQ(button.GetRuntimeClass()->m_lpszClassName, "CAlphaImageButton");
}
