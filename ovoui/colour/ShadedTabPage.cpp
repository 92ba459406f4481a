#include <ovoui/colour/ShadedTabPage.h>

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/core/TabStep.h>

using namespace ovoui::frame;

namespace
{

bool isForDialogAround(const MSG& message)
{
    const auto key = static_cast<unsigned>(message.wParam);
    return message.message == WM_KEYDOWN &&
           (key == VK_RETURN || key == VK_ESCAPE || tabDirection(key, heldKeysNow()));
}

/// The page of a tab, or null.
HWND pageOf(HWND tabs, int index)
{
    TCITEMW item{};
    item.mask = TCIF_PARAM;
    if (!::SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)))
        return nullptr;
    const auto page = reinterpret_cast<HWND>(item.lParam);
    return page && ::GetParent(page) == tabs ? page : nullptr;
}

/// A page that goes out of sight gives the keyboard to the one that is shown, else to the tabs.
void hide(HWND page, HWND shown, HWND tabs)
{
    if (::IsChild(page, ::GetFocus())) {
        const HWND next = shown ? ::GetNextDlgTabItem(shown, nullptr, FALSE) : nullptr;
        CWnd::FromHandle(next ? next : tabs)->SetFocus();
    }
    if (::IsWindow(page)) // which may go when the focus does
        CWnd::FromHandle(page)->ShowWindow(SW_HIDE);
}

} // namespace

IMPLEMENT_DYNAMIC(CShadedTabPage, CDialog)

BEGIN_MESSAGE_MAP(CShadedTabPage, CDialog)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

BOOL CShadedTabPage::AddTo(CTabCtrl& tabs, UINT templateId, LPCTSTR title)
{
    if (!Create(templateId, &tabs))
        return FALSE;
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = const_cast<LPTSTR>(title);
    item.lParam = reinterpret_cast<LPARAM>(m_hWnd);
    if (tabs.InsertItem(tabs.GetItemCount(), &item) == -1) {
        DestroyWindow();
        return FALSE;
    }
    CRect place;
    tabs.GetClientRect(&place);
    tabs.AdjustRect(FALSE, &place); // with the tabs, which may be the first
    MoveWindow(&place);
    ShowChosen(tabs);
    return TRUE;
}

void CShadedTabPage::ShowChosen(CTabCtrl& tabs)
{
    const HWND wnd = tabs.m_hWnd; // which a page may destroy when it hears that it is shown
    const HWND shown = pageOf(wnd, tabs.GetCurSel());
    if (shown)
        CWnd::FromHandle(shown)->ShowWindow(SW_SHOW);
    for (int i = 0; ::IsWindow(wnd) && i < tabs.GetItemCount(); ++i)
        if (const HWND page = pageOf(wnd, i); page && page != shown)
            hide(page, shown, wnd);
}

BOOL CShadedTabPage::PreTranslateMessage(MSG* message)
{
    return isForDialogAround(*message) ? FALSE : CDialog::PreTranslateMessage(message);
}

void CShadedTabPage::OnOK() {}

void CShadedTabPage::OnCancel() {}

HBRUSH CShadedTabPage::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    return CShadedTabCtrl::AmendCtlColor(dc, control, type, CDialog::OnCtlColor(dc, control, type));
}
