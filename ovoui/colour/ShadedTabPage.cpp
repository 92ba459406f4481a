#include <ovoui/colour/ShadedTabPage.h>

#include <ovoui/colour/ShadedTabCtrl.h>

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
    const int chosen = tabs.GetCurSel();
    for (int i = 0; ::IsWindow(wnd) && i < tabs.GetItemCount(); ++i) {
        TCITEMW item{};
        item.mask = TCIF_PARAM;
        const HWND page = tabs.GetItem(i, &item) ? reinterpret_cast<HWND>(item.lParam) : nullptr;
        if (page && ::GetParent(page) == wnd)
            ::ShowWindow(page, i == chosen ? SW_SHOW : SW_HIDE);
    }
}

void CShadedTabPage::OnOK() {}

void CShadedTabPage::OnCancel() {}

HBRUSH CShadedTabPage::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    return CShadedTabCtrl::AmendCtlColor(dc, control, type, CDialog::OnCtlColor(dc, control, type));
}
