// Which buttons carry a flyout: attaching, detaching, copying, inserting and deleting buttons.
#include "ToolBarScene.h"

#include <ovocor/IntCast.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace ovo::testkit;

namespace
{

using Commands = std::vector<int>;

/// A bar in a hidden frame, with buttons 1, 2, 3, 4 and no images.
class FlyoutAttach : public ::testing::Test
{
protected:
    FlyoutAttach()
        : frame(new BarFrame)
    {
        bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | CBRS_TOP);
        static constexpr UINT kButtons[] = {1, 2, 3, 4};
        bar.SetButtons(kButtons, 4);
    }
    ~FlyoutAttach() override
    {
        bar.DestroyWindow();
        frame->DestroyWindow();
    }

    void attachCommands(TestBar& to, int button, Commands commands)
    {
        const std::size_t count = commands.size();
        to.AttachBar(button, 16, commands, Commands(count, IDR_SHAPES), Commands(count, 2), {}, false, false);
    }

    Commands commandsOf(const CVantorToolBar& of, int button)
    {
        Commands commands{-7};
        EXPECT_EQ(of.GetBarCommands(button, commands), of.HasFlyout(button));
        return commands;
    }

    /// Which of the first six buttons have a flyout.
    std::string flyouts()
    {
        std::string marks;
        for (int i = 0; i < 6; ++i)
            marks += bar.HasFlyout(i) ? 'f' : '-';
        return marks;
    }

    static HIMAGELIST listOf(const TestBar& bar)
    {
        return reinterpret_cast<HIMAGELIST>(::SendMessageW(bar.m_hWnd, TB_GETIMAGELIST, 0, 0));
    }

    BarFrame* frame;
    TestBar bar;
};

} // namespace

TEST_F(FlyoutAttach, OnlyToButtonsThatTheBarHas)
{
    for (const int button : {-1, 4, 5, 0x7FFFFFFF}) {
        attachCommands(bar, button, {1});
        bar.AttachBar(button, IDR_SHAPES, 16, {0}, false);
        EXPECT_FALSE(bar.HasFlyout(button)) << button;
    }
    EXPECT_EQ(flyouts(), "------");
    attachCommands(bar, 3, {1});
    EXPECT_EQ(flyouts(), "---f--");
}

TEST(FlyoutAttachLimits, MoreButtonsThanAnIntCanCountRaiseTheRangeError)
{
    class CrowdedBar : public TestBar
    {
    public:
        bool crowded = false;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            constexpr LRESULT kMany = 0x80000000;
            return crowded && message == TB_BUTTONCOUNT ? kMany
                                                        : TestBar::WindowProc(message, wParam, lParam);
        }
    } bar;
    auto* const frame = new BarFrame;
    static constexpr UINT kButtons[] = {1, 2};
    ASSERT_TRUE(bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | CBRS_TOP));
    ASSERT_TRUE(bar.SetButtons(kButtons, 2));
    bar.crowded = true;
    EXPECT_THROW(bar.AttachBar(0, IDR_SHAPES, 16, {0}, false), IntCastError);
    bar.crowded = false;
    EXPECT_FALSE(bar.HasFlyout(0));
    bar.AttachBar(0, IDR_SHAPES, 16, {0}, false);
    EXPECT_TRUE(bar.HasFlyout(0));
    bar.DestroyWindow();
    frame->DestroyWindow();
}

TEST_F(FlyoutAttach, WithoutAWindowNothingHappens)
{
    TestBar unborn;
    attachCommands(unborn, 0, {1});
    unborn.AttachBar(0, IDR_SHAPES, 16, {0}, false);
    EXPECT_FALSE(unborn.HasFlyout(0));
    EXPECT_FALSE(unborn.DeleteButton(0));
}

TEST_F(FlyoutAttach, GetBarCommandsGivesTheListOrAnEmptyOneForAResource)
{
    attachCommands(bar, 1, {10, 20});
    bar.AttachBar(2, IDR_SHAPES, 16, {0, 1}, true);
    EXPECT_EQ(commandsOf(bar, 1), (Commands{10, 20}));
    EXPECT_EQ(commandsOf(bar, 2), Commands{});
    EXPECT_EQ(commandsOf(bar, 0), Commands{-7}) << "left alone";
    EXPECT_EQ(commandsOf(bar, 99), Commands{-7});
    EXPECT_EQ(commandsOf(bar, -1), Commands{-7});
}

TEST_F(FlyoutAttach, TheSecondFormTakesThePlaceOfTheFirstAndBack)
{
    bar.AttachBar(1, IDR_SHAPES, 16, {0, 1}, false);
    attachCommands(bar, 1, {10});
    EXPECT_EQ(commandsOf(bar, 1), Commands{10});
    bar.AttachBar(1, IDR_SHAPES, 16, {0, 1}, false);
    EXPECT_EQ(commandsOf(bar, 1), Commands{});
}

TEST_F(FlyoutAttach, DetachingTakesItAway)
{
    attachCommands(bar, 0, {1});
    attachCommands(bar, 2, {2});
    attachCommands(bar, 3, {3});
    bar.DetachBar(2);
    bar.DetachBar(9);
    bar.DetachBar(-1);
    EXPECT_EQ(flyouts(), "f--f--");
    bar.DetachAllBars();
    EXPECT_EQ(flyouts(), "------");
}

TEST_F(FlyoutAttach, CopyingBringsAnotherBarsFlyoutOrNone)
{
    TestBar other;
    other.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | CBRS_TOP);
    static constexpr UINT kButtons[] = {5, 6};
    other.SetButtons(kButtons, 2);
    attachCommands(other, 1, {50, 60});
    bar.CopyBar(0, &other, 1);
    EXPECT_EQ(commandsOf(bar, 0), (Commands{50, 60}));
    bar.CopyBar(2, &bar, 0);
    EXPECT_EQ(commandsOf(bar, 2), (Commands{50, 60}));
    bar.CopyBar(0, &other, 0); // that has none
    bar.CopyBar(2, nullptr, 1);
    bar.CopyBar(4, &other, 1);
    bar.CopyBar(-1, &other, 1);
    EXPECT_EQ(flyouts(), "--f---");
    bar.CopyBar(2, &bar, 2);
    EXPECT_EQ(commandsOf(bar, 2), (Commands{50, 60})) << "onto itself";
}

// Buttons that come and go

TEST_F(FlyoutAttach, AnInsertedButtonMovesTheFlyouts)
{
    attachCommands(bar, 1, {10});
    TBBUTTON button{};
    button.idCommand = 9;
    button.fsState = TBSTATE_ENABLED;
    EXPECT_TRUE(bar.InsertButton(0, &button));
    EXPECT_EQ(flyouts(), "--f---");
    EXPECT_EQ(bar.GetItemID(0), 9u);
    EXPECT_EQ(bar.SendMessage(TB_BUTTONCOUNT), 5);
    EXPECT_TRUE(bar.InsertButton(3, &button)) << "behind the last record";
    EXPECT_EQ(flyouts(), "--f---");
}

TEST_F(FlyoutAttach, ButtonsThatComeAndGoAreCounted)
{
    TBBUTTON button{};
    button.idCommand = 9;
    const int before = bar.GetCount();
    bar.InsertButton(0, &button);
    bar.InsertButton(2, &button);
    EXPECT_EQ(bar.GetCount(), before + 2);
    bar.InsertButton(0, nullptr);
    EXPECT_EQ(bar.GetCount(), before + 2) << "only the records move";
    bar.DeleteButton(0);
    bar.DeleteButton(77);
    EXPECT_EQ(bar.GetCount(), before + 1);
}

TEST_F(FlyoutAttach, WithoutAButtonOnlyTheRecordsMove)
{
    attachCommands(bar, 1, {10});
    EXPECT_EQ(bar.InsertButton(0, nullptr), 1);
    EXPECT_EQ(flyouts(), "--f---");
    EXPECT_EQ(bar.InsertButton(3, nullptr), 1);
    EXPECT_EQ(bar.InsertButton(-1, nullptr), 1);
    EXPECT_EQ(flyouts(), "--f---");
    EXPECT_EQ(bar.SendMessage(TB_BUTTONCOUNT), 4);
}

TEST_F(FlyoutAttach, ADeletedButtonTakesItsFlyoutAlong)
{
    attachCommands(bar, 0, {1});
    attachCommands(bar, 2, {2});
    EXPECT_TRUE(bar.DeleteButton(0));
    EXPECT_EQ(flyouts(), "-f----");
    EXPECT_EQ(bar.GetItemID(0), 2u);
    EXPECT_TRUE(bar.DeleteButton(2));
    EXPECT_EQ(flyouts(), "-f----");
    EXPECT_FALSE(bar.DeleteButton(7));
    EXPECT_TRUE(bar.DeleteButton(1));
    EXPECT_EQ(flyouts(), "------");
}

// Images

TEST_F(FlyoutAttach, ABarWithoutImagesGetsTheStripOnce)
{
    ASSERT_EQ(listOf(bar), nullptr);
    attachCommands(bar, 0, {1, 2, 3});
    ASSERT_NE(listOf(bar), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(bar)), 8);
    EXPECT_EQ(bar.AddBitmap(IDR_SHAPES, 16), 0);
    bar.AttachBar(1, IDR_SHAPES, 16, {0}, false);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(bar)), 8);
}

TEST_F(FlyoutAttach, AResourcesStripIsAddedToTheBarsImages)
{
    ASSERT_EQ(listOf(bar), nullptr);
    bar.AttachBar(1, IDR_SHAPES, 16, {0}, false);
    ASSERT_NE(listOf(bar), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(listOf(bar)), 8);
}

TEST_F(FlyoutAttach, ABarWithImagesGetsNoStripForCommands)
{
    bar.LoadBitmap(IDR_SHAPES);
    const HIMAGELIST list = listOf(bar);
    const int before = ::ImageList_GetImageCount(list);
    attachCommands(bar, 0, {1, 2, 3});
    EXPECT_EQ(listOf(bar), list);
    EXPECT_EQ(::ImageList_GetImageCount(list), before);
}

TEST_F(FlyoutAttach, AStripThatDoesNotExistIsNotAdded)
{
    EXPECT_EQ(bar.AddBitmap(4711, 16), -1);
    EXPECT_EQ(bar.AddBitmap(IDR_SHAPES, 0), -1);
    EXPECT_EQ(bar.AddBitmap(IDR_SHAPES, -16), -1);
    EXPECT_EQ(bar.AddBitmap(IDR_SHAPES, 1000), -1) << "narrower than one image";
    EXPECT_EQ(listOf(bar), nullptr);
    EXPECT_EQ(bar.AddBitmap(IDR_SHAPES, 16), 0) << "another time it may";
}

namespace
{

/// The image that the bar's first button gets when its flyout's second entry is chosen.
int imageOfSecondChoice(BarScene& scene)
{
    scene.user.press(scene.button(0))
        .waitFor("the flyout", &BarScene::flyoutShown)
        .moveTo(scene.entry(0))
        .moveTo(scene.entry(1))
        .release();
    return scene.image(0);
}

} // namespace

TEST(FlyoutImages, AreShiftedToWhereTheirStripWasNoted)
{
    BarScene scene;
    const auto attach = [&](bool shift) {
        scene.bar().AttachBar(0, 16, {ID_LINE, ID_ARC}, {77, IDR_SHAPES}, {1, 2}, {}, false, shift);
    };
    scene.bar().noteBitmap(IDR_SHAPES, 4);
    attach(false);
    EXPECT_EQ(imageOfSecondChoice(scene), 2);
    attach(true);
    EXPECT_EQ(imageOfSecondChoice(scene), 6);
    scene.bar().noteBitmap(IDR_SHAPES, 5);
    attach(true);
    EXPECT_EQ(imageOfSecondChoice(scene), 7);
}

TEST(FlyoutImages, AreShiftedWhenTheyAreAttachedAndNotLater)
{
    BarScene scene;
    scene.bar().noteBitmap(IDR_SHAPES, 4);
    scene.bar().AttachBar(0, 16, {ID_LINE, ID_ARC}, {IDR_SHAPES, IDR_SHAPES}, {1, 2}, {}, false, true);
    scene.bar().noteBitmap(IDR_SHAPES, 5);
    EXPECT_EQ(imageOfSecondChoice(scene), 6);
}

TEST(FlyoutImages, StayAsTheyWereWhereNoneIsNamed)
{
    BarScene scene;
    scene.bar().AttachBar(0, 16, {ID_LINE, ID_ARC}, {IDR_SHAPES}, {5, 6}, {}, false, false);
    const int before = scene.image(0);
    EXPECT_EQ(imageOfSecondChoice(scene), before);
    EXPECT_EQ(scene.command(0), ID_ARC);
}

// What hosts compile against

namespace
{

class Exposed : public CVantorToolBar
{
public:
    using Dragging = decltype(CVantorToolBar::ms_dragging);
    using DragButton = decltype(CVantorToolBar::ms_dragButton);
    using IdleTimerPending = decltype(CVantorToolBar::ms_idleTimerPending);
};

} // namespace

static_assert(std::is_base_of_v<CToolBar, CVantorToolBar> && std::is_base_of_v<CControlBar, CVantorToolBar>);
static_assert(
    std::is_same_v<CVantorToolBar::ControlCallback, LRESULT (*)(CVantorToolBar*, UINT, UINT, void*)>);
static_assert(std::is_same_v<decltype(CVantorToolBar::ms_apiRestartedTickCount), DWORD>);
static_assert(std::is_same_v<Exposed::Dragging, bool> && std::is_same_v<Exposed::DragButton, int> &&
              std::is_same_v<Exposed::IdleTimerPending, bool>);
static_assert(std::is_same_v<decltype(&CVantorToolBar::ActivateApp), void (*)(BOOL)>);
