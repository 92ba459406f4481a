#include "TestFrame.h"
#include "resource.h"

using namespace ovo::testkit;

IMPLEMENT_DYNCREATE(TestView, CView)
IMPLEMENT_DYNCREATE(TestFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(TestView, CView)
    ON_COMMAND_EX(ID_TEST_ACT, &TestView::OnAct)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

void TestView::OnDraw(CDC*)
{
    ++drawn;
}

void TestView::OnInitialUpdate()
{
    s_log.push_back(std::string(name) + " initial update");
    CView::OnInitialUpdate();
}

void TestView::OnActivateView(BOOL activate, CView* activateView, CView* deactiveView)
{
    const char* how = !activate                      ? " deactivated"
                      : activateView == deactiveView ? " activated again"
                                                     : " activated";
    s_log.push_back(name + std::string(how));
    CView::OnActivateView(activate, activateView, deactiveView);
}

void TestView::OnActivateFrame(UINT state, CFrameWnd* frame)
{
    s_log.push_back(state == WA_INACTIVE ? "frame deactivated" : "frame activated");
    CView::OnActivateFrame(state, frame);
}

BOOL TestView::OnAct(UINT)
{
    s_log.push_back(name);
    return s_taker == name;
}

void TestView::OnVScroll(UINT code, UINT pos, CScrollBar*)
{
    s_log.push_back(std::string(name) + " scrolled " + std::to_string(code) + " " + std::to_string(pos));
}

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_COMMAND_EX(ID_TEST_ACT, &TestFrame::OnAct)
    ON_COMMAND(ID_TEST_OTHER, &TestFrame::OnOther)
    ON_COMMAND(ID_TEST_FIRST, &TestFrame::OnFirst)
END_MESSAGE_MAP()

TestFrame* TestFrame::makeEmpty()
{
    TestView::s_log.clear();
    TestView::s_taker = "frame";
    auto* frame = new TestFrame;
    return frame->Create(nullptr, L"Test frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 520, 420)) ? frame
                                                                                               : nullptr;
}

TestFrame* TestFrame::make()
{
    TestFrame* frame = makeEmpty();
    frame->view = frame->addView();
    frame->SetActiveView(frame->view, FALSE);
    frame->RecalcLayout();
    return frame;
}

TestView* TestFrame::addView(UINT id)
{
    auto* added = new TestView;
    return added->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(), this, id) ? added : nullptr;
}

CRect TestFrame::placeOf(const CWnd& child) const
{
    CRect place;
    child.GetWindowRect(&place);
    ScreenToClient(&place);
    return place;
}

BOOL TestFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const auto update = updates.find(id);
    if (static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI && update != updates.end()) {
        auto& ui = *static_cast<CCmdUI*>(extra);
        ui.m_bContinueRouting = FALSE;
        update->second(ui);
        if (!ui.m_bContinueRouting)
            return TRUE;
        ui.m_bContinueRouting = FALSE;
    }
    return CFrameWnd::OnCmdMsg(id, code, extra, info);
}

BOOL TestFrame::OnAct(UINT)
{
    TestView::s_log.push_back("frame");
    ++acted;
    return TestView::s_taker == "frame";
}

void TestFrame::OnOther()
{
    if (onOther)
        onOther();
}

MainFrame::MainFrame(TestFrame* frame)
    : m_frame(frame)
    , m_wnd(frame->GetSafeHwnd())
{
    AfxGetApp()->m_pMainWnd = frame;
}

MainFrame::~MainFrame()
{
    AfxGetApp()->m_pMainWnd = nullptr; // its end shall not end the tests
    if (CWnd* left = CWnd::FromHandlePermanent(m_wnd))
        left->DestroyWindow();
}

std::wstring textIn(const CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    return text.GetString();
}
