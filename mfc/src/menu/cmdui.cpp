#include <afxwin.h>

CCmdUI::CCmdUI() = default;

CCmdUI::~CCmdUI() = default;

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

void CCmdUI::Enable(BOOL on)
{
    m_bEnableChanged = TRUE;
    if (m_pMenu) {
        if (!m_pSubMenu) // a popup is always enabled
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : (MF_DISABLED | MF_GRAYED)));
        return;
    }
    if (!m_pOther)
        return;
    // A control that is disabled while it has the focus would leave the keyboard nowhere.
    if (!on && ::GetFocus() == m_pOther->m_hWnd)
        m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL, 0, FALSE);
    m_pOther->EnableWindow(on);
}

void CCmdUI::SetCheck(int check)
{
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (check ? MF_CHECKED : MF_UNCHECKED));
        return;
    }
    if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON))
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

void CCmdUI::SetRadio(BOOL on)
{
    SetCheck(on ? 1 : 0);
    if (!m_pMenu || m_pSubMenu || !on)
        return;
    MENUITEMINFO info{};
    info.fMask = MIIM_FTYPE;
    m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE);
    info.fType |= MFT_RADIOCHECK;
    m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
}

void CCmdUI::SetText(LPCTSTR text)
{
    if (m_pMenu) {
        if (m_pSubMenu)
            return;
        MENUITEMINFO info{};
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(text);
        m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
        return;
    }
    if (!m_pOther)
        return;
    CString before;
    m_pOther->GetWindowText(before);
    if (before != text) // no flicker for nothing
        m_pOther->SetWindowText(text);
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // separators and popups have nothing to ask for
    m_bEnableChanged = FALSE;
    const BOOL handled = target->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (disableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
