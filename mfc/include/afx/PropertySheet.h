// CPropertySheet: a dialog of several pages.
#pragma once

#include <afx/PropertyPage.h>

#include <vector>

class CTabCtrl;

// The controls of a sheet beside IDOK, IDCANCEL and IDHELP. DoModal of a wizard gives ID_WIZFINISH.
#define AFX_IDC_TAB_CONTROL 0x3020
#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025

/// A dialog that shows one of several pages at a time, chosen by tabs, or one after the other as a wizard.
///
///     CPropertySheet sheet(L"Options");
///     sheet.AddPage(&general);
///     sheet.AddPage(&colours);
///     if (sheet.DoModal() == IDOK)
///         store(general.m_name, colours.m_colour);
///
/// The pages are the host's and must live as long as the sheet is shown. Exceptions that their handlers raise
/// close a modal sheet and come out of DoModal, as with CDialog.
class OVOMFC_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet(); ///< To be followed by Construct.
    /// Texts are copied. Without a parent the main window is the owner of a modal sheet. `selectPage` is the
    /// page shown first.
    explicit CPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    explicit CPropertySheet(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    /// With pictures for a wizard with PSH_WIZARD97 in m_psh; they stay the caller's.
    CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE palette = nullptr, HBITMAP header = nullptr);
    CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE palette = nullptr, HBITMAP header = nullptr);
    ~CPropertySheet() override;

    void Construct(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    void Construct(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    void Construct(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE palette = nullptr, HBITMAP header = nullptr);
    void Construct(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                   HPALETTE palette = nullptr, HBITMAP header = nullptr);

    /// What the sheet starts with, to be changed before it is shown. Pages, owner and PSH_MODELESS are the
    /// framework's. PSH_HASHELP is set when the program handles ID_HELP.
    PROPSHEETHEADER m_psh{};

    /// Shows the sheet, with its owner disabled, and waits until it is closed. Gives IDOK, ID_WIZFINISH or
    /// IDCANCEL, or what EndDialog was given; -1 when the sheet cannot be made or is destroyed.
    virtual INT_PTR DoModal();
    /// Closes a modal sheet when the handler that calls it returns.
    void EndDialog(int result);
    /// Modeless, without a parent on the desktop. The sheet has no buttons, unless it is a wizard. The close
    /// box, a wizard's Finish and Cancel, and PressButton destroy the window when no page refuses. A `style`
    /// of -1 is a dialog's with a caption, shown. FALSE when the sheet cannot be made.
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = static_cast<DWORD>(-1), DWORD exStyle = 0);

    // Pages, also while the sheet is shown
    void AddPage(CPropertyPage* page); ///< Throws CResourceException when a shown sheet cannot take it.
    void RemovePage(CPropertyPage* page);
    void RemovePage(int index);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CPropertyPage* GetPage(int index) const;
    int GetPageIndex(CPropertyPage* page); ///< -1 when it is not in the sheet.
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const; ///< Null when there is no page.
    /// FALSE when there is no such page, or the active one does not let go. Before the sheet is shown: the
    /// page shown first.
    BOOL SetActivePage(int index);
    BOOL SetActivePage(CPropertyPage* page);

    // How it looks
    void SetTitle(LPCTSTR text, UINT style = 0); ///< `style`: PSH_PROPTITLE or 0.
    void EnableStackedTabs(BOOL stacked);        ///< Only before the sheet is shown.
    void SetWizardMode();                        ///< Likewise.

    // Only while the sheet is shown
    void SetWizardButtons(DWORD buttons); ///< PSWIZB_ bits. Takes effect a moment later.
    void SetFinishText(LPCTSTR text);     ///< The button ends the wizard; Back and Next go.
    void PressButton(int button);         ///< PSBTN_..., as if the user pressed it a moment later.
    CTabCtrl* GetTabControl() const;
    void MapDialogRect(LPRECT rect) const; ///< From dialog units to pixels.

    /// Called before the sheet is shown; makes the first page. An override calls this first.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

protected:
    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM);
    afx_msg void OnClose();
    afx_msg LRESULT OnPressButton(WPARAM button, LPARAM);
    afx_msg LRESULT OnKickIdle(WPARAM source, LPARAM count);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;
    struct Creation;
    static int CALLBACK callback(HWND wnd, UINT message, LPARAM lParam);

    HWND createWindow(const Creation& creation);
    bool createHandles(std::vector<HPROPSHEETPAGE>& handles) const;
    INT_PTR runModal(HWND owner);
    bool isModal() const;
    bool isWizard() const;
    void setCaption(LPCTSTR caption);
    void hideButtons();
    void keepFocus();
    void passOnAndClose(int button);

    std::vector<CPropertyPage*> m_pages;
    CString m_caption;
    CWnd* m_parent = nullptr;
    bool m_stackedTabs = true;
};
