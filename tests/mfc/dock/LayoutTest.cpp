// The frame's layout: who takes room first, what is painted anew, mirrored frames.
#include "DockScene.h"

#include <support/Perishing.h>

#include <gtest/gtest.h>

#include <utility>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

/// What a window would have to paint anew, in its client area; nothing is painted by looking.
CRect staleArea(const CWnd& wnd)
{
    CRect rect;
    ::GetUpdateRect(wnd, &rect, FALSE);
    return rect;
}

/// The same, without what child windows cover and a window that clips them never paints.
bool isStaleBesideChildren(const CWnd& wnd)
{
    CRgn stale;
    stale.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(wnd, stale, FALSE);
    for (HWND child = ::GetTopWindow(wnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child))
            continue;
        CRect rect;
        ::GetWindowRect(child, &rect);
        wnd.ScreenToClient(&rect);
        CRgn covered;
        covered.CreateRectRgnIndirect(&rect);
        stale.CombineRgn(&stale, &covered, RGN_DIFF);
    }
    CRect rest;
    return stale.GetRgnBox(&rest) != NULLREGION;
}

/// Notes who is asked for room, in front of the windows' own procedures.
class Sniffer
{
public:
    explicit Sniffer(const DockScene& scene)
    {
        s_asked.clear();
        s_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &hook, nullptr, ::GetCurrentThreadId());
        s_frame = scene.frame->m_hWnd;
    }
    ~Sniffer() { ::UnhookWindowsHookEx(s_hook); }

    std::vector<UINT> asked() const { return s_asked; }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& call = *reinterpret_cast<CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && call.message == WM_SIZEPARENT && ::GetParent(call.hwnd) == s_frame)
            s_asked.push_back(static_cast<UINT>(::GetDlgCtrlID(call.hwnd)) & 0xFFFF);
        return ::CallNextHookEx(s_hook, code, wParam, lParam);
    }

    static inline std::vector<UINT> s_asked;
    static inline HHOOK s_hook = nullptr;
    static inline HWND s_frame = nullptr;
};

class DockLayout : public ::testing::Test, protected DockScene
{
};

} // namespace

TEST_F(DockLayout, TheStatusBarIsAskedFirstThenTheSides)
{
    dockInOneRow();
    const Sniffer sniffer(*this);
    frame->RecalcLayout();
    EXPECT_EQ(sniffer.asked(),
              (std::vector<UINT>{AFX_IDW_STATUS_BAR, AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM,
                                 AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT}))
        << "although docking was enabled before there was a status bar";
}

TEST_F(DockLayout, TopAndBottomHaveTheWholeWidth)
{
    frame->DockControlBar(&one, AFX_IDW_DOCKBAR_TOP);
    frame->DockControlBar(&two, AFX_IDW_DOCKBAR_BOTTOM);
    frame->DockControlBar(&three, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    const CRect all = client();
    EXPECT_EQ(place(status).Width(), all.Width());
    EXPECT_EQ(place(*side(AFX_IDW_DOCKBAR_TOP)).Width(), all.Width());
    EXPECT_EQ(place(*side(AFX_IDW_DOCKBAR_BOTTOM)).Width(), all.Width());
    EXPECT_EQ(place(*side(AFX_IDW_DOCKBAR_BOTTOM)).bottom, place(status).top);
    EXPECT_EQ(place(*side(AFX_IDW_DOCKBAR_LEFT)).top, place(one).bottom);
    EXPECT_EQ(place(*side(AFX_IDW_DOCKBAR_LEFT)).bottom, place(two).top);
    EXPECT_EQ(panePlace(), CRect(place(three).right, place(one).bottom, all.right, place(two).top));
}

TEST(DockLayoutOrder, TheSidesKeepTheirOrderHoweverTheyAreEnabled)
{
    DockScene scene({.enableDocking = false});
    scene.frame->EnableDocking(CBRS_ALIGN_RIGHT);
    scene.frame->EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    scene.frame->EnableDocking(CBRS_ALIGN_TOP);
    for (CControlBar* bar : {&scene.one, &scene.two, &scene.three})
        scene.frame->ShowControlBar(bar, FALSE, FALSE);
    const Sniffer sniffer(scene);
    scene.frame->RecalcLayout();
    const std::vector<UINT> asked = sniffer.asked();
    const std::vector<UINT> sides(asked.end() - 3, asked.end());
    EXPECT_EQ(sides, (std::vector<UINT>{AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT}));
    EXPECT_EQ(scene.frame->GetControlBar(AFX_IDW_DOCKBAR_BOTTOM), nullptr);
}

TEST_F(DockLayout, HidingOneBarOfARowPaintsOnlyWhereItLay)
{
    dockInOneRow();
    GuiThread::settle();
    frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CDockBar& top = *side(AFX_IDW_DOCKBAR_TOP);
    const CRect was = place(two); // the side begins where the client area begins

    frame->ShowControlBar(&two, FALSE, FALSE);
    EXPECT_EQ(staleArea(top), was);
    EXPECT_FALSE(isStaleBesideChildren(*frame));
    EXPECT_TRUE(staleArea(pane).IsRectEmpty());
    EXPECT_TRUE(staleArea(status).IsRectEmpty());
    EXPECT_TRUE(staleArea(one).IsRectEmpty());
    EXPECT_TRUE(staleArea(three).IsRectEmpty());

    frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    frame->ShowControlBar(&two, TRUE, FALSE);
    EXPECT_FALSE(staleArea(two).IsRectEmpty());
    EXPECT_FALSE(isStaleBesideChildren(*frame));
    EXPECT_TRUE(staleArea(pane).IsRectEmpty());
    EXPECT_TRUE(staleArea(status).IsRectEmpty());
    EXPECT_TRUE(staleArea(one).IsRectEmpty());
    EXPECT_TRUE(staleArea(three).IsRectEmpty());
}

TEST_F(DockLayout, HidingAWholeRowPaintsWhatThePaneWins)
{
    present();
    GuiThread::settle();
    frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const int height = place(one).Height();
    frame->ShowControlBar(&one, FALSE, FALSE);
    EXPECT_LE(staleArea(pane).Height(), height) << "what it showed before moves with it";
    EXPECT_TRUE(staleArea(status).IsRectEmpty());
    EXPECT_FALSE(isStaleBesideChildren(*frame));
}

TEST_F(DockLayout, ALayoutThatChangesNothingPaintsNothing)
{
    dockInOneRow();
    frame->FloatControlBar(&three, CPoint(300, 300));
    frame->RecalcLayout();
    GuiThread::settle();
    frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    floatOf(three)->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    frame->RecalcLayout();
    for (const CWnd* wnd : std::initializer_list<const CWnd*>{frame, &pane, &status, &one, &two, &three,
                                                              side(AFX_IDW_DOCKBAR_TOP), floatOf(three)})
        EXPECT_TRUE(staleArea(*wnd).IsRectEmpty());
}

TEST_F(DockLayout, ABarThatHidesItselfGivesItsRoomBackWhenThereIsTime)
{
    present();
    one.ShowWindow(SW_HIDE);
    GuiThread::settle();
    EXPECT_EQ(panePlace().top, 0);
    one.ShowWindow(SW_SHOWNA);
    GuiThread::settle();
    EXPECT_EQ(panePlace().top, place(one).bottom);
}

TEST(DockLayoutEnd, ABarMayEndTheFrameWhenItIsAskedForItsSize)
{
    enum class State
    {
        Fixed,
        Docked,
        Floating
    };
    for (const State state : {State::Fixed, State::Docked, State::Floating}) {
        SCOPED_TRACE(static_cast<int>(state));
        auto* const frame = new Perishing<DockFrame>;
        const void* const memory = frame;
        ASSERT_TRUE(frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW, CRect(100, 100, 600, 400)));
        frame->EnableDocking(kAnySide);
        AskedBar bar;
        ASSERT_TRUE(bar.create(*frame, ID_BAR_ONE, L"One", 2));
        bar.EnableDocking(kAnySide);
        if (state == State::Docked)
            frame->DockControlBar(&bar);
        else if (state == State::Floating)
            frame->FloatControlBar(&bar, CPoint(300, 300));
        frame->RecalcLayout();
        bar.whenAsked = [=] { frame->DestroyWindow(); };
        frame->RecalcLayout();
        EXPECT_EQ(bar.m_hWnd, nullptr);
        EXPECT_TRUE(Perishing<DockFrame>::isUntouched(memory));
    }
}

TEST_F(DockLayout, ABarThatIsShownMayDeleteAnother)
{
    class ShownBar : public ButtonBar
    {
    public:
        std::function<void()> whenShown;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SHOWWINDOW && whenShown)
                std::exchange(whenShown, nullptr)();
            return ButtonBar::WindowProc(message, wParam, lParam);
        }
    } bar;
    auto* const other = new Perishing<ButtonBar>;
    const void* const memory = other;
    ASSERT_TRUE(bar.create(*frame, ID_BAR_DIALOG, L"Shown", 2));
    ASSERT_TRUE(other->create(*frame, ID_BAR_DIALOG + 1, L"Deleted", 2));
    frame->ShowControlBar(&bar, FALSE, FALSE);
    frame->ShowControlBar(other, FALSE, FALSE);
    bar.whenShown = [=] { delete other; };
    frame->ShowControlBar(&bar, TRUE, TRUE);
    frame->ShowControlBar(other, TRUE, TRUE);
    frame->RecalcLayout();
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG + 1), nullptr);
    EXPECT_TRUE(Perishing<ButtonBar>::isUntouched(memory));
    bar.DestroyWindow();
}

TEST(DockMirrored, EverythingBeginsAtTheRight)
{
    DockScene scene({.exStyle = WS_EX_LAYOUTRTL});
    scene.dockInOneRow();
    const CRect frame = DockScene::onScreen(*scene.side(AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(DockScene::onScreen(scene.one).right, frame.right);
    EXPECT_EQ(DockScene::onScreen(scene.two).right, DockScene::onScreen(scene.one).left);
    EXPECT_EQ(DockScene::onScreen(scene.three).right, DockScene::onScreen(scene.two).left);

    scene.frame->DockControlBar(&scene.three, AFX_IDW_DOCKBAR_LEFT);
    scene.frame->RecalcLayout();
    EXPECT_EQ(DockScene::onScreen(scene.three).right, frame.right) << "the left side is at the right";
    EXPECT_EQ(scene.place(scene.three).left, 0);
}
