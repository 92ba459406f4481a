/// A dialog on a tab control, whose shaded page shows through it.
///
///     m_general.AddTo(m_tabs, IDD_GENERAL, L"General"); // in OnInitDialog; each adds its tab
///     m_paths.AddTo(m_tabs, IDD_PATHS, L"Paths");
///
///     void OptionsDlg::OnTab(NMHDR*, LRESULT*) // ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, ...)
///     {
///         CShadedTabPage::ShowChosen(m_tabs);
///     }
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>
#include <afxwin.h>

/// The template is a child without a border (DS_CONTROL | WS_CHILD), hidden. The page belongs to the host and
/// lives as long as the tab control's window. Enter and Escape are left to the dialog around it.
///
/// Tab leads to the controls of the page when the tab control has the style WS_EX_CONTROLPARENT; then it
/// stops at the tabs no more, which PreTranslateTabControl turns by Ctrl+Tab.
///
/// With a CShadedTabCtrl the shade shows through; pages on a plain tab control look as dialogs do.
class OVOUI_API CShadedTabPage : public CDialog
{
    DECLARE_DYNAMIC(CShadedTabPage)

public:
    /// Adds a tab with the text `title` at the end of `tabs`, and makes the page of the template `templateId`
    /// in its area. It is shown when its tab is the chosen one, as the first is. The item's parameter
    /// (TCIF_PARAM) holds the page's window. FALSE, without a tab and a window, when either cannot be made.
    BOOL AddTo(CTabCtrl& tabs, UINT templateId, LPCTSTR title);

    /// Shows the page of the chosen tab of `tabs` and hides the others; tabs without a page are left out. A
    /// page that had the focus gives it to the first control of the one that is shown.
    static void ShowChosen(CTabCtrl& tabs);

protected:
    /// Enter, Escape and the keys that turn the tabs are left to the dialog around the page.
    BOOL PreTranslateMessage(MSG* message) override;
    /// Enter closes the dialog around the page, not the page.
    void OnOK() override;
    void OnCancel() override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()
};
