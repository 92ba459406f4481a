// Views of something larger than their window.
#include "TestFrame.h"

#include <afxwin.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kMark = RGB(0, 0, 200);

class TestScrollView : public CScrollView
{
    DECLARE_DYNCREATE(TestScrollView)

public:
    CPoint mark{400, 500}; ///< logical units
    bool bars(bool horizontal) const
    {
        BOOL both[2];
        CheckScrollBars(both[0], both[1]);
        return both[horizontal ? 0 : 1] != FALSE;
    }

protected:
    void OnDraw(CDC* dc) override { dc->FillSolidRect(mark.x, mark.y, 20, 20, kMark); }
};

IMPLEMENT_DYNCREATE(TestScrollView, CScrollView)

class ScrollViewTest : public ::testing::Test, protected FilledFrame<TestScrollView>
{
protected:
    ScrollViewTest()
        : FilledFrame(RUNTIME_CLASS(TestScrollView), L"Scrolls", CSize(300, 250))
    {
    }

    COLORREF colourAt(CPoint point)
    {
        view->UpdateWindow();
        return CClientDC(view).GetPixel(point);
    }
};

} // namespace

TEST_F(ScrollViewTest, ShowsTheBarsThatItNeeds)
{
    view->SetScrollSizes(MM_TEXT, CSize(50, 60));
    EXPECT_FALSE(view->bars(true));
    EXPECT_FALSE(view->bars(false));
    view->SetScrollSizes(MM_TEXT, CSize(50, 600));
    EXPECT_FALSE(view->bars(true));
    EXPECT_TRUE(view->bars(false));
    view->SetScrollSizes(MM_TEXT, CSize(800, 600));
    EXPECT_TRUE(view->bars(true));
    EXPECT_TRUE(view->bars(false));
    frame->SetWindowPos(nullptr, 0, 0, 1000, 750, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(view->bars(true)) << "all of it fits now";
    EXPECT_FALSE(view->bars(false));
}

TEST_F(ScrollViewTest, DrawsWhatIsScrolledTo)
{
    present(*frame);
    view->SetScrollSizes(MM_TEXT, CSize(800, 900));
    view->ScrollToPosition(CPoint(390, 490));
    EXPECT_EQ(view->GetScrollPosition(), CPoint(390, 490));
    EXPECT_EQ(view->GetDeviceScrollPosition(), CPoint(390, 490));
    EXPECT_TRUE(GuiThread::runUntil([&] { return colourAt({15, 15}) == kMark; }));
    EXPECT_NE(colourAt({40, 40}), kMark);
}

TEST_F(ScrollViewTest, EndsAtTheEnd)
{
    view->SetScrollSizes(MM_TEXT, CSize(800, 900));
    view->ScrollToPosition(CPoint(5000, 5000));
    CRect client;
    view->GetClientRect(&client);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(800 - client.Width(), 900 - client.Height()));
    frame->SetWindowPos(nullptr, 0, 0, 500, 450, SWP_NOMOVE | SWP_NOZORDER);
    view->GetClientRect(&client);
    EXPECT_EQ(view->GetScrollPosition(), CPoint(800 - client.Width(), 900 - client.Height()))
        << "a larger window leaves nothing empty";
}

TEST_F(ScrollViewTest, GoesByLinesPagesAndToTheEnds)
{
    view->SetScrollSizes(MM_TEXT, CSize(50, 2000), CSize(10, 100), CSize(1, 7));
    const auto after = [&](UINT code) {
        view->SendMessage(WM_VSCROLL, code);
        return view->GetScrollPosition().y;
    };
    EXPECT_EQ(after(SB_LINEDOWN), 7);
    EXPECT_EQ(after(SB_PAGEDOWN), 107);
    EXPECT_EQ(after(SB_LINEUP), 100);
    EXPECT_EQ(after(SB_PAGEUP), 0);
    EXPECT_EQ(after(SB_LINEUP), 0);
    CRect client;
    view->GetClientRect(&client);
    EXPECT_EQ(after(SB_BOTTOM), 2000 - client.Height());
    EXPECT_EQ(view->GetScrollPos(SB_VERT), 2000 - client.Height()) << "the bar shows it";
    EXPECT_EQ(after(SB_TOP), 0);
    EXPECT_TRUE(view->OnScrollBy(CSize(0, 5), FALSE)) << "it could";
    EXPECT_EQ(view->GetScrollPosition().y, 0) << "and did not";
    EXPECT_FALSE(view->OnScrollBy(CSize(0, -5)));
}

TEST_F(ScrollViewTest, APageIsATenthUnlessSaidOtherwise)
{
    view->SetScrollSizes(MM_TEXT, CSize(3000, 2000));
    int mode = 0;
    SIZE total{};
    SIZE page{};
    SIZE line{};
    view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(mode, MM_TEXT);
    EXPECT_EQ(CSize(total), CSize(3000, 2000));
    EXPECT_EQ(CSize(page), CSize(300, 200));
    EXPECT_EQ(CSize(line), CSize(30, 20));
}

TEST_F(ScrollViewTest, FollowsTheWheel)
{
    present(*frame);
    view->SetScrollSizes(MM_TEXT, CSize(50, 2000), CSize(10, 100), CSize(1, 7));
    Robot().moveTo(Spot(*view)).turnWheel(-1).waitFor("the step", [&] {
        return view->GetScrollPosition().y == 21;
    });
    Robot().turnWheel(1).waitFor("the step back", [&] { return view->GetScrollPosition().y == 0; });
}

TEST_F(ScrollViewTest, CountsInTheUnitsOfItsMappingMode)
{
    view->SetScrollSizes(MM_LOENGLISH, CSize(2000, 1500));
    EXPECT_EQ(view->GetTotalSize(), CSize(2000, 1500));
    view->ScrollToPosition(CPoint(100, -200)); // y goes upwards
    const CPoint position = view->GetScrollPosition();
    EXPECT_NEAR(position.x, 100, 1);
    EXPECT_NEAR(position.y, -200, 1);
    EXPECT_GT(view->GetDeviceScrollPosition().y, 0);
}

TEST_F(ScrollViewTest, CanBeScaledInstead)
{
    present(*frame);
    view->SetScrollSizes(MM_TEXT, CSize(800, 900));
    view->mark = {80, 80};
    view->SetScaleToFitSize(CSize(100, 100));
    EXPECT_FALSE(view->bars(true));
    EXPECT_FALSE(view->bars(false));
    CRect client;
    view->GetClientRect(&client);
    EXPECT_TRUE(GuiThread::runUntil([&] {
        return colourAt({client.Width() * 9 / 10, client.Height() * 9 / 10}) == kMark;
    }));
    EXPECT_NE(colourAt({client.Width() / 2, client.Height() / 2}), kMark);
}

TEST_F(ScrollViewTest, GivesTheFrameItsSize)
{
    view->SetScrollSizes(MM_TEXT, CSize(150, 120));
    view->ResizeParentToFit();
    CRect client;
    view->GetClientRect(&client);
    EXPECT_EQ(client.Height(), 120);
    view->SetScrollSizes(MM_TEXT, CSize(400, 300));
    view->ResizeParentToFit();
    view->GetClientRect(&client);
    EXPECT_LT(client.Height(), 300) << "only smaller";
    view->ResizeParentToFit(FALSE);
    view->GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(400, 300));
}
