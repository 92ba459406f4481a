// Press, hold, slide, release: with the real mouse.
#include "ToolBarScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

using Ids = std::vector<UINT>;

constexpr char kShown[] = "the flyout";
constexpr WPARAM kHoldTimer = 42;

/// Press and release without a message in between: no timer can come.
void clickAtOnce(TestBar& bar, int index)
{
    CRect rect;
    bar.GetItemRect(index, &rect);
    const CPoint middle = rect.CenterPoint();
    const LPARAM where = MAKELPARAM(middle.x, middle.y);
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    bar.SendMessage(WM_LBUTTONUP, 0, where);
}

} // namespace

namespace
{

UINT_PTR WINAPI noTimer(HWND, UINT_PTR, UINT, TIMERPROC)
{
    return 0;
}

} // namespace

// Quick clicks

TEST(FlyoutPress, AQuickClickIsTheButtonsOwnCommandAndShowsNothing)
{
    BarScene scene;
    const MessageCounter timers(kFlyoutClass, WM_TIMER, kHoldTimer);
    clickAtOnce(scene.bar(), BarScene::Lines);
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), Ids{ID_LINE});
    EXPECT_EQ(timers.count(), 0);
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutPress, APlainButtonIsAsEver)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Plain))
        .then([&] {
            EXPECT_FALSE(TestBar::ms_dragging);
            EXPECT_EQ(BarScene::flyout(), nullptr);
        })
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_PLAIN});
}

TEST(FlyoutPress, TheFlyoutWaitsForTheHoldTimerAndThenShowsItself)
{
    BarScene scene;
    const MessageCounter timers(kFlyoutClass, WM_TIMER, kHoldTimer);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor("the hold timer", [&] { return timers.count() > 0; })
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] {
            EXPECT_TRUE(TestBar::ms_dragging);
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Lines);
            EXPECT_EQ(timers.count(), 1) << "it does not repeat";
        })
        .release();
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutPress, AtFirstTheFlyoutIsThereButHidden)
{
    BarScene scene;
    CRect rect;
    scene.bar().GetItemRect(BarScene::Lines, &rect);
    const CPoint middle = rect.CenterPoint();
    scene.bar().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
    ASSERT_NE(BarScene::flyout(), nullptr);
    EXPECT_FALSE(BarScene::flyoutShown());
    EXPECT_TRUE(TestBar::ms_dragging);
    scene.bar().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutPress, WithoutATimerTheFlyoutShowsAtOnce)
{
    BarScene scene;
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noTimer)};
    pressAtOnce(scene.bar(), BarScene::Lines);
    EXPECT_TRUE(BarScene::flyoutShown());
    releaseAtOnce(scene.bar(), scene.outside().find());
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutPress, HeldAndReleasedOnTheButtonItIsStillAClick)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines)).waitFor(kShown, &BarScene::flyoutShown).release();
    EXPECT_EQ(scene.commands(), Ids{ID_LINE});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

// Sliding

TEST(FlyoutSlide, OntoAnotherFlyoutButtonSwitchesAtOnce)
{
    BarScene scene;
    const MessageCounter timers(kFlyoutClass, WM_TIMER, kHoldTimer);
    scene.user.press(scene.button(BarScene::Lines))
        .moveTo(scene.button(BarScene::Shapes))
        .then([&] {
            EXPECT_TRUE(BarScene::flyoutShown());
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Shapes);
        })
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_DISC});
    EXPECT_EQ(scene.command(BarScene::Shapes), ID_DISC);
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutSlide, OntoAPlainButtonClosesAndBackOpensAtOnce)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.button(BarScene::Plain))
        .then([&] {
            EXPECT_EQ(BarScene::flyout(), nullptr);
            EXPECT_EQ(TestBar::ms_dragButton, -1);
            EXPECT_TRUE(TestBar::ms_dragging);
        })
        .moveTo(scene.button(BarScene::Lines))
        .then([&] { EXPECT_TRUE(BarScene::flyoutShown()); })
        .moveTo(scene.entry(0)) // down first: other buttons are beside the straight way
        .moveTo(scene.entry(3))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_ARC});
}

TEST(FlyoutSlide, ReleasedOnAPlainButtonNothingIsIssued)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.button(BarScene::Plain))
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutSlide, OverTheEntriesInEveryDirectionOneIsHot)
{
    BarScene scene;
    std::vector<int> seen;
    const auto note = [&] { seen.push_back(BarScene::hotEntry()); };
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .then(note)
        .moveTo(scene.entry(4))
        .then(note)
        .moveTo(scene.entry(1))
        .then(note)
        .moveTo(scene.outside())
        .then(note)
        .moveTo(scene.entry(3))
        .then(note)
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(seen, (std::vector{0, 4, 1, -1, 3}));
}

TEST(FlyoutSlide, AFlyoutThatIsNotShownYetCoversNoButton)
{
    BarScene scene;
    pressAtOnce(scene.bar(), BarScene::Lines);
    CRect bar;
    scene.bar().GetWindowRect(&bar);
    BarScene::flyout()->SetWindowPos(nullptr, bar.left, bar.top, bar.Width(), bar.Height(),
                                     SWP_NOZORDER | SWP_NOACTIVATE);
    CPoint shapes = scene.button(BarScene::Shapes).find();
    scene.bar().ScreenToClient(&shapes);
    scene.bar().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(shapes.x, shapes.y));
    EXPECT_EQ(TestBar::ms_dragButton, BarScene::Shapes);
    EXPECT_TRUE(BarScene::flyoutShown());
    releaseAtOnce(scene.bar(), scene.outside().find());
}

TEST(FlyoutSlide, FromAButtonWhoseFlyoutHasNoEntriesLeadsToTheOthers)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Lines, 16, {}, {}, {}, {}, false, false);
    scene.user.press(scene.button(BarScene::Lines))
        .then([] {
            EXPECT_TRUE(TestBar::ms_dragging);
            EXPECT_EQ(BarScene::flyout(), nullptr);
        })
        .moveTo(scene.button(BarScene::Shapes))
        .then([] { EXPECT_TRUE(BarScene::flyoutShown()); })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
}

TEST(FlyoutSlide, ASecondPressDuringTheFirstChangesNothing)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] {
            const CFlyoutToolbar* const before = BarScene::flyout();
            CRect rect;
            scene.bar().GetItemRect(BarScene::Shapes, &rect);
            scene.bar().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                                    MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y));
            EXPECT_EQ(BarScene::flyout(), before);
            EXPECT_EQ(TestBar::ms_dragButton, BarScene::Lines);
        })
        .moveTo(scene.outside())
        .release();
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutSlide, EntriesOfOneCommandAreHotOneByOne)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Lines, 16, {ID_LINE, ID_LINE, ID_ARC},
                          {IDR_SHAPES, IDR_SHAPES, IDR_SHAPES}, {4, 5, 6}, {}, false, false);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), 0); })
        .moveTo(scene.entry(1))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), 1); })
        .moveTo(scene.entry(2))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), 2); })
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_LINE});
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
}

// Another bar

TEST(FlyoutBars, OneFlyoutIsOpenAtATime)
{
    BarScene scene;
    TestBar& second = scene.addBar();
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.outside())
        .release();
    scene.user.press(scene.buttonOf(second, 0))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{ID_CURVE, second.m_hWnd}}));
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutBars, ASecondBarsButtonsAreNotReachedByASlide)
{
    BarScene scene;
    TestBar& second = scene.addBar();
    scene.user.press(scene.button(BarScene::Shapes))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.outside())
        .moveTo(scene.buttonOf(second, 0))
        .then([&] { EXPECT_EQ(TestBar::ms_dragButton, BarScene::Shapes); })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
}

// Interrupted

TEST(FlyoutInterrupted, DeactivationEndsItInEveryState)
{
    BarScene scene;
    const auto deactivate = [] {
        CVantorToolBar::ActivateApp(TRUE);
        EXPECT_TRUE(TestBar::ms_dragging) << "activation is nothing";
        CVantorToolBar::ActivateApp(FALSE);
        EXPECT_TRUE(BarScene::idle());
    };
    scene.user.press(scene.button(BarScene::Lines)).then(deactivate).moveTo(scene.outside()).release();
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then(deactivate)
        .moveTo(scene.outside())
        .release();
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .then(deactivate)
        .moveTo(scene.outside())
        .release();
    scene.user.press(scene.button(BarScene::Lines))
        .moveTo(scene.button(BarScene::Plain))
        .then(deactivate)
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    CVantorToolBar::ActivateApp(FALSE);
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutInterrupted, AFrameThatPassesTheDeactivationOnEndsIt)
{
    BarScene scene;
    scene.frame().passesActivation = true;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .then([&] {
            scene.frame().SendMessage(WM_ACTIVATEAPP, FALSE, 0);
            EXPECT_TRUE(BarScene::idle());
            scene.frame().SendMessage(WM_ACTIVATEAPP, TRUE, 0);
        })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutInterrupted, TheLostCaptureEndsIt)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] { scene.frame().SetCapture(); })
        .then([&] {
            EXPECT_TRUE(BarScene::idle());
            ::ReleaseCapture();
        })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
}

TEST(FlyoutInterrupted, ADisabledButtonOpensItsFlyoutToo)
{
    BarScene scene;
    scene.frame().disabled = {ID_LINE};
    GuiThread::settle();
    scene.bar().SendMessage(TB_ENABLEBUTTON, ID_LINE, FALSE);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
}

TEST(FlyoutInterrupted, AfterThePressOfADisabledButtonTheMouseIsFree)
{
    BarScene scene;
    scene.frame().disabled = {ID_LINE};
    GuiThread::settle();
    scene.bar().SendMessage(TB_ENABLEBUTTON, ID_LINE, FALSE);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] { EXPECT_EQ(::GetCapture(), scene.bar().m_hWnd); })
        .moveTo(scene.outside())
        .release();
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(FlyoutInterrupted, ABarThatTakesTheMouseOnceMoreGoesOn)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] {
            const auto bar = reinterpret_cast<LPARAM>(scene.bar().m_hWnd);
            scene.bar().SendMessage(WM_CAPTURECHANGED, 0, bar);
            EXPECT_TRUE(BarScene::flyoutShown());
            EXPECT_TRUE(TestBar::ms_dragging);
        })
        .moveTo(scene.outside())
        .release();
    EXPECT_TRUE(BarScene::idle());
}

// Double clicks

TEST(FlyoutDoubleClick, TellsTheMainWindowTheCommand)
{
    BarScene scene;
    RecordingParent mainWnd;
    mainWnd.log().record(WM_OVO_TOOLBAR_DBLCLK);
    CWnd* const before = std::exchange(AfxGetThread()->m_pMainWnd, &mainWnd);
    scene.user.doubleClick(scene.button(BarScene::Plain));
    AfxGetThread()->m_pMainWnd = before;
    ASSERT_EQ(mainWnd.log().size(), 1u);
    EXPECT_EQ(mainWnd.log().all()[0].message, 3586u);
    EXPECT_EQ(mainWnd.log().all()[0].code, static_cast<UINT>(ID_PLAIN));
    EXPECT_EQ(scene.commands(), (Ids{ID_PLAIN, ID_PLAIN})) << "the framework's handling follows";
}

TEST(FlyoutDoubleClick, IsPosted)
{
    BarScene scene;
    RecordingParent mainWnd;
    mainWnd.log().record(WM_OVO_TOOLBAR_DBLCLK);
    CWnd* const before = std::exchange(AfxGetThread()->m_pMainWnd, &mainWnd);
    CRect rect;
    scene.bar().GetItemRect(BarScene::Plain, &rect);
    const LPARAM middle = MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
    scene.bar().SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, middle);
    EXPECT_TRUE(mainWnd.log().empty());
    scene.bar().SendMessage(WM_LBUTTONUP, 0, middle);
    GuiThread::settle();
    EXPECT_EQ(mainWnd.log().size(), 1u);
    AfxGetThread()->m_pMainWnd = before;
}

TEST(FlyoutDoubleClick, OnADisabledButtonOrASeparatorTellsNothing)
{
    BarScene scene;
    scene.frame().disabled = {ID_PLAIN};
    scene.bar().SendMessage(TB_ENABLEBUTTON, ID_PLAIN, FALSE);
    RecordingParent mainWnd;
    mainWnd.log().record(WM_OVO_TOOLBAR_DBLCLK);
    CWnd* const before = std::exchange(AfxGetThread()->m_pMainWnd, &mainWnd);
    scene.user.doubleClick(scene.button(BarScene::Plain));
    scene.user.doubleClick(scene.button(BarScene::Gap));
    AfxGetThread()->m_pMainWnd = before;
    EXPECT_TRUE(mainWnd.log().empty());
}
