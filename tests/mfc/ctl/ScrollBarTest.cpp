// Scroll bars that are controls.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

#include <stdexcept>

using ovo::testkit::RecordingParent;

namespace
{

struct ScrollBarTest : ::testing::Test
{
    ScrollBarTest() { bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(10, 10, 210, 30), &parent, 7); }

    RecordingParent parent;
    CScrollBar bar;
};

} // namespace

TEST_F(ScrollBarTest, RangeAndPositionAreKept)
{
    int minimum = 0;
    int maximum = 0;

    bar.SetScrollRange(-10, 90);
    bar.GetScrollRange(&minimum, &maximum);
    EXPECT_EQ(minimum, -10);
    EXPECT_EQ(maximum, 90);
    EXPECT_EQ(bar.SetScrollPos(30), 0);
    EXPECT_EQ(bar.SetScrollPos(40), 30);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    bar.SetScrollPos(500);
    EXPECT_EQ(bar.GetScrollPos(), 90);
}

TEST_F(ScrollBarTest, InfoIsSetAndGotWithoutASize)
{
    SCROLLINFO wanted{};
    wanted.fMask = SIF_ALL;
    wanted.nMin = 0;
    wanted.nMax = 100000;
    wanted.nPage = 1000;
    wanted.nPos = 70000;
    SCROLLINFO got{};

    EXPECT_TRUE(bar.SetScrollInfo(&wanted));
    EXPECT_TRUE(bar.GetScrollInfo(&got));
    EXPECT_EQ(got.nMax, 100000);
    EXPECT_EQ(got.nPos, 70000);
    EXPECT_EQ(bar.GetScrollLimit(), 100000 - 1000 + 1);
    SCROLLINFO part{};
    part.nPos = -5;
    EXPECT_TRUE(bar.GetScrollInfo(&part, SIF_PAGE));
    EXPECT_EQ(part.nPage, 1000u);
    EXPECT_EQ(part.nPos, -5) << "only what was asked for";
}

TEST_F(ScrollBarTest, AZeroPositionIsSuccessToo)
{
    SCROLLINFO info{};
    info.fMask = SIF_POS;
    info.nPos = 0;

    EXPECT_TRUE(bar.SetScrollInfo(&info));
}

TEST_F(ScrollBarTest, HidesAndDisables)
{
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
    bar.ShowScrollBar();
    EXPECT_TRUE(bar.GetStyle() & WS_VISIBLE);
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    bar.EnableScrollBar();
}

TEST_F(ScrollBarTest, ItsPartsAreKnownWithoutASize)
{
    SCROLLBARINFO info{};

    EXPECT_TRUE(bar.GetScrollBarInfo(&info));
    EXPECT_EQ(info.rcScrollBar.right - info.rcScrollBar.left, 200);
}

TEST(ScrollBar, WhatAHandlerRaisesComesOutOfTheCall)
{
    struct Raising : CScrollBar
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SHOWWINDOW && raises)
                throw std::runtime_error("shown or hidden");
            return CScrollBar::WindowProc(message, wParam, lParam);
        }
        bool raises = false;
    };
    RecordingParent parent;
    Raising bar;
    bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(10, 10, 210, 30), &parent, 7);

    bar.raises = true;
    EXPECT_THROW(bar.ShowScrollBar(FALSE), std::runtime_error);
    bar.raises = false;
}
