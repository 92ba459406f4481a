#include "DockScene.h"

#include <utility>

using namespace ovo::testkit;

namespace docktest
{

BOOL DockFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (id < ID_ACT || id >= ID_FIRST + 0x100)
        return CFrameWnd::OnCmdMsg(id, code, extra, info);
    if (code == CN_COMMAND && !info)
        commands.push_back(id);
    return code == CN_COMMAND;
}

LRESULT DockFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCACTIVATE)
        captionActive = wParam != 0;
    return CFrameWnd::WindowProc(message, wParam, lParam);
}

bool ButtonBar::create(DockFrame& frame, UINT id, const wchar_t* title, int buttons, DWORD style)
{
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP | CBRS_GRIPPER | CBRS_SIZE_DYNAMIC;
    if (!CreateEx(&frame, TBSTYLE_FLAT, kStyle | style, CRect(0, 0, 0, 0), id))
        return false;
    SetWindowText(title);
    std::vector<UINT> ids;
    for (int i = 0; i < buttons; ++i)
        ids.push_back(ID_FIRST + (id & 0xF) * 16 + static_cast<UINT>(i));
    return SetButtons(ids.data(), buttons) != FALSE;
}

LRESULT ButtonBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    painted += message == WM_PAINT;
    return CToolBar::WindowProc(message, wParam, lParam);
}

CSize AskedBar::CalcDynamicLayout(int length, DWORD mode)
{
    const std::function<void()> act = std::exchange(whenAsked, nullptr);
    if (!act)
        return ButtonBar::CalcDynamicLayout(length, mode);
    act();
    return CSize(10, 10);
}

DockScene::DockScene(Options options)
{
    frame = new DockFrame;
    frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(100, 100, 700, 500),
                  nullptr, nullptr, options.exStyle);
    AfxGetApp()->m_pMainWnd = frame;
    const LPCTSTR plain =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    pane.Create(plain, nullptr, WS_CHILD | WS_VISIBLE, CRect(), frame, AFX_IDW_PANE_FIRST);
    if (options.enableDocking)
        frame->EnableDocking(kAnySide);
    status.Create(frame);
    static constexpr UINT kPanes[] = {ID_SEPARATOR};
    status.SetIndicators(kPanes, 1);
    one.create(*frame, ID_BAR_ONE, L"One", 4);
    two.create(*frame, ID_BAR_TWO, L"Two", 3);
    three.create(*frame, ID_BAR_THREE, L"Three", 2);
    for (ButtonBar* bar : {&one, &two, &three})
        bar->EnableDocking(kAnySide);
    frame->RecalcLayout();
}

DockScene::~DockScene()
{
    AfxGetApp()->m_pMainWnd = nullptr; // its end shall not end the tests
    if (CWnd* left = CWnd::FromHandlePermanent(frame->GetSafeHwnd()))
        left->DestroyWindow();
}

void DockScene::dockInOneRow()
{
    frame->DockControlBar(&one);
    frame->RecalcLayout();
    for (ButtonBar* bar : {&two, &three}) {
        CRect rect = onScreen(bar == &two ? one : two);
        rect.OffsetRect((frame->GetExStyle() & WS_EX_LAYOUTRTL) ? -1 : 1, 0); // a little behind it
        frame->DockControlBar(bar, AFX_IDW_DOCKBAR_TOP, rect);
        frame->RecalcLayout();
    }
    ovo::testkit::present(*frame);
}

void DockScene::present()
{
    frame->DockControlBar(&one);
    two.ShowWindow(SW_HIDE);
    three.ShowWindow(SW_HIDE);
    frame->RecalcLayout();
    ovo::testkit::present(*frame);
}

CRect DockScene::client() const
{
    CRect rect;
    frame->GetClientRect(&rect);
    return rect;
}

CRect DockScene::place(const CWnd& wnd) const
{
    CRect rect = onScreen(wnd);
    frame->ScreenToClient(&rect);
    return rect;
}

CRect DockScene::onScreen(const CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    return rect;
}

CMiniDockFrameWnd* DockScene::floatOf(const CControlBar& bar)
{
    return bar.m_hWnd ? dynamic_cast<CMiniDockFrameWnd*>(bar.GetParentFrame()) : nullptr;
}

Spot DockScene::gripper(const CControlBar& bar) const
{
    return Spot{[&bar] {
        const CRect rect = onScreen(bar);
        const bool lies = (bar.GetBarStyle() & CBRS_ORIENT_HORZ) != 0;
        const bool mirrored = lies && (bar.GetExStyle() & WS_EX_LAYOUTRTL);
        return lies ? CPoint(mirrored ? rect.right - 4 : rect.left + 3, rect.CenterPoint().y)
                    : CPoint(rect.CenterPoint().x, rect.top + 3);
    }};
}

Spot DockScene::button(const CToolBar& bar, int index) const
{
    return Spot{[&bar, index] {
        CRect rect;
        bar.GetItemRect(index, &rect);
        bar.ClientToScreen(&rect);
        return rect.CenterPoint();
    }};
}

Spot DockScene::caption(const CControlBar& bar) const
{
    return Spot{[&bar] {
        const CRect rect = onScreen(*floatOf(bar));
        return CPoint(rect.left + 12, rect.top + ::GetSystemMetrics(SM_CYSIZEFRAME) + 4);
    }};
}

} // namespace docktest
