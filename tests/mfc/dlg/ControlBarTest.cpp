// Control bars: their place in the frame, their borders, who is told of their controls, idle updates.
#include "TestFrame.h"
#include "TestDialog.h"
#include "resource.h"

#include <support/RaisingChild.h>
#include <testkit/Picture.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// A bar of a fixed size that notes its updates.
class PlainBar : public CControlBar
{
public:
    explicit PlainBar(CSize size = {120, 30})
        : m_size(size)
    {
    }

    BOOL create(CWnd& parent, DWORD style, UINT id)
    {
        m_dwStyle = style & CBRS_ALL;
        const DWORD wnd = (style & ~static_cast<DWORD>(CBRS_ALL)) | WS_CHILD;
        return Create(nullptr, L"Bar", wnd, CRect(), &parent, id);
    }

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override
    {
        CSize size = m_size;
        if (stretch)
            (horizontal ? size.cx : size.cy) = 32767;
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disable) override
    {
        ++updated;
        this->target = target;
        disabling = disable;
    }

    int updated = 0;
    CCmdTarget* target = nullptr;
    BOOL disabling = FALSE;

private:
    CSize m_size;
};

constexpr UINT kFirstBar = AFX_IDW_CONTROLBAR_FIRST + 0x40;

class ControlBar : public ::testing::Test
{
protected:
    ControlBar() { m_frame->GetClientRect(&m_client); }

    CRect viewPlace() const { return m_frame->placeOf(*m_frame->view); }

    PlainBar m_one;
    PlainBar m_two{CSize(50, 80)};
    MainFrame m_frame;
    CRect m_client;
};

} // namespace

TEST_F(ControlBar, WhatIsRaisedAsItsObjectGoesWaitsForTheMessageLoop)
{
    support::RaisingChild child;
    {
        PlainBar bar;
        ASSERT_TRUE(bar.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
        ASSERT_TRUE(child.createIn(bar));
    }
    child.expectRaisedInLoop();
    {
        CToolBar bar;
        ASSERT_TRUE(bar.CreateEx(&*m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP));
        ASSERT_TRUE(child.createIn(bar));
    }
    child.expectRaisedInLoop();
}

// Layout

TEST_F(ControlBar, TakesAStripAtItsSide)
{
    const std::pair<DWORD, CRect> sides[] = {
        {CBRS_TOP, CRect(0, 0, m_client.right, 30)},
        {CBRS_BOTTOM, CRect(0, m_client.bottom - 30, m_client.right, m_client.bottom)},
        {CBRS_LEFT, CRect(0, 0, 120, m_client.bottom)},
        {CBRS_RIGHT, CRect(m_client.right - 120, 0, m_client.right, m_client.bottom)},
    };
    for (const auto& [style, place] : sides) {
        PlainBar bar;
        ASSERT_TRUE(bar.create(*m_frame, WS_VISIBLE | style, kFirstBar));
        m_frame->RecalcLayout();
        EXPECT_EQ(m_frame->placeOf(bar), place) << std::hex << style;
        CRect rest;
        rest.SubtractRect(m_client, place);
        EXPECT_EQ(viewPlace(), rest) << std::hex << style;
        bar.DestroyWindow();
    }
}

TEST_F(ControlBar, SeveralShareTheFrameInTheirOrder)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    ASSERT_TRUE(m_two.create(*m_frame, WS_VISIBLE | CBRS_LEFT, kFirstBar + 1));
    m_two.SetWindowPos(&m_one, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); // behind the first
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(m_one), CRect(0, 0, m_client.right, 30));
    EXPECT_EQ(m_frame->placeOf(m_two), CRect(0, 30, 50, m_client.bottom));
    EXPECT_EQ(viewPlace(), CRect(50, 30, m_client.right, m_client.bottom));

    m_one.SetWindowPos(&m_two, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(m_two), CRect(0, 0, 50, m_client.bottom)) << "the front one chooses first";
    EXPECT_EQ(m_frame->placeOf(m_one), CRect(50, 0, m_client.right, 30));
}

TEST_F(ControlBar, FollowsTheFramesSize)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_BOTTOM, kFirstBar));
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    m_frame->GetClientRect(&m_client);
    EXPECT_EQ(m_frame->placeOf(m_one), CRect(0, m_client.bottom - 30, m_client.right, m_client.bottom));
}

TEST_F(ControlBar, TakesNoMoreThanThereIs)
{
    PlainBar high(CSize(10, 5000));
    ASSERT_TRUE(high.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(high), m_client);
    EXPECT_TRUE(viewPlace().IsRectEmpty());
    high.DestroyWindow();
}

TEST_F(ControlBar, WithoutASideStaysWhereItIs)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_NOALIGN, kFirstBar));
    m_one.MoveWindow(5, 6, 70, 8);
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->placeOf(m_one), CRect(CPoint(5, 6), CSize(70, 8)));
    EXPECT_EQ(viewPlace(), m_client);
}

TEST_F(ControlBar, TheRestIsAskedForWithoutMovingAnything)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    const CRect before = m_frame->placeOf(m_one);
    CRect rest;
    m_frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &rest);
    EXPECT_EQ(rest, CRect(0, 30, m_client.right, m_client.bottom));
    EXPECT_EQ(m_frame->placeOf(m_one), before);
    CRect asked;
    EXPECT_TRUE(m_frame->SendMessage(WM_RECALCPARENT, 0, reinterpret_cast<LPARAM>(&asked)));
    EXPECT_EQ(asked, rest);
    CRect needed;
    m_frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &needed, nullptr, FALSE);
    EXPECT_EQ(needed, CRect(0, 0, 120, 30)) << "what the bars need by themselves";
}

TEST_F(ControlBar, ALayoutInTheMiddleOfALayoutIsNotBegun)
{
    class Nosy : public PlainBar
    {
    public:
        CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override
        {
            ++asked;
            GetParentFrame()->RecalcLayout();
            return PlainBar::CalcFixedLayout(stretch, horizontal);
        }
        int asked = 0;
    } bar;
    ASSERT_TRUE(bar.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    bar.asked = 0;
    m_frame->RecalcLayout();
    EXPECT_EQ(bar.asked, 1);
    bar.DestroyWindow();
}

TEST_F(ControlBar, AnErrorInALayoutDoesNotEndLayouts)
{
    class Failing : public PlainBar
    {
    public:
        CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override
        {
            if (std::exchange(fails, false))
                throw 42;
            return PlainBar::CalcFixedLayout(stretch, horizontal);
        }
        bool fails = false;
    } bar;
    ASSERT_TRUE(bar.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    bar.fails = true;
    EXPECT_THROW(m_frame->RecalcLayout(), int);
    m_frame->RecalcLayout();
    EXPECT_EQ(viewPlace().top, 30);
    bar.DestroyWindow();
}

// Showing and hiding

TEST_F(ControlBar, AHiddenOneTakesNoRoom)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    m_frame->RecalcLayout();
    m_frame->ShowControlBar(&m_one, FALSE, FALSE);
    EXPECT_FALSE(m_one.IsVisible());
    EXPECT_EQ(viewPlace(), m_client);
    m_frame->ShowControlBar(&m_one, TRUE, FALSE);
    EXPECT_TRUE(m_one.IsVisible());
    EXPECT_EQ(viewPlace().top, 30);
}

TEST_F(ControlBar, CanBeShownWhenThereIsTime)
{
    ASSERT_TRUE(m_one.create(*m_frame, CBRS_TOP, kFirstBar));
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    m_frame->ShowControlBar(&m_one, TRUE, TRUE);
    EXPECT_TRUE(m_one.IsVisible()) << "it counts as visible";
    EXPECT_FALSE(m_one.GetStyle() & WS_VISIBLE) << "but is not shown yet";
    EXPECT_EQ(viewPlace(), m_client);
    GuiThread::settle();
    EXPECT_TRUE(m_one.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(viewPlace().top, 30);

    m_frame->ShowControlBar(&m_one, FALSE, TRUE);
    m_frame->ShowControlBar(&m_one, TRUE, TRUE);
    GuiThread::settle();
    EXPECT_TRUE(m_one.GetStyle() & WS_VISIBLE) << "a change of mind is no change";
}

TEST_F(ControlBar, AHiddenOneGivesTheFocusBack)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &m_one, 7);
    present(*m_frame);
    edit.SetFocus();
    m_frame->ShowControlBar(&m_one, FALSE, FALSE);
    EXPECT_EQ(::GetFocus(), m_frame->view->m_hWnd);
}

TEST_F(ControlBar, IsFoundByItsNumberAndToggledByTheCommand)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, AFX_IDW_TOOLBAR));
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR), &m_one);
    EXPECT_EQ(m_frame->GetControlBar(kFirstBar), nullptr);
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_FALSE(m_one.IsVisible());
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR), &m_one) << "hidden ones count";

    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_VIEW_TOOLBAR, L"Toolbar");
    menu.AppendMenu(MF_STRING, ID_VIEW_STATUS_BAR, L"Status bar");
    const auto state = [&](UINT position) {
        m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
        return menu.GetMenuState(position, MF_BYPOSITION);
    };
    EXPECT_FALSE(state(0) & MF_CHECKED);
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_TRUE(state(0) & MF_CHECKED);
    EXPECT_FALSE(m_frame->OnBarCheck(ID_VIEW_STATUS_BAR)) << "there is no status bar";
}

TEST_F(ControlBar, IsForgottenWhenItGoes)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, AFX_IDW_TOOLBAR));
    EXPECT_EQ(m_one.GetDockingFrame(), &*m_frame);
    m_one.DestroyWindow();
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR), nullptr);
    EXPECT_EQ(m_one.GetDockingFrame(), nullptr);
    m_frame->RecalcLayout();
    EXPECT_EQ(viewPlace(), m_client);
}

TEST_F(ControlBar, DeletesItselfOnDemand)
{
    static int s_alive = 0;
    class Counted : public PlainBar
    {
    public:
        Counted() { ++s_alive; }
        ~Counted() override { --s_alive; }
    };
    auto* bar = new Counted;
    bar->m_bAutoDelete = TRUE;
    ASSERT_TRUE(bar->create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    bar->DestroyWindow();
    EXPECT_EQ(s_alive, 0);
}

// Borders

TEST_F(ControlBar, LinesBordersAndGripperComeOffItsRectangle)
{
    const auto inside = [this](DWORD style, BOOL horizontal) {
        m_one.m_dwStyle = style;
        CRect rect(0, 0, 100, 50);
        m_one.CalcInsideRect(rect, horizontal);
        return rect;
    };
    m_one.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(m_one.GetBorders(), CRect(1, 2, 3, 4));
    EXPECT_EQ(inside(0, TRUE), CRect(1, 2, 97, 46));
    EXPECT_EQ(inside(0, FALSE), CRect(2, 1, 96, 47)) << "a bar on its side";
    EXPECT_EQ(inside(CBRS_BORDER_ANY, TRUE), CRect(2, 3, 96, 45));
    EXPECT_EQ(inside(CBRS_BORDER_TOP | CBRS_BORDER_3D, TRUE), CRect(1, 4, 97, 46));
    const CRect gripper = inside(CBRS_GRIPPER, TRUE);
    EXPECT_GT(gripper.left, 1);
    EXPECT_EQ(gripper.right, 97);
    EXPECT_GT(inside(CBRS_GRIPPER, FALSE).top, 1);
    EXPECT_EQ(inside(CBRS_GRIPPER | CBRS_FLOATING, TRUE), CRect(1, 2, 97, 46))
        << "a floating bar has a caption";
    m_one.SetBorders();
    EXPECT_EQ(inside(0, TRUE), CRect(0, 0, 100, 50));
}

TEST_F(ControlBar, LinesAreDrawnAtTheEdges)
{
    const COLORREF face = RGB(1, 2, 3);
    Picture picture(40, 20, face);
    CDC dc;
    dc.Attach(picture.dc());
    m_one.m_dwStyle = CBRS_BORDER_TOP | CBRS_BORDER_LEFT;
    CRect rect(0, 0, 40, 20);
    m_one.DrawBorders(&dc, rect);
    EXPECT_EQ(rect, CRect(1, 1, 40, 20)) << "what is left";
    EXPECT_THAT(picture.at(20, 0), IsColour(::GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_THAT(picture.at(0, 10), IsColour(::GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_THAT(picture.at(39, 10), IsColour(face));
    EXPECT_THAT(picture.at(20, 19), IsColour(face));

    m_one.m_dwStyle = CBRS_BORDER_BOTTOM | CBRS_BORDER_3D;
    rect.SetRect(0, 0, 40, 20);
    m_one.DrawBorders(&dc, rect);
    EXPECT_THAT(picture.at(20, 18), IsColour(::GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_THAT(picture.at(20, 19), IsColour(::GetSysColor(COLOR_BTNHIGHLIGHT)));
    dc.Detach();
}

TEST_F(ControlBar, TheGripperLiesAtItsBeginning)
{
    const COLORREF face = RGB(1, 2, 3);
    Picture picture(40, 20, face);
    CDC dc;
    dc.Attach(picture.dc());
    m_one.m_dwStyle = CBRS_ALIGN_TOP;
    m_one.DrawGripper(&dc, CRect(0, 0, 40, 20));
    EXPECT_EQ(picture.count(face), 800) << "this bar has none";
    m_one.m_dwStyle = CBRS_ALIGN_TOP | CBRS_GRIPPER;
    m_one.DrawGripper(&dc, CRect(0, 0, 40, 20));
    EXPECT_LT(picture.count(face, 0, CRect(0, 0, 8, 20)), 160);
    EXPECT_EQ(picture.count(face, 0, CRect(8, 0, 40, 20)), 640);
    dc.Detach();
}

// Updates

TEST_F(ControlBar, IsBroughtUpToDateWhenThereIsTime)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    ASSERT_TRUE(m_two.create(*m_frame, CBRS_TOP, kFirstBar + 1));
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    m_one.updated = 0;
    GuiThread::settle();
    EXPECT_GT(m_one.updated, 0);
    EXPECT_EQ(m_one.target, &*m_frame);
    EXPECT_TRUE(m_one.disabling);
    EXPECT_EQ(m_two.updated, 0) << "it is hidden";
}

TEST_F(ControlBar, AsksItsOwnerWhichNeedBeNoFrame)
{
    OwnerWindow owner;
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    m_one.SetOwner(&owner);
    m_one.SendMessage(WM_IDLEUPDATECMDUI, FALSE);
    EXPECT_EQ(m_one.target, static_cast<CCmdTarget*>(&owner));
    EXPECT_FALSE(m_one.disabling);
}

TEST_F(ControlBar, IsBroughtUpToDateWithTheViews)
{
    ASSERT_TRUE(m_one.create(*m_frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    m_one.updated = 0;
    m_one.SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ(m_one.updated, 1);
}

// Messages of its controls

namespace
{

/// Takes down the messages that bars forward.
class ListeningFrame : public TestFrame
{
public:
    std::vector<UINT> heard;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_DELETEITEM:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
            heard.push_back(message);
            return 77;
        default:
            return TestFrame::WindowProc(message, wParam, lParam);
        }
    }
};

} // namespace

TEST(ControlBarMessages, GoToTheOwner)
{
    auto* frame = new ListeningFrame;
    frame->Create(nullptr, L"Listening");
    PlainBar bar;
    ASSERT_TRUE(bar.create(*frame, CBRS_TOP, kFirstBar));
    const HWND child = ::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD, 0, 0, 1, 1, bar,
                                         reinterpret_cast<HMENU>(7), nullptr, nullptr);
    const auto lParam = reinterpret_cast<LPARAM>(child);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.hwndItem = child;
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = 7;
    DELETEITEMSTRUCT deleted{};
    deleted.hwndItem = child;
    COMPAREITEMSTRUCT compare{};
    compare.hwndItem = child;
    NMHDR notify{child, 7, NM_CLICK};

    EXPECT_EQ(bar.SendMessage(WM_COMMAND, MAKEWPARAM(7, EN_CHANGE), lParam), 77);
    EXPECT_EQ(bar.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&notify)), 77);
    EXPECT_EQ(bar.SendMessage(WM_COMPAREITEM, 7, reinterpret_cast<LPARAM>(&compare)), 77);
    EXPECT_EQ(bar.SendMessage(WM_VKEYTOITEM, 0, lParam), 77);
    EXPECT_EQ(bar.SendMessage(WM_CHARTOITEM, 0, lParam), 77);
    bar.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&draw));
    bar.SendMessage(WM_MEASUREITEM, 7, reinterpret_cast<LPARAM>(&measure));
    bar.SendMessage(WM_DELETEITEM, 7, reinterpret_cast<LPARAM>(&deleted));
    EXPECT_EQ(frame->heard, (std::vector<UINT>{WM_COMMAND, WM_NOTIFY, WM_COMPAREITEM, WM_VKEYTOITEM,
                                               WM_CHARTOITEM, WM_DRAWITEM, WM_MEASUREITEM, WM_DELETEITEM}));
    frame->DestroyWindow();
}

TEST(ControlBarMessages, AreTheBarsOwnIfItHandlesThem)
{
    class Handling : public PlainBar
    {
    public:
        int commands = 0;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
        {
            if (id == 7 && code == EN_CHANGE) {
                ++commands;
                return TRUE;
            }
            return PlainBar::OnCmdMsg(id, code, extra, info);
        }
    } bar;
    auto* frame = new ListeningFrame;
    frame->Create(nullptr, L"Listening");
    ASSERT_TRUE(bar.create(*frame, CBRS_TOP, kFirstBar));
    CEdit edit;
    edit.Create(WS_CHILD, CRect(0, 0, 9, 9), &bar, 7);
    bar.SendMessage(WM_COMMAND, MAKEWPARAM(7, EN_CHANGE), reinterpret_cast<LPARAM>(edit.m_hWnd));
    EXPECT_EQ(bar.commands, 1);
    EXPECT_TRUE(frame->heard.empty());
    frame->DestroyWindow();
}

TEST(ControlBarMessages, AreOfferedToTheControlFirst)
{
    class Drawn : public CButton
    {
    public:
        int drawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    } button;
    PlainBar bar;
    auto* frame = new ListeningFrame;
    frame->Create(nullptr, L"Listening");
    ASSERT_TRUE(bar.create(*frame, CBRS_TOP, kFirstBar));
    button.Create(L"Drawn", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 9, 9), &bar, 7);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.hwndItem = button;
    bar.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(button.drawn, 1);
    EXPECT_TRUE(frame->heard.empty());
    frame->DestroyWindow();
}

TEST(ControlBarMessages, TabMovesBetweenItsControlsAndAcceleratorsStillHold)
{
    PlainBar bar;
    CEdit first;
    CEdit second;
    auto* loaded = new TestFrame;
    loaded->LoadFrame(IDR_FRAME);
    TestView::s_taker = "frame";
    const MainFrame frame(loaded);
    ASSERT_TRUE(bar.create(*frame, WS_VISIBLE | CBRS_TOP, kFirstBar));
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    first.Create(kStyle, CRect(0, 0, 50, 20), &bar, 7);
    second.Create(kStyle, CRect(60, 0, 110, 20), &bar, 8);
    frame->RecalcLayout();
    present(*frame);
    first.SetFocus();
    Robot().key(VK_TAB).key(VK_F6);
    EXPECT_EQ(::GetFocus(), second.m_hWnd);
    EXPECT_EQ(frame->acted, 1);
}
