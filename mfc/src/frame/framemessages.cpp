// CFrameWnd: menu updates, the message line, tooltips.
#include <afxext.h>
#include <afxpriv.h>

#include "../menu/trackedmenu.h"

namespace
{

constexpr UINT kPopup = static_cast<UINT>(-1); // the id of an item that opens a popup

// The system menu's commands; the low four bits are the system's own.
constexpr UINT kFirstSystemCommand = 0xF000;
constexpr UINT kLastSystemCommand = 0xF1EF;

/// The command that stands for a popup: the first item of it; 0 for none.
UINT idOfPopup(CMenu* popup)
{
    if (!popup || popup->GetMenuItemCount() <= 0)
        return 0;
    const UINT id = popup->GetMenuItemID(0);
    return id == kPopup ? 0 : id;
}

void update(CCmdUI& ui, CFrameWnd& frame)
{
    CMenu& menu = *ui.m_pMenu;
    const int position = static_cast<int>(ui.m_nIndex);
    ui.m_pSubMenu = nullptr;
    ui.m_nID = menu.GetMenuItemID(position);
    if (ui.m_nID != kPopup) {
        ui.DoUpdate(&frame, frame.m_bAutoMenuEnable);
        return;
    }
    ui.m_pSubMenu = menu.GetSubMenu(position);
    ui.m_nID = idOfPopup(ui.m_pSubMenu);
    ui.DoUpdate(&frame, FALSE); // a popup is not disabled for what its first item lacks
}

/// After a handler that has changed the menu: the last item that is done with, so that the next one has its
/// turn.
int positionAfter(const CCmdUI& ui, int countBefore)
{
    const int count = ui.m_pMenu->GetMenuItemCount();
    int position = static_cast<int>(ui.m_nIndex);
    if (count >= countBefore)
        return position;
    position = std::max(-1, position - (countBefore - count));
    while (position >= 0 && position < count && ui.m_pMenu->GetMenuItemID(position) == ui.m_nID)
        ++position;
    return position;
}

/// The string that explains a menu item; 0 for none.
UINT promptOf(UINT id, UINT flags)
{
    if (id == 0 || (flags & (MF_SEPARATOR | MF_POPUP)))
        return 0;
    if (id >= kFirstSystemCommand && id <= kLastSystemCommand)
        return AFX_IDS_SCFIRST + (id - kFirstSystemCommand) / 16;
    return id;
}

bool isLockedOn(int key)
{
    return (::GetKeyState(key) & 1) != 0;
}

} // namespace

// Menus

void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT, BOOL sysMenu)
{
    if (sysMenu || !menu)
        return;
    CCmdUI ui;
    ui.m_pMenu = menu;
    ui.m_pParentMenu = CMenu::FromHandle(afxdetail::menuAbove(menu->m_hMenu, m_hWnd));
    int count = menu->GetMenuItemCount();
    for (int position = 0; position < count; ++position) {
        ui.m_nIndex = static_cast<UINT>(position);
        ui.m_nIndexMax = static_cast<UINT>(count);
        update(ui, *this);
        position = positionAfter(ui, count);
        count = menu->GetMenuItemCount();
    }
}

void CFrameWnd::OnMenuSelect(UINT id, UINT flags, HMENU menu)
{
    const bool closed = flags == 0xFFFF && !menu;
    m_nIDTracking = closed ? AFX_IDS_IDLEMESSAGE : promptOf(id, flags);
    if (m_nIDTracking != m_nIDLastMessage && GetMessageBar())
        PostMessage(WM_SETMESSAGESTRING, m_nIDTracking, 0);
}

void CFrameWnd::OnEnterIdle(UINT why, CWnd*)
{
    if (why == MSGF_MENU && m_nIDTracking != m_nIDLastMessage)
        SetMessageText(m_nIDTracking);
}

// The message line

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

/// Ends a text that was put on the message line for a while.
LRESULT CFrameWnd::OnPopMessageString(WPARAM id, LPARAM text)
{
    return SendMessage(WM_SETMESSAGESTRING, id, text);
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* ui)
{
    switch (ui->m_nID) {
    case ID_INDICATOR_CAPS:
        ui->Enable(isLockedOn(VK_CAPITAL));
        break;
    case ID_INDICATOR_NUM:
        ui->Enable(isLockedOn(VK_NUMLOCK));
        break;
    case ID_INDICATOR_SCRL:
        ui->Enable(isLockedOn(VK_SCROLL));
        break;
    default:
        ui->ContinueRouting();
    }
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
