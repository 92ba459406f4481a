// CFrameWnd and the bars: help.
#include <afxext.h>
#include <afxpriv.h>

#include <detail/help.h>

namespace
{

bool isModified()
{
    return ::GetKeyState(VK_SHIFT) < 0 || ::GetKeyState(VK_CONTROL) < 0 || ::GetKeyState(VK_MENU) < 0;
}

/// Whether an accelerator stands for F1 alone.
bool translatesF1(HACCEL table)
{
    const int count = table ? ::CopyAcceleratorTableW(table, nullptr, 0) : 0;
    std::vector<ACCEL> keys(static_cast<std::size_t>(count));
    ::CopyAcceleratorTableW(table, keys.data(), count);
    return std::any_of(keys.begin(), keys.end(), [](const ACCEL& key) {
        return key.key == VK_F1 && (key.fVirt & (FVIRTKEY | FSHIFT | FCONTROL | FALT)) == FVIRTKEY;
    });
}

/// Whether a request from a menu names the item that the user is at. Some systems ask a second time, with the
/// item under the pointer.
bool isAbout(const HELPINFO& info, UINT tracked)
{
    const bool system = info.iCtrlId >= 0xF000 && info.iCtrlId <= 0xFFFF;
    return tracked == 0 || system || static_cast<UINT>(info.iCtrlId) == tracked;
}

bool isOneOf(HWND wnd, HWND control)
{
    return control == wnd || ::IsChild(wnd, control);
}

} // namespace

void CFrameWnd::OnContextHelp()
{
    if (CWinApp* app = AfxGetApp())
        app->OnContextHelp();
}

BOOL CFrameWnd::OnHelpInfo(HELPINFO* info)
{
    if (afxdetail::helpOfMessageBox())
        return TRUE;
    const bool inMenu = info->iContextType == HELPINFO_MENUITEM;
    if (isModified() || (inMenu && !isAbout(*info, m_nIDTracking)))
        return TRUE;
    // The key comes a second time here, after it was translated into a command.
    if (!inMenu && translatesF1(m_hAccelTable) && isOneOf(m_hWnd, static_cast<HWND>(info->hItemHandle)))
        return TRUE;
    return afxdetail::askForHelp() || CWnd::OnHelpInfo(info);
}

LRESULT CFrameWnd::OnCommandHelp(WPARAM, LPARAM context)
{
    if (context)
        return afxdetail::showHelp(static_cast<DWORD_PTR>(context));
    const bool tracking = m_nIDTracking != 0 && m_nIDTracking != AFX_IDS_IDLEMESSAGE &&
                          m_nIDTracking != AFX_IDS_HELPMODEMESSAGE;
    if (tracking)
        return afxdetail::showHelp(HID_BASE_COMMAND + m_nIDTracking);
    return afxdetail::showHelp(m_nIDHelp ? HID_BASE_RESOURCE + m_nIDHelp : 0);
}

LRESULT CFrameWnd::OnHelpHitTest(WPARAM, LPARAM)
{
    return m_nIDHelp ? static_cast<LRESULT>(HID_BASE_RESOURCE + m_nIDHelp) : 0;
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    CWinApp* app = AfxGetApp();
    const UINT id = LOWORD(wParam);
    if (!app || !app->m_bHelpMode || lParam)
        return CWnd::OnCommand(wParam, lParam);
    if (id == ID_CONTEXT_HELP) // the key that began it is still held down
        return TRUE;
    app->m_bHelpMode = FALSE;
    ::ReleaseCapture();
    if (!SendMessage(WM_COMMANDHELP, 0, static_cast<LPARAM>(HID_BASE_COMMAND + id)))
        SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
    return TRUE;
}

LRESULT CControlBar::OnHelpHitTest(WPARAM, LPARAM point)
{
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    const INT_PTR command = OnToolHitTest(CPoint(point), &tool);
    if (command > 0)
        return static_cast<LRESULT>(HID_BASE_COMMAND + static_cast<UINT>(command));
    const UINT id = static_cast<UINT>(GetDlgCtrlID());
    return id ? static_cast<LRESULT>(HID_BASE_CONTROL + id) : 0;
}
