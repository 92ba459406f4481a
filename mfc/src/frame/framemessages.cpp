// CFrameWnd: menu updates, the message line, tooltips.
#include <afxext.h>
#include <afxpriv.h>

namespace
{

/// The command that stands for a popup: the first item of it.
UINT idOfPopup(CMenu* popup)
{
    if (!popup || popup->GetMenuItemCount() <= 0)
        return 0;
    const UINT id = popup->GetMenuItemID(0);
    return id == static_cast<UINT>(-1) ? 0 : id;
}

/// The menu that a popup hangs in, searched from the frame's menu bar; null for a context menu.
CMenu* parentOf(CMenu* menu, HMENU popup)
{
    if (!menu)
        return nullptr;
    for (int i = 0; i < menu->GetMenuItemCount(); ++i) {
        CMenu* sub = menu->GetSubMenu(i);
        if (!sub)
            continue;
        if (sub->m_hMenu == popup)
            return menu;
        if (CMenu* found = parentOf(sub, popup))
            return found;
    }
    return nullptr;
}

} // namespace

void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT, BOOL sysMenu)
{
    if (sysMenu || !menu)
        return;
    CCmdUI ui;
    ui.m_pMenu = menu;
    ui.m_pParentMenu = parentOf(GetMenu(), menu->m_hMenu);
    ui.m_nIndexMax = static_cast<UINT>(menu->GetMenuItemCount());
    for (ui.m_nIndex = 0; ui.m_nIndex < ui.m_nIndexMax; ++ui.m_nIndex) {
        ui.m_nID = menu->GetMenuItemID(static_cast<int>(ui.m_nIndex));
        if (ui.m_nID == 0)
            continue; // a separator
        if (ui.m_nID == static_cast<UINT>(-1)) {
            ui.m_pSubMenu = menu->GetSubMenu(static_cast<int>(ui.m_nIndex));
            ui.m_nID = idOfPopup(ui.m_pSubMenu);
            if (ui.m_nID == 0)
                continue;
            ui.DoUpdate(this, FALSE);
        } else {
            ui.m_pSubMenu = nullptr;
            ui.DoUpdate(this, m_bAutoMenuEnable);
        }
        // A handler may have put items in or taken some out: go on behind what it has made.
        const auto count = static_cast<UINT>(menu->GetMenuItemCount());
        if (count < ui.m_nIndexMax) {
            ui.m_nIndex -= ui.m_nIndexMax - count;
            while (ui.m_nIndex < count && menu->GetMenuItemID(static_cast<int>(ui.m_nIndex)) == ui.m_nID)
                ++ui.m_nIndex;
        }
        ui.m_nIndexMax = count;
    }
}

void CFrameWnd::OnMenuSelect(UINT id, UINT flags, HMENU menu)
{
    if (flags == 0xFFFF && !menu)
        m_nIDTracking = AFX_IDS_IDLEMESSAGE; // the menu is closed
    else if (id == 0 || (flags & (MF_SEPARATOR | MF_POPUP | MF_SYSMENU)))
        m_nIDTracking = 0;
    else
        m_nIDTracking = id;

    if (m_nIDTracking != m_nIDLastMessage && GetMessageBar())
        PostMessage(WM_SETMESSAGESTRING, m_nIDTracking, 0);
}

void CFrameWnd::OnEnterIdle(UINT why, CWnd*)
{
    if (why == MSGF_MENU && m_nIDTracking != m_nIDLastMessage)
        SetMessageText(m_nIDTracking);
}

void CFrameWnd::GetMessageString(UINT id, CString& message) const
{
    message.Empty();
    CString full;
    if (id != 0 && full.LoadString(id))
        AfxExtractSubString(message, full, 0); // what follows the line feed is the tooltip
}

void CFrameWnd::SetMessageText(LPCTSTR text)
{
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(text));
}

void CFrameWnd::SetMessageText(UINT id)
{
    SendMessage(WM_SETMESSAGESTRING, id, 0);
}

CWnd* CFrameWnd::GetMessageBar()
{
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM id, LPARAM text)
{
    const UINT before = m_nIDLastMessage;
    CString message;
    if (text)
        message = reinterpret_cast<LPCTSTR>(text);
    else
        GetMessageString(static_cast<UINT>(id), message);
    if (CWnd* bar = GetMessageBar())
        bar->SetWindowText(message);
    m_nIDLastMessage = static_cast<UINT>(id);
    m_nIDTracking = static_cast<UINT>(id);
    return static_cast<LRESULT>(before);
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM id, LPARAM text)
{
    return SendMessage(WM_SETMESSAGESTRING, id, text);
}

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* header, LRESULT* result)
{
    auto* tip = reinterpret_cast<NMTTDISPINFOW*>(header);
    UINT id = static_cast<UINT>(header->idFrom);
    if (tip->uFlags & TTF_IDISHWND)
        id = static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom))) & 0xFFFF;
    CString full;
    CString text;
    if (id == 0 || !full.LoadString(id) || !AfxExtractSubString(text, full, 1))
        return FALSE;
    ::lstrcpynW(tip->szText, text, static_cast<int>(std::size(tip->szText)));
    *result = 0;
    return TRUE;
}
