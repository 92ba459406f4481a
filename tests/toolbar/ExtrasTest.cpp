// What hosts may ask for besides: marks, the hold delay, remembered choices.
#include "ToolBarScene.h"

#include <support/Perishing.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/TemporaryProfile.h>

#include <ovoui/toolbar/ToolBarCommands.h>

#include <ovouires/resource.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr char kShown[] = "the flyout";
constexpr wchar_t kSection[] = L"Choices";

CRect itemRect(const TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    return rect;
}

/// The lower right quarter of a button, inside its edges.
int darkInCorner(const TestBar& bar, int index)
{
    const Picture picture = Picture::ofClient(bar.m_hWnd);
    CRect corner = itemRect(bar, index);
    corner.left = corner.right - 6;
    corner.top = corner.bottom - 6;
    return picture.count(::GetSysColor(COLOR_BTNTEXT), 0, corner);
}

} // namespace

// Marks

TEST(FlyoutMarks, AreOffAtFirst)
{
    BarScene scene;
    EXPECT_EQ(darkInCorner(scene.bar(), BarScene::Lines), 0);
}

TEST(FlyoutMarks, AreInTheCornerOfButtonsWithAFlyoutAndNoOther)
{
    BarScene scene;
    scene.bar().ShowFlyoutMarks(true);
    EXPECT_EQ(darkInCorner(scene.bar(), BarScene::Plain), 0);
    EXPECT_GE(darkInCorner(scene.bar(), BarScene::Lines), 6);
    EXPECT_GE(darkInCorner(scene.bar(), BarScene::Shapes), 6);
    EXPECT_EQ(darkInCorner(scene.bar(), BarScene::Other), 0);
    scene.bar().ShowFlyoutMarks(false);
    EXPECT_EQ(darkInCorner(scene.bar(), BarScene::Lines), 0);
}

namespace
{

/// Pixels in the colour of text in the lower left and in the lower right quarter of a button, as they are
/// seen on the screen, inside the button's edges.
std::pair<int, int> darkOnScreen(const TestBar& bar, int index)
{
    RECT rect = itemRect(bar, index);
    ::MapWindowPoints(bar.m_hWnd, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    CRect button(rect);
    button.NormalizeRect();
    const CWnd& frame = *bar.GetTopLevelFrame();
    CRect whole;
    frame.GetWindowRect(&whole);
    button.OffsetRect(-whole.TopLeft());
    const CPoint middle = button.CenterPoint();
    button.DeflateRect(1, 1);
    ::InvalidateRect(bar.m_hWnd, nullptr, TRUE);
    const Picture picture = Picture::ofWindow(frame.m_hWnd);
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    return {picture.count(text, 0, CRect(button.left, middle.y, middle.x, button.bottom)),
            picture.count(text, 0, CRect(middle.x, middle.y, button.right, button.bottom))};
}

int trianglePixels(int size)
{
    return size * (size + 1) / 2;
}

} // namespace

TEST(FlyoutMarks, InABarFromRightToLeftAreInTheOtherCorner)
{
    BarScene scene;
    scene.bar().SendMessage(TB_SETIMAGELIST, 0, 0); // images could have the colour too
    const auto before = darkOnScreen(scene.bar(), BarScene::Lines);
    EXPECT_EQ(before, std::pair(0, 0));
    scene.bar().ShowFlyoutMarks(true);
    const auto [left, right] = darkOnScreen(scene.bar(), BarScene::Lines);
    EXPECT_EQ(left, 0);
    EXPECT_EQ(right, trianglePixels(3));
    scene.bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_EQ(darkOnScreen(scene.bar(), BarScene::Lines), std::pair(right, left));
    EXPECT_EQ(darkOnScreen(scene.bar(), BarScene::Plain), std::pair(0, 0));
}

TEST(FlyoutMarks, GrowWithTheButtonAtEveryImageSize)
{
    BarScene scene;
    scene.bar().SendMessage(TB_SETIMAGELIST, 0, 0);
    scene.bar().ShowFlyoutMarks(true);
    for (const DWORD layout : {DWORD{0}, DWORD{WS_EX_LAYOUTRTL}}) {
        scene.bar().ModifyStyleEx(WS_EX_LAYOUTRTL, layout);
        for (const int image : {16, 20, 24, 32, 48}) {
            scene.bar().SetSizes(CSize(image + 8, image + 7), CSize(image, image));
            scene.frame().RecalcLayout();
            const int size = itemRect(scene.bar(), BarScene::Lines).Height() / 6;
            const auto [left, right] = darkOnScreen(scene.bar(), BarScene::Lines);
            EXPECT_EQ(layout ? left : right, trianglePixels(size)) << image;
            EXPECT_EQ(layout ? right : left, 0) << image;
        }
    }
}

TEST(FlyoutMarks, OfADisabledButtonAreGrey)
{
    BarScene scene;
    scene.bar().ShowFlyoutMarks(true);
    scene.frame().disabled = {ID_LINE};
    scene.bar().OnUpdateCmdUI(nullptr, TRUE);
    EXPECT_EQ(darkInCorner(scene.bar(), BarScene::Lines), 0);
    const Picture picture = Picture::ofClient(scene.bar().m_hWnd);
    EXPECT_GE(picture.count(::GetSysColor(COLOR_GRAYTEXT), 0, itemRect(scene.bar(), BarScene::Lines)), 6);
}

TEST(FlyoutMarks, WithoutAWindowTheyMayBeAskedForToo)
{
    TestBar unborn;
    unborn.ShowFlyoutMarks(true);
    EXPECT_EQ(unborn.m_hWnd, nullptr);
}

// Hold delay

namespace
{

std::vector<UINT> held;

UINT_PTR WINAPI noteHold(HWND wnd, UINT_PTR id, UINT elapse, TIMERPROC procedure)
{
    if (id == 42)
        held.push_back(elapse);
    return ::SetTimer(wnd, id, elapse, procedure);
}

} // namespace

TEST(FlyoutHoldDelay, IsThatOfTheBarOrOfTheSystemsMenus)
{
    BarScene scene;
    held.clear();
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noteHold)};
    UINT menuDelay = 0;
    ::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &menuDelay, 0);
    const auto open = [&] {
        scene.bar().CreatePopup(BarScene::Lines, CRect(300, 300, 320, 320), 1);
        TestBar::ms_popupBar.reset();
    };
    open();
    scene.bar().SetHoldDelay(750);
    open();
    scene.bar().SetHoldDelay(CVantorToolBar::kMenuDelay);
    open();
    EXPECT_EQ(held, (std::vector<UINT>{200, 750, menuDelay}));
}

namespace
{

BOOL WINAPI noMenuDelay(UINT action, UINT number, void* data, UINT flags)
{
    return action != SPI_GETMENUSHOWDELAY && ::SystemParametersInfoW(action, number, data, flags);
}

} // namespace

TEST(FlyoutHoldDelay, IsTheUsualOneWhereTheSystemNamesNone)
{
    BarScene scene;
    held.clear();
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noteHold)};
    const ImportPatch settings{L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&noMenuDelay)};
    scene.bar().SetHoldDelay(CVantorToolBar::kMenuDelay);
    scene.bar().CreatePopup(BarScene::Lines, CRect(300, 300, 320, 320), 1);
    TestBar::ms_popupBar.reset();
    EXPECT_EQ(held, std::vector<UINT>{200});
}

// Remembered choices

TEST(FlyoutChoices, ComeBackInANewBar)
{
    const TemporaryProfile profile;
    {
        BarScene scene;
        scene.user.press(scene.button(BarScene::Lines))
            .waitFor(kShown, &BarScene::flyoutShown)
            .moveTo(scene.entry(1))
            .release();
        scene.user.press(scene.button(BarScene::Shapes))
            .waitFor(kShown, &BarScene::flyoutShown)
            .moveTo(scene.entry(1))
            .release();
        scene.bar().SaveChoices(kSection);
        EXPECT_EQ(AfxGetApp()->GetProfileInt(kSection, L"Button0", 4711), 4711u) << "it has no flyout";
    }
    BarScene scene;
    scene.bar().LoadChoices(kSection);
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
    EXPECT_EQ(scene.command(BarScene::Shapes), ID_DISC);
    EXPECT_EQ(scene.image(BarScene::Shapes), 1);
    EXPECT_EQ(scene.command(BarScene::Plain), ID_PLAIN);
    EXPECT_TRUE(scene.commands().empty()) << "nothing is issued";
}

TEST(FlyoutChoices, ThatAreGoneOrWereNeverSavedAreSkipped)
{
    const TemporaryProfile profile;
    BarScene scene;
    scene.bar().LoadChoices(kSection);
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
    AfxGetApp()->WriteProfileInt(kSection, L"Button1", 4711);
    AfxGetApp()->WriteProfileInt(kSection, L"Button0", ID_CURVE); // without a flyout
    scene.bar().LoadChoices(kSection);
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
    EXPECT_EQ(scene.command(BarScene::Plain), ID_PLAIN);
}

TEST(FlyoutChoices, ComeWithTheirImagesWhereTheResourceLacksEntries)
{
    const TemporaryProfile profile;
    BarScene scene;
    scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {99, 4, 0}, false);
    AfxGetApp()->WriteProfileInt(kSection, L"Button2", ID_RING);
    scene.bar().LoadChoices(kSection);
    EXPECT_EQ(scene.command(BarScene::Shapes), ID_RING);
    EXPECT_EQ(scene.image(BarScene::Shapes), 4);
}

// Strips by resolution

namespace
{

const std::vector<CVantorToolBar::Strip> kStrips{
    {IDB_TOOLBAR_16, 16}, {IDB_TOOLBAR_24, 24}, {IDB_TOOLBAR_32, 32}};

HIMAGELIST listOf(const CToolBar& bar)
{
    return reinterpret_cast<HIMAGELIST>(::SendMessageW(bar.m_hWnd, TB_GETIMAGELIST, 0, 0));
}

CSize imageSize(const CToolBar& bar)
{
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(listOf(bar), &width, &height);
    return CSize(width, height);
}

} // namespace

TEST(BarStrips, ImagesAndButtonsGrowWithTheResolution)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseStrips(kStrips, 16);
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    EXPECT_EQ(imageSize(scene.bar()), CSize(16, 16));
    EXPECT_EQ(::ImageList_GetImageCount(listOf(scene.bar())), 12);
    const CSize before = itemRect(scene.bar(), 0).Size();
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    EXPECT_EQ(imageSize(scene.bar()), CSize(24, 24));
    EXPECT_GT(itemRect(scene.bar(), 0).Width(), before.cx);
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    EXPECT_EQ(imageSize(scene.bar()), CSize(40, 40)) << "larger than any strip";
    const HIMAGELIST list = listOf(scene.bar());
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    EXPECT_EQ(listOf(scene.bar()), list) << "nothing new, nothing loaded";
}

TEST(BarStrips, FlyoutsThatShowTheBarsImagesChangeToo)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseStrips(kStrips, 16);
    scene.bar().AttachBar(BarScene::Lines, 16, {ID_LINE, ID_ARC}, {}, {0, 1}, {}, false, false);
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    scene.bar().CreatePopup(BarScene::Lines, CRect(300, 300, 320, 320), 0);
    ASSERT_NE(BarScene::flyout(), nullptr);
    EXPECT_EQ(listOf(*BarScene::flyout()), listOf(scene.bar()));
    TestBar::ms_popupBar.reset();
}

TEST(BarStrips, AChangeOfSettingsAsksTheMonitorAgain)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseStrips(kStrips, 16);
    const CSize size = imageSize(scene.bar());
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    scene.bar().SendMessage(WM_SETTINGCHANGE);
    EXPECT_EQ(imageSize(scene.bar()), size);
}

TEST(BarStrips, AChangeOfTheParentsResolutionAsksTheMonitorAgain)
{
    constexpr UINT kChangedAfterParent = 0x02E3; // what windows in others get on Windows 10
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseStrips(kStrips, 16);
    const CSize size = imageSize(scene.bar());
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    ASSERT_NE(imageSize(scene.bar()), size);
    scene.bar().SendMessage(kChangedAfterParent);
    EXPECT_EQ(imageSize(scene.bar()), size);
}

TEST(BarStrips, TheFrameMakesRoomForADockedBar)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.frame().EnableDocking(CBRS_ALIGN_ANY);
    scene.bar().EnableDocking(CBRS_ALIGN_ANY);
    scene.frame().DockControlBar(&scene.bar(), AFX_IDW_DOCKBAR_TOP);
    scene.frame().RecalcLayout();
    ASSERT_NE(scene.bar().GetParent(), &scene.frame());
    CRect before;
    scene.bar().GetWindowRect(&before);
    scene.bar().UseStrips(kStrips, 32);
    CRect after;
    scene.bar().GetWindowRect(&after);
    EXPECT_GT(after.Height(), before.Height());
}

TEST(BarStrips, TheFrameMakesRoomForABarOfItsOwnAlone)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    CRect before;
    scene.bar().GetWindowRect(&before);
    scene.bar().UseStrips(kStrips, 32);
    CRect after;
    scene.bar().GetWindowRect(&after);
    EXPECT_GT(after.Height(), before.Height());

    CWnd panel;
    panel.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 100, 300, 200), &scene.frame(),
                 77);
    TestBar inside;
    inside.CreateEx(&panel, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    GuiThread::settle();
    int layouts = 0;
    scene.bar().seeing = [&](UINT message, WPARAM) { layouts += message == WM_SIZEPARENT; };
    inside.UseStrips(kStrips, 24);
    EXPECT_EQ(layouts, 0);
}

TEST(BarStrips, WithoutAStripTheImagesStay)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    const HIMAGELIST before = listOf(scene.bar());
    scene.bar().UseStrips({}, 16);
    scene.bar().UseStrips({{4711, 16}}, 16);
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    EXPECT_EQ(listOf(scene.bar()), before);
}

TEST(BarStrips, CanBeDrawnForEachSize)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    std::vector<int> sizes;
    scene.bar().UseStrips(CImageStrips(
        [&sizes](int size) {
            sizes.push_back(size);
            return ::CreateBitmap(3 * size, size, 1, 32, nullptr);
        },
        16));
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(120, 120));
    EXPECT_EQ(imageSize(scene.bar()), CSize(20, 20));
    EXPECT_EQ(sizes.back(), 20);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(scene.bar())), 3);
}

TEST(BarStrips, ADrawingMayRaiseAndDestroyTheBar)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    int mischief = 0;
    TestBar* bar = &scene.bar();
    bar->UseStrips(CImageStrips(
        [&](int size) {
            if (mischief == 1)
                throw std::runtime_error("no");
            if (mischief == 2)
                bar->DestroyWindow();
            return ::CreateBitmap(3 * size, size, 1, 32, nullptr);
        },
        16));
    const HIMAGELIST before = listOf(*bar);
    mischief = 1;
    EXPECT_THROW(bar->SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240)), std::runtime_error);
    EXPECT_EQ(listOf(*bar), before);
    mischief = 2;
    bar->SendMessage(WM_DPICHANGED, MAKEWPARAM(288, 288));
    EXPECT_EQ(bar->m_hWnd, nullptr);
}

TEST(BarStrips, ADrawingMayDeleteTheBar)
{
    const GdiPlusSession gdiPlus;
    constexpr UINT kChangedAfterParent = 0x02E3;
    for (const UINT message :
         {UINT{WM_DPICHANGED}, kChangedAfterParent, UINT{WM_SETTINGCHANGE}, UINT{WM_SYSCOLORCHANGE}}) {
        SCOPED_TRACE(message);
        BarScene scene;
        std::unique_ptr<TestBar> bar = std::make_unique<Perishing<TestBar>>();
        bar->CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
        bool deletes = false;
        bar->UseStrips(CImageStrips(
            [&](int size) {
                if (deletes)
                    bar.reset();
                return ::CreateBitmap(3 * size, size, 1, 32, nullptr);
            },
            16));
        bar->SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
        deletes = true;
        const HWND window = bar->m_hWnd;
        ::SendMessageW(window, message, message == WM_DPICHANGED ? MAKEWPARAM(288, 288) : 0, 0);
        EXPECT_EQ(bar, nullptr);
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST(BarStrips, ADrawingThatDestroysTheBarMakesNoOtherWindowInvalid)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    RecordingParent other({200, 100}, L"Another window");
    other.SetWindowPos(&CWnd::wndTop, 850, 300, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    TestBar& bar = scene.bar();
    bool destroys = false;
    bar.UseStrips(CImageStrips(
        [&](int size) {
            if (destroys)
                bar.DestroyWindow();
            return ::CreateBitmap(3 * size, size, 1, 32, nullptr);
        },
        16));
    bar.SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    GuiThread::settle();
    other.UpdateWindow();
    destroys = true;
    bar.SendMessage(WM_SETTINGCHANGE);
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_FALSE(other.GetUpdateRect(nullptr));
}

TEST(BarTable, GivesButtonsAndChosenEntriesTheirImages)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    ASSERT_TRUE(
        setCommands(scene.bar(), {{ID_PLAIN, 3}, {ID_LINE, 5, {{ID_LINE, 5}, {ID_ARC, 9}}}}, kStrips, 16));
    scene.frame().RecalcLayout();
    GuiThread::settle();
    EXPECT_EQ(scene.image(0), 3);
    EXPECT_EQ(scene.image(1), 5);
    scene.user.press(scene.button(1))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0)) // off the bar first
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), std::vector<UINT>{ID_ARC});
    EXPECT_EQ(scene.image(1), 9);
}

// Disabled images

namespace
{

HIMAGELIST disabledListOf(const CToolBar& bar)
{
    return reinterpret_cast<HIMAGELIST>(::SendMessageW(bar.m_hWnd, TB_GETDISABLEDIMAGELIST, 0, 0));
}

} // namespace

TEST(BarDisabledImages, AreMadeFromTheStripsOnRequest)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseStrips(kStrips, 16);
    EXPECT_EQ(disabledListOf(scene.bar()), nullptr);
    scene.bar().UseDisabledImages(true);
    ASSERT_NE(disabledListOf(scene.bar()), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(disabledListOf(scene.bar())), 12);
    scene.bar().SendMessage(WM_DPICHANGED, MAKEWPARAM(240, 240));
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(disabledListOf(scene.bar()), &width, &height);
    EXPECT_EQ(CSize(width, height), CSize(40, 40));

    scene.bar().AttachBar(BarScene::Lines, 16, {ID_LINE, ID_ARC}, {}, {0, 1}, {}, false, false);
    scene.bar().CreatePopup(BarScene::Lines, CRect(300, 300, 320, 320), 0);
    ASSERT_NE(BarScene::flyout(), nullptr);
    EXPECT_EQ(disabledListOf(*BarScene::flyout()), disabledListOf(scene.bar()));
    TestBar::ms_popupBar.reset();

    scene.bar().UseDisabledImages(false);
    EXPECT_EQ(disabledListOf(scene.bar()), nullptr);
}

TEST(BarDisabledImages, AreNotForFlyoutsWithImagesOfTheirOwn)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseDisabledImages(true);
    scene.bar().UseStrips(kStrips, 16);
    ASSERT_NE(disabledListOf(scene.bar()), nullptr);
    scene.bar().CreatePopup(BarScene::Shapes, CRect(300, 300, 320, 320), 0);
    ASSERT_NE(BarScene::flyout(), nullptr);
    EXPECT_NE(listOf(*BarScene::flyout()), listOf(scene.bar()));
    EXPECT_EQ(disabledListOf(*BarScene::flyout()), nullptr);
    TestBar::ms_popupBar.reset();
}

TEST(BarDisabledImages, FollowTheSystemsColours)
{
    const GdiPlusSession gdiPlus;
    BarScene scene;
    scene.bar().UseDisabledImages(true);
    scene.bar().UseStrips(kStrips, 16);
    const HIMAGELIST before = disabledListOf(scene.bar());
    ASSERT_NE(before, nullptr);
    scene.bar().SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_NE(disabledListOf(scene.bar()), before);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(scene.bar())), 12);

    scene.bar().UseDisabledImages(false);
    scene.bar().SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(scene.bar())), 12) << "not those of the toolbar resource";
}
