// What is chosen when the mouse button is released: with the real mouse, and in single messages.
#include "ToolBarScene.h"

#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

using Ids = std::vector<UINT>;

constexpr char kShown[] = "the flyout";

} // namespace

TEST(FlyoutChoice, AnEntryOfAListBecomesTheButtonAndIsIssued)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), 1); })
        .release();
    EXPECT_EQ(scene.frame().issued, (std::vector<Issued>{{ID_CURVE, scene.bar().m_hWnd}}));
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutChoice, AnEntryOfAResourceGivesItsIndexAsTheImage)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Shapes))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0)) // down first: other buttons are beside the straight way
        .moveTo(scene.entry(2))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_STAR});
    EXPECT_EQ(scene.command(BarScene::Shapes), ID_STAR);
    EXPECT_EQ(scene.image(BarScene::Shapes), 3) << "separators are counted";
}

TEST(FlyoutChoice, EntriesThatTheResourceLacksAreCountedAllTheSame)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Shapes, IDR_SHAPES, 16, {99, 4, 0}, false);
    scene.user.press(scene.button(BarScene::Shapes))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_RING});
    EXPECT_EQ(scene.image(BarScene::Shapes), 4);
}

TEST(FlyoutChoice, TheCommandIsPosted)
{
    BarScene scene;
    pressAtOnce(scene.bar(), BarScene::Lines);
    BarScene::flyout()->show();
    releaseAtOnce(scene.bar(), scene.entry(1).find());
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.commands(), Ids{}) << "the owner gets it when the release is over";
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
}

TEST(FlyoutChoice, TheBarsOwnerGetsTheCommandElseItsParent)
{
    class Serving : public RecordingParent
    {
    public:
        std::vector<Issued> issued;
        BOOL OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO*) override { return TRUE; }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND)
                issued.push_back({LOWORD(wParam), reinterpret_cast<HWND>(lParam)});
            return RecordingParent::WindowProc(message, wParam, lParam);
        }
    } owner;
    BarScene scene;
    const auto choose = [&] {
        pressAtOnce(scene.bar(), BarScene::Lines);
        BarScene::flyout()->show();
        releaseAtOnce(scene.bar(), scene.entry(1).find());
        GuiThread::settle();
    };
    scene.bar().SetOwner(&owner);
    choose();
    const std::vector<Issued> expected{{ID_CURVE, scene.bar().m_hWnd}};
    EXPECT_EQ(owner.issued, expected);
    EXPECT_EQ(scene.commands(), Ids{});
    scene.bar().SetOwner(nullptr);
    choose();
    EXPECT_EQ(owner.issued.size(), 1u);
    EXPECT_EQ(scene.frame().issued, expected);
    scene.bar().SetOwner(&scene.frame());
}

TEST(FlyoutChoice, AFlyoutThatIsNotShownYetOffersNothing)
{
    BarScene scene;
    pressAtOnce(scene.bar(), BarScene::Lines);
    const CPoint entry = scene.entry(1).find();
    releaseAtOnce(scene.bar(), entry);
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutChoice, TheFlyoutsBorderIsNoEntry)
{
    BarScene scene;
    pressAtOnce(scene.bar(), BarScene::Lines);
    BarScene::flyout()->show();
    const CRect rect = BarScene::flyoutRect();
    releaseAtOnce(scene.bar(), CPoint(rect.left, rect.CenterPoint().y));
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutChoice, TheNextClickIssuesWhatWasChosen)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0)) // down first: other buttons are beside the straight way
        .moveTo(scene.entry(3))
        .release();
    pressAtOnce(scene.bar(), BarScene::Lines);
    releaseAtOnce(scene.bar(), scene.button(BarScene::Lines).find());
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), (Ids{ID_ARC, ID_ARC}));
}

TEST(FlyoutChoice, ADisabledEntryBecomesTheButtonAndIssuesNothing)
{
    BarScene scene;
    scene.frame().disabled = {ID_CURVE};
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), 1); })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_CURVE);
    EXPECT_EQ(scene.image(BarScene::Lines), 5);
}

TEST(FlyoutChoice, ASeparatorChoosesNothing)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .moveTo(scene.entry(2))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), -1); })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutChoice, ASeparatorThatIsTheFirstEntryChoosesNothing)
{
    BarScene scene;
    scene.bar().AttachBar(BarScene::Lines, 16, {0, ID_CURVE}, {0, IDR_SHAPES}, {0, 5}, {}, false, false);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .then([&] { EXPECT_EQ(BarScene::hotEntry(), -1); })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
}

TEST(FlyoutChoice, OutsideNothingIsChosen)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .moveTo(scene.outside())
        .then([&] {
            EXPECT_EQ(BarScene::hotEntry(), -1);
            EXPECT_TRUE(BarScene::flyoutShown());
        })
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_LINE);
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutChoice, OnAnotherWindowNothingIsChosen)
{
    BarScene scene;
    RecordingParent other({200, 100}, L"Another window");
    other.SetWindowPos(&CWnd::wndTop, 850, 300, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(Spot{other})
        .release();
    EXPECT_EQ(scene.commands(), Ids{});
    EXPECT_TRUE(BarScene::idle());
}

TEST(FlyoutChoice, OnlyTheEndOfTheRowStaysOfWhatTheButtonWas)
{
    BarScene scene;
    scene.bar().SetButtonStyle(BarScene::Lines, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_WRAPPED);
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .moveTo(scene.entry(1))
        .release();
    EXPECT_EQ(scene.bar().GetButtonStyle(BarScene::Lines), static_cast<UINT>(TBBS_BUTTON | TBBS_WRAPPED));
}

TEST(FlyoutChoice, WhereTheFlyoutCoversTheBarTheButtonBelowDoesNotFire)
{
    BarScene scene;
    scene.user.press(scene.button(BarScene::Lines))
        .waitFor(kShown, &BarScene::flyoutShown)
        .then([&] {
            CRect bar;
            scene.bar().GetWindowRect(&bar);
            BarScene::flyout()->SetWindowPos(nullptr, bar.left, bar.top, 0, 0,
                                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        })
        .moveTo(scene.entry(1))
        .then([&] {
            EXPECT_TRUE(BarScene::flyoutShown()) << "what it covers is not under the pointer";
            EXPECT_EQ(BarScene::hotEntry(), 1);
        })
        .release();
    EXPECT_EQ(scene.commands(), Ids{ID_CURVE});
    for (const int index : {BarScene::Plain, BarScene::Lines, BarScene::Shapes})
        EXPECT_FALSE(scene.bar().GetButtonStyle(index) & TBBS_DISABLED) << index;
}

namespace
{

/// Chooses the second entry with the flyout moved over the bar, so that the pointer is over a button too;
/// gives whether that button was enabled when the bar let go of the mouse, and afterwards.
std::pair<bool, bool> enabledDuringAndAfter(BarScene& scene, bool throwing = false)
{
    pressAtOnce(scene.bar(), BarScene::Lines);
    CRect bar;
    scene.bar().GetWindowRect(&bar);
    BarScene::flyout()->SetWindowPos(nullptr, bar.left, bar.top, 0, 0,
                                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    BarScene::flyout()->show();
    const CPoint target = scene.entry(1).find();
    CPoint inBar = target;
    scene.bar().ScreenToClient(&inBar);
    const int under = scene.bar().GetToolBarCtrl().HitTest(&inBar);
    EXPECT_GE(under, 0);
    const auto isEnabled = [&] { return !(scene.bar().GetButtonStyle(under) & TBBS_DISABLED); };
    bool during = true;
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code != static_cast<UINT>(NM_RELEASEDCAPTURE))
            return 0;
        during = isEnabled();
        if (throwing)
            throw std::runtime_error("misdeed");
        return 0;
    };
    try {
        releaseAtOnce(scene.bar(), target);
    } catch (const std::runtime_error&) {
    }
    scene.frame().onNotify = nullptr;
    return {during, isEnabled()};
}

} // namespace

TEST(FlyoutChoice, TheButtonUnderThePointerIsDisabledForTheReleaseAlone)
{
    BarScene scene;
    EXPECT_EQ(enabledDuringAndAfter(scene), std::pair(false, true));
}

TEST(FlyoutChoice, ItIsEnabledAgainWhenTheOwnerRaisesAnException)
{
    BarScene scene;
    EXPECT_EQ(enabledDuringAndAfter(scene, true), std::pair(false, true));
    ::ReleaseCapture();
    TestBar::ms_popupBar.reset();
}

TEST(FlyoutChoice, ADisabledButtonUnderThePointerStaysDisabled)
{
    BarScene scene;
    for (const int id : {ID_PLAIN, ID_LINE, ID_CURVE, ID_BOX, ID_OTHER})
        scene.frame().disabled.insert(static_cast<UINT>(id));
    for (int i = 0; i < 5; ++i)
        if (i != BarScene::Gap && i != BarScene::Lines)
            scene.bar().SetButtonStyle(i, TBBS_BUTTON | TBBS_DISABLED);
    pressAtOnce(scene.bar(), BarScene::Lines);
    CRect plain;
    scene.bar().GetItemRect(BarScene::Plain, &plain);
    scene.bar().ClientToScreen(&plain);
    BarScene::flyout()->SetWindowPos(nullptr, plain.left - 2, plain.top, 0, 0,
                                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    BarScene::flyout()->show();
    const CPoint first = scene.entry(0).find();
    ASSERT_TRUE(plain.PtInRect(first));
    releaseAtOnce(scene.bar(), first);
    EXPECT_TRUE(scene.bar().GetButtonStyle(BarScene::Plain) & TBBS_DISABLED);
}
