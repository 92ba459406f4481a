#include <afxwin.h>

namespace
{

/// Sets a menu item's mark, a check mark or a dot.
void mark(CMenu& menu, UINT position, bool on, UINT type)
{
    MENUITEMINFO info{};
    info.fMask = MIIM_FTYPE;
    if (menu.GetMenuItemInfo(position, &info, TRUE) && (info.fType & MFT_RADIOCHECK) != type) {
        info.fType ^= MFT_RADIOCHECK;
        menu.SetMenuItemInfo(position, &info, TRUE);
    }
    menu.CheckMenuItem(position, MF_BYPOSITION | (on ? MF_CHECKED : MF_UNCHECKED));
}

} // namespace

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
        if (!m_pSubMenu)
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
            mark(*m_pMenu, m_nIndex, check != 0, MFT_STRING);
        return;
    }
    if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON))
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

void CCmdUI::SetRadio(BOOL on)
{
    if (!m_pMenu)
        SetCheck(on ? 1 : 0);
    else if (!m_pSubMenu)
        mark(*m_pMenu, m_nIndex, on != FALSE, MFT_RADIOCHECK);
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
        return TRUE; // separators and labels have nothing to ask for
    m_bEnableChanged = FALSE;
    const BOOL handled = target->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (!handled && disableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
