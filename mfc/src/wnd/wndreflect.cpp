// CWnd: messages that a parent hands back to the control that they are about.
#include <afxwin.h>

#include <detail/threadstate.h>

BOOL PASCAL CWnd::ReflectLastMsg(HWND child, LRESULT* result)
{
    CWnd* control = FromHandlePermanent(child);
    return control && control->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result)
{
    const MSG message = afxdetail::threadState().lastMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);

    case WM_COMMAND:
        if (!OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr, nullptr))
            return FALSE;
        if (result)
            *result = 1;
        return TRUE;

    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        LRESULT ignored = 0;
        AFX_NOTIFY notify{result ? result : &ignored, header};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY)), &notify, nullptr);
    }

    default:
        if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
            // No brush means that the control leaves its colour to its parent.
            LRESULT brush = 0;
            if (!OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, &brush) || brush == 0)
                return FALSE;
            if (result)
                *result = brush;
            return TRUE;
        }
        return FALSE;
    }
}
