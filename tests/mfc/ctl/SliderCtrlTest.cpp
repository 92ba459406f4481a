// Sliders.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

namespace
{

struct SliderCtrlTest : ::testing::Test
{
    SliderCtrlTest()
    {
        slider.Create(WS_CHILD | WS_VISIBLE | TBS_AUTOTICKS | TBS_ENABLESELRANGE, CRect(10, 10, 210, 50),
                      &parent, 7);
        parent.log().record(WM_HSCROLL);
    }

    RecordingParent parent;
    CSliderCtrl slider;
};

} // namespace

TEST_F(SliderCtrlTest, TheRangeIsNotLimitedToSixteenBits)
{
    int minimum = 0;
    int maximum = 0;

    slider.SetRange(-1000000, 2000000);
    slider.GetRange(minimum, maximum);
    EXPECT_EQ(minimum, -1000000);
    EXPECT_EQ(maximum, 2000000);
    slider.SetPos(1234567);
    EXPECT_EQ(slider.GetPos(), 1234567);
}

TEST_F(SliderCtrlTest, TheRangeKeepsThePositionInside)
{
    slider.SetRange(0, 100);
    slider.SetPos(150);
    EXPECT_EQ(slider.GetPos(), 100);
    slider.SetRange(0, 40);
    EXPECT_EQ(slider.GetPos(), 40);
    slider.SetRange(60, 90);
    EXPECT_EQ(slider.GetPos(), 60);
    slider.SetRangeMin(70);
    slider.SetRangeMax(80);
    EXPECT_EQ(slider.GetRangeMin(), 70);
    EXPECT_EQ(slider.GetRangeMax(), 80);
    EXPECT_EQ(slider.GetPos(), 70);
}

TEST_F(SliderCtrlTest, CodeSendsNoScrollMessages)
{
    slider.SetRange(0, 100);
    slider.SetPos(30);

    EXPECT_EQ(parent.log().size(), 0u);
}

TEST_F(SliderCtrlTest, KeysMoveByLineAndPage)
{
    slider.SetRange(0, 1000);
    EXPECT_EQ(slider.SetLineSize(3), 1);
    slider.SetPageSize(50);
    EXPECT_EQ(slider.GetLineSize(), 3);
    EXPECT_EQ(slider.SetPageSize(70), 50);
    EXPECT_EQ(slider.GetPageSize(), 70);
    present(parent);
    slider.SetFocus();

    Robot().key(VK_RIGHT).key(VK_NEXT);

    EXPECT_EQ(slider.GetPos(), 73);
    EXPECT_GE(parent.log().size(), 2u);
}

TEST_F(SliderCtrlTest, TheThumbIsDragged)
{
    slider.SetRange(0, 100);
    present(parent);
    CRect thumb;
    CRect channel;
    slider.GetThumbRect(&thumb);
    slider.GetChannelRect(&channel);
    EXPECT_LT(channel.left, thumb.right);

    Robot().press(Spot(slider, thumb.CenterPoint())).moveBy(90, 0).release();

    EXPECT_GT(slider.GetPos(), 30);
    EXPECT_LT(slider.GetPos(), 70);
    CRect moved;
    slider.GetThumbRect(&moved);
    EXPECT_NEAR(moved.left - thumb.left, 90, 3);
}

TEST_F(SliderCtrlTest, TicsAreCountedAndPlaced)
{
    slider.SetRange(0, 100);
    slider.SetTicFreq(25);

    EXPECT_EQ(slider.GetNumTics(), 5u);
    EXPECT_EQ(slider.GetTic(0), 25);
    EXPECT_EQ(slider.GetTicArray()[2], 75u);
    EXPECT_LT(slider.GetTicPos(0), slider.GetTicPos(1));
    slider.ClearTics();
    EXPECT_EQ(slider.GetNumTics(), 2u) << "the ends stay";
    EXPECT_TRUE(slider.SetTic(10));
    EXPECT_EQ(slider.GetTic(0), 10);
}

TEST_F(SliderCtrlTest, APartCanBeSelected)
{
    int minimum = 0;
    int maximum = 0;
    slider.SetRange(0, 100000);

    slider.SetSelection(20000, 70000);
    slider.GetSelection(minimum, maximum);
    EXPECT_EQ(minimum, 20000);
    EXPECT_EQ(maximum, 70000);
    slider.ClearSel();
    slider.GetSelection(minimum, maximum);
    EXPECT_EQ(minimum, maximum);
}

TEST_F(SliderCtrlTest, BuddiesStandBesideIt)
{
    CStatic left;
    CStatic right;
    left.Create(L"0", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 1);
    right.Create(L"9", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 2);

    EXPECT_EQ(slider.SetBuddy(&left, TRUE), nullptr);
    EXPECT_EQ(slider.SetBuddy(&right, FALSE), nullptr);
    EXPECT_EQ(slider.GetBuddy(TRUE), &left);
    EXPECT_EQ(slider.GetBuddy(FALSE), &right);
    EXPECT_EQ(slider.SetBuddy(nullptr, TRUE), &left);
}

TEST_F(SliderCtrlTest, TheThumbMayHaveALengthOfItsOwn)
{
    CSliderCtrl other;
    other.CreateEx(0, WS_CHILD | TBS_FIXEDLENGTH, CRect(0, 0, 100, 40), &parent, 8);

    other.SetThumbLength(17);

    EXPECT_EQ(other.GetThumbLength(), 17);
}
