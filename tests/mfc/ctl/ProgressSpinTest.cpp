// Progress bars and spin buttons.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

TEST(ProgressCtrl, CountsUpAndWraps)
{
    RecordingParent parent;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 20), &parent, 7));
    int lower = 0;
    int upper = 0;

    bar.SetRange32(-100000, 100000);
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, -100000);
    EXPECT_EQ(upper, 100000);
    bar.SetRange(0, 10);
    bar.SetPos(4);
    EXPECT_EQ(bar.GetPos(), 4);
    EXPECT_EQ(bar.SetPos(5), 4);
    EXPECT_EQ(bar.OffsetPos(2), 5);
    EXPECT_EQ(bar.GetPos(), 7);
    bar.SetStep(3);
    EXPECT_EQ(bar.GetStep(), 3);
    EXPECT_EQ(bar.StepIt(), 7);
    EXPECT_EQ(bar.GetPos(), 10);
}

TEST(ProgressCtrl, ColoursAreGivenBack)
{
    RecordingParent parent;
    CProgressCtrl bar;
    bar.CreateEx(0, WS_CHILD, CRect(0, 0, 200, 20), &parent, 7);

    bar.SetBarColor(RGB(1, 2, 3));
    EXPECT_EQ(bar.SetBarColor(RGB(4, 5, 6)), RGB(1, 2, 3));
    EXPECT_EQ(bar.GetBarColor(), RGB(4, 5, 6));
    bar.SetBkColor(RGB(7, 8, 9));
    EXPECT_EQ(bar.GetBkColor(), RGB(7, 8, 9));
}

TEST(SpinButtonCtrl, CountsInItsRangeAndItsBuddy)
{
    RecordingParent parent;
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 20), &parent, 6);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, CRect(60, 0, 80, 20), &parent, 7));
    CString text;
    int lower = 0;
    int upper = 0;

    EXPECT_EQ(spin.SetBuddy(&edit), nullptr);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    spin.SetRange(-5, 50);
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 50);
    EXPECT_EQ(spin.GetRange(), static_cast<DWORD>(MAKELONG(50, -5)));
    spin.SetPos(20);
    edit.GetWindowText(text);
    EXPECT_STREQ(text, L"20");
    EXPECT_EQ(spin.SetPos(-3), 20);
    EXPECT_EQ(static_cast<short>(LOWORD(spin.GetPos())), -3);
    edit.SetWindowText(L"33");
    EXPECT_EQ(LOWORD(spin.GetPos()), 33) << "the buddy's text counts";
}

TEST(SpinButtonCtrl, CountsFurtherThanSixteenBits)
{
    RecordingParent parent;
    CSpinButtonCtrl spin;
    spin.CreateEx(0, WS_CHILD, CRect(60, 0, 80, 20), &parent, 7);
    int lower = 0;
    int upper = 0;
    BOOL error = TRUE;

    spin.SetRange32(-1000000, 1000000);
    spin.GetRange32(lower, upper);
    EXPECT_EQ(lower, -1000000);
    EXPECT_EQ(upper, 1000000);
    spin.SetPos32(500000);
    EXPECT_EQ(spin.SetPos32(600000), 500000);
    EXPECT_EQ(spin.GetPos32(&error), 600000);
}

TEST(SpinButtonCtrl, BaseAndAccelerationAreKept)
{
    RecordingParent parent;
    CSpinButtonCtrl spin;
    spin.Create(WS_CHILD, CRect(60, 0, 80, 20), &parent, 7);
    UDACCEL wanted[] = {{0, 1}, {2, 10}};
    UDACCEL got[2]{};

    EXPECT_EQ(spin.GetBase(), 10u);
    EXPECT_EQ(spin.SetBase(16), 10);
    EXPECT_EQ(spin.GetBase(), 16u);
    EXPECT_EQ(spin.SetBase(7), 0);
    EXPECT_TRUE(spin.SetAccel(2, wanted));
    EXPECT_EQ(spin.GetAccel(2, got), 2u);
    EXPECT_EQ(got[1].nInc, 10u);
}
