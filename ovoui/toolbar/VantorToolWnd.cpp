#include <ovoui/toolbar/VantorToolWnd.h>

#include <utility>

IMPLEMENT_DYNCREATE(CVantorToolWnd, CDialogBar)

BEGIN_MESSAGE_MAP(CVantorToolWnd, CDialogBar)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

int CVantorToolWnd::sm_xBorder = 0;
int CVantorToolWnd::sm_yBorder = 0;

CVantorToolWnd::CVantorToolWnd()
{
    static bool s_first = true;
    if (std::exchange(s_first, false) && sm_xBorder == 0)
        sm_xBorder = sm_yBorder = 2;
}

CVantorToolWnd::~CVantorToolWnd() = default;

BOOL CVantorToolWnd::Create(CFrameWnd* frame, UINT templateId, UINT style, UINT titleId, UINT barId)
{
    const UINT id = barId ? barId : templateId;
    if (!CDialogBar::Create(frame, templateId, style, id))
        return FALSE;
    CString title;
    title.LoadString(titleId);
    SetWindowText(title);
    // Docked, a gripper is the handle; floating, the window around the bar has the caption.
    if (CWnd* window = frame->GetDlgItem(static_cast<int>(id)))
        window->ModifyStyle(WS_CAPTION, 0, SWP_FRAMECHANGED);
    m_frame = frame;
    m_helpId = id;
    return TRUE;
}

LRESULT CVantorToolWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CLOSE: {
        // Else it stays here, or goes to the side that the bar is docked at, which makes nothing of keys.
        const HWND focused = ::IsChild(m_hWnd, ::GetFocus()) ? m_frame->GetSafeHwnd() : nullptr;
        ShowWindow(SW_HIDE);
        if (focused)
            ::SetFocus(focused);
        return 0;
    }
    case WM_HELP:
        OnHelp();
        return 1;
    case WM_HSCROLL:
    case WM_VSCROLL:
        if (m_frame)
            return m_frame->SendMessage(message, wParam, lParam);
        break;
    }
    return CDialogBar::WindowProc(message, wParam, lParam);
}

void CVantorToolWnd::OnHelp()
{
    if (CWinApp* app = AfxGetApp())
        app->HtmlHelp(m_helpId, HH_HELP_CONTEXT);
}

/// Not offered to the bar's owner as other messages are.
void CVantorToolWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}
