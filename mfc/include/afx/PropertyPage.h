// CPropertyPage: a page of a property sheet.
#pragma once

#include <afx/Dialog.h>

#include <commctrl.h>
#include <prsht.h>

class CPropertySheet;

/// A dialog that is one page of a CPropertySheet, with tabs or as a step of a wizard.
///
/// The window is made when the user comes to the page for the first time, and goes with the sheet; the object
/// is the host's. Handlers are called by the sheet. When one raises an exception, what it was asked for is
/// refused: a CException is reported, any other comes out of the call that led there, in the end out of
/// DoModal of the sheet.
class OVOMFC_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage(); ///< To be followed by Construct.
    /// The caption is a string's number; 0 takes the title of the template. The template and the strings are
    /// found along the resource chain. A template's name is not copied. `size` is that of the PROPSHEETPAGE.
    explicit CPropertyPage(UINT templateId, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR templateName, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    /// With title and subtitle for the header of a wizard; 0 for none.
    CPropertyPage(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0,
                  DWORD size = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0,
                  DWORD size = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    void Construct(UINT templateId, UINT captionId = 0);
    void Construct(LPCTSTR templateName, UINT captionId = 0);
    void Construct(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0);
    void Construct(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId = 0);

    /// What the page starts with, to be changed before the sheet is shown. Without hInstance the template is
    /// looked for along the resource chain. The dialog procedure, the callback and lParam are the
    /// framework's. PSP_HASHELP is set when the program handles ID_HELP.
    PROPSHEETPAGE m_psp{};
    const PROPSHEETPAGE& GetPSP() const { return m_psp; }
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    // Only while the sheet is shown
    /// Whether the page has something to apply, which enables the button for it.
    void SetModified(BOOL changed = TRUE);
    /// Makes OK "Close" and disables Cancel, after a change that cannot be undone. Does nothing in a modeless
    /// sheet.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS to the pages that have a window, until one gives a result other than 0, which
    /// is the result here.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    // What a page overrides
    /// The user comes to the page. FALSE goes on to the next one. Fills the controls with UpdateData.
    virtual BOOL OnSetActive();
    /// The user leaves the page, or wants to apply. FALSE stays. Reads the controls with UpdateData.
    virtual BOOL OnKillActive();
    /// OK or Apply, for every page that has a window. FALSE keeps the sheet open, at this page. Calls OnOK.
    virtual BOOL OnApply();
    /// Cancel or the close box, for every page that has a window, before OnCancel.
    virtual void OnReset();
    /// OK or Apply, unless OnApply is overridden otherwise. Takes back SetModified.
    void OnOK() override;
    /// Cancel or the close box.
    void OnCancel() override;
    /// Cancel or the close box, for the active page: FALSE keeps the sheet open.
    virtual BOOL OnQueryCancel();

    // The buttons of a wizard. 0 goes to the previous or the next page, -1 stays, the number of a template
    // goes to the page that is made from it.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// FALSE keeps the wizard open. Reads the controls with UpdateData.
    virtual BOOL OnWizardFinish();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    friend class CPropertySheet;

    HPROPSHEETPAGE createHandle();
    CPropertySheet* sheet() const;
    bool answerSheet(const NMHDR& notification, LRESULT& result);
    void reset();

    CString m_caption;
    CString m_headerTitle;
    CString m_headerSubTitle;
    bool m_shownBefore = false; ///< since the window was made
};
