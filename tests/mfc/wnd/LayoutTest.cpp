// Places: coordinates, centring, and the layout of control bars.
#include "Windows.h"

#include <afxext.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace wndtest;

namespace
{

CRect screenRect(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

CRect rectInParent(const CWnd& wnd)
{
    CRect rect = screenRect(wnd);
    wnd.GetParent()->ScreenToClient(&rect);
    return rect;
}

CRect workArea()
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

/// Takes a slice of 20 pixels at the top, or 30 at the left.
class Bar : public Hidden<>
{
public:
    bool left = false;
    int asked = 0;
    bool throws = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_SIZEPARENT)
            return CWnd::WindowProc(message, wParam, lParam);
        ++asked;
        if (throws)
            throw std::runtime_error("oak");
        auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
        CRect mine = layout->rect;
        if (left) {
            mine.right = mine.left + 30;
            layout->rect.left += 30;
            layout->sizeTotal.cx += 30;
        } else {
            mine.bottom = mine.top + 20;
            layout->rect.top += 20;
            layout->sizeTotal.cy += 20;
        }
        AfxRepositionWindow(layout, m_hWnd, mine);
        return 0;
    }
};

class Layout : public ::testing::Test
{
protected:
    static constexpr UINT kTop = AFX_IDW_CONTROLBAR_FIRST;
    static constexpr UINT kPane = AFX_IDW_PANE_FIRST;

    Layout()
    {
        wnd.create();
        wnd.GetClientRect(&client);
        top.createChild(wnd, kTop);
        left.left = true;
        left.createChild(wnd, kTop + 1);
        pane.createChild(wnd, kPane);
    }

    Hidden<> wnd;
    CRect client;
    Bar top;
    Bar left;
    Hidden<> pane;
};

} // namespace

TEST(Place, RectanglesAreMappedWithBothCorners)
{
    Hidden<> wnd;
    wnd.create();
    CPoint origin(0, 0);
    wnd.ClientToScreen(&origin);
    CRect rect(1, 2, 30, 40);
    wnd.ClientToScreen(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 30, 40) + origin);
    wnd.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 30, 40));
    CPoint point(5, 6);
    wnd.MapWindowPoints(nullptr, &point, 1);
    EXPECT_EQ(point, CPoint(5, 6) + origin);
    CWnd::GetDesktopWindow()->MapWindowPoints(&wnd, &rect);
    EXPECT_EQ(rect, CRect(1, 2, 30, 40) - origin);
}

TEST(Place, AStyleChangesOnlyIfItIsDifferent)
{
    Hidden<> wnd;
    wnd.create();
    EXPECT_FALSE(wnd.ModifyStyle(WS_VSCROLL, 0));
    EXPECT_TRUE(wnd.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED));
    EXPECT_FALSE(wnd.ModifyStyle(0, WS_VSCROLL));
    CRect client;
    wnd.GetClientRect(&client);
    EXPECT_LT(client.Width(), screenRect(wnd).Width()) << "the frame was recalculated";
    const CRect before = screenRect(wnd);
    EXPECT_TRUE(wnd.ModifyStyleEx(0, WS_EX_TOOLWINDOW, SWP_FRAMECHANGED));
    EXPECT_EQ(screenRect(wnd), before);
}

TEST(Place, APlacementNeedsNoSizeFilledIn)
{
    Hidden<> wnd;
    wnd.create();
    WINDOWPLACEMENT placement;
    ASSERT_TRUE(wnd.GetWindowPlacement(&placement));
    placement.length = 0;
    ::OffsetRect(&placement.rcNormalPosition, 11, 0);
    placement.showCmd = SW_HIDE;
    const CRect before = screenRect(wnd);
    EXPECT_TRUE(wnd.SetWindowPlacement(&placement));
    EXPECT_EQ(screenRect(wnd), before + CPoint(11, 0));
}

TEST(Centring, APopupIsCentredOnItsOwner)
{
    Hidden<> owner;
    owner.create();
    owner.MoveWindow(200, 150, 400, 300);
    owner.ShowWindow(SW_SHOWNA);
    Hidden<> popup;
    popup.create(WS_POPUP, &owner);
    popup.MoveWindow(0, 0, 100, 80);
    popup.CenterWindow();
    EXPECT_EQ(screenRect(popup), CRect(CPoint(350, 260), CSize(100, 80)));
    owner.ShowWindow(SW_HIDE);
}

TEST(Centring, WithoutAnOwnerTheScreenCounts)
{
    Hidden<> popup;
    popup.create();
    popup.MoveWindow(3, 4, 100, 80);
    popup.CenterWindow();
    const CRect area = workArea();
    EXPECT_EQ(screenRect(popup).CenterPoint(), area.CenterPoint());
}

TEST(Centring, AHiddenOwnerDoesNotCount)
{
    Hidden<> owner;
    owner.create();
    owner.MoveWindow(200, 150, 400, 300);
    Hidden<> popup;
    popup.create(WS_POPUP, &owner);
    popup.MoveWindow(0, 0, 100, 80);
    popup.CenterWindow();
    EXPECT_EQ(screenRect(popup).CenterPoint(), workArea().CenterPoint());
}

TEST(Centring, ItStaysOnTheScreen)
{
    Hidden<> owner;
    owner.create();
    owner.MoveWindow(-180, -100, 200, 120);
    owner.ShowWindow(SW_SHOWNA);
    Hidden<> popup;
    popup.create(WS_POPUP, &owner);
    popup.MoveWindow(300, 300, 100, 80);
    popup.CenterWindow();
    EXPECT_EQ(screenRect(popup).TopLeft(), workArea().TopLeft());
    owner.ShowWindow(SW_HIDE);
}

TEST(Centring, AnAlternativeTakesTheOwnersPlace)
{
    Hidden<> owner;
    owner.create();
    Hidden<> other;
    other.create();
    other.MoveWindow(400, 300, 200, 200);
    other.ShowWindow(SW_SHOWNA);
    Hidden<> popup;
    popup.create(WS_POPUP, &owner);
    popup.MoveWindow(0, 0, 100, 80);
    popup.CenterWindow(&other);
    EXPECT_EQ(screenRect(popup).CenterPoint(), CPoint(500, 400));
    popup.CenterWindow(CWnd::GetDesktopWindow());
    CRect desktop;
    CWnd::GetDesktopWindow()->GetWindowRect(&desktop);
    EXPECT_EQ(screenRect(popup).CenterPoint(), desktop.CenterPoint());
    other.ShowWindow(SW_HIDE);
}

TEST(Centring, AChildIsCentredInItsParent)
{
    Hidden<> parent;
    parent.create();
    Hidden<> child;
    child.createChild(parent, 3, CRect(0, 0, 50, 30));
    child.CenterWindow();
    CRect client;
    parent.GetClientRect(&client);
    EXPECT_EQ(rectInParent(child),
              CRect(CPoint((client.Width() - 50) / 2, (client.Height() - 30) / 2), CSize(50, 30)));
}

TEST_F(Layout, BarsTakeTheirPartsAndTheRestIsThePanes)
{
    wnd.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, kPane);
    EXPECT_EQ(rectInParent(top), CRect(0, 0, client.right, 20));
    EXPECT_EQ(rectInParent(left), CRect(0, 20, 30, client.bottom));
    EXPECT_EQ(rectInParent(pane), CRect(30, 20, client.right, client.bottom));
}

TEST_F(Layout, BarsOutOfTheRangeAreNotAsked)
{
    wnd.RepositionBars(kTop + 1, kTop + 5, kPane);
    EXPECT_EQ(top.asked, 0);
    EXPECT_EQ(rectInParent(pane), CRect(30, 0, client.right, client.bottom));
}

TEST_F(Layout, AQueryMovesNothing)
{
    const CRect before = rectInParent(top);
    CRect rest;
    wnd.RepositionBars(0, 0xFFFF, kPane, CWnd::reposQuery, &rest);
    EXPECT_EQ(rest, CRect(30, 20, client.right, client.bottom));
    EXPECT_EQ(rectInParent(top), before);
    wnd.RepositionBars(0, 0xFFFF, kPane, CWnd::reposQuery, &rest, nullptr, FALSE);
    EXPECT_EQ(rest, CRect(0, 0, 30, 20)) << "what the bars themselves need";
}

TEST_F(Layout, ExtraSpaceIsTakenOffThePane)
{
    CRect extra(1, 2, 3, 4);
    wnd.RepositionBars(0, 0xFFFF, kPane, CWnd::reposExtra, &extra);
    EXPECT_EQ(rectInParent(pane), CRect(31, 22, client.right - 3, client.bottom - 4));
    EXPECT_EQ(rectInParent(top), CRect(0, 0, client.right, 20)) << "not off the bars";
}

TEST_F(Layout, AnotherAreaMayBeGiven)
{
    const CRect area(10, 10, 110, 90);
    wnd.RepositionBars(0, 0xFFFF, kPane, CWnd::reposDefault, nullptr, &area);
    EXPECT_EQ(rectInParent(top), CRect(10, 10, 110, 30));
    EXPECT_EQ(rectInParent(pane), CRect(40, 30, 110, 90));
}

TEST_F(Layout, ThePanesFrameLiesOutsideItsRest)
{
    pane.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED);
    wnd.RepositionBars(0, 0xFFFF, kPane);
    EXPECT_EQ(rectInParent(pane), CRect(29, 19, client.right + 1, client.bottom + 1));
}

TEST_F(Layout, AnExceptionOfABarComesOutWithTheOthersPlaced)
{
    left.throws = true;
    EXPECT_THROW(wnd.RepositionBars(0, 0xFFFF, kPane), std::runtime_error);
    EXPECT_EQ(rectInParent(top).Height(), 20);
}
