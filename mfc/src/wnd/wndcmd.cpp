// CWnd: commands and notifications.
#include <afxwin.h>

#include <detail/pending.h>

namespace
{

/// Asks whether a command is enabled, without showing the answer anywhere.
class SilentCmdUI : public CCmdUI
{
public:
    void Enable(BOOL on) override { m_enabled = on != FALSE; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    bool enabled() const { return m_enabled; }

private:
    bool m_enabled = true;
};

bool isEnabled(CCmdTarget& target, UINT id)
{
    SilentCmdUI ui;
    ui.m_nID = id;
    target.OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr);
    return ui.enabled();
}

} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control) {
        if (ReflectLastMsg(control))
            return TRUE;
        return id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
    }
    // From a menu or an accelerator: a command that is disabled is swallowed.
    if (id == 0)
        return FALSE;
    return !isEnabled(*this, id) || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, result))
        return TRUE;
    // Not wParam: a tooltip's number may be a window handle there.
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom)) & 0xFFFF;
    AFX_NOTIFY notify{result, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler)
{
    constexpr LRESULT kPushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CCmdUI ui;
        ui.m_nID = static_cast<UINT>(::GetDlgCtrlID(child)) & 0xFFFF;
        ui.m_pOther = FromHandle(child);
        // The control itself may answer first.
        if (ui.m_pOther->OnCmdMsg(0, static_cast<int>(MAKELONG(0xFFFF, WM_REFLECT_BASE + WM_COMMAND)), &ui, nullptr))
            continue;
        // Only push buttons are disabled for want of a handler: a label or a check box has none and is fine.
        const bool pushes = (ui.m_pOther->SendMessage(WM_GETDLGCODE) & kPushButton) != 0;
        ui.DoUpdate(target, disableIfNoHandler && pushes);
    }
}
