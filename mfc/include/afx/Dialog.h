// CDialog: a dialog box.
#pragma once

#include <afx/Wnd.h>

/// A dialog made from a template: a resource, found along the resource chain, or a block of memory.
///
/// A modal dialog lives on the stack and is closed by EndDialog. A modeless one is closed by DestroyWindow: a
/// class for modeless dialogs overrides OnOK and OnCancel to call that, and, when its objects are made with
/// new, PostNcDestroy to delete the object.
class OVOMFC_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    /// For modal dialogs. Without a parent the main window is the owner. The help id is the template's
    /// number.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    /// The name is not copied.
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    CDialog();
    ~CDialog() override;

    // Modeless. FALSE when there is no such template or the window cannot be created. Without a parent the
    // main window is the owner.
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    /// `dialogInit` is the contents of a DLGINIT resource, or null.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr,
                                void* dialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);

    // Modal. The memory is the caller's, and must stay until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* dialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    /// Shows the dialog, with its owner disabled, and waits until it is closed. Gives what EndDialog was
    /// given; -1 when the dialog cannot be created, IDABORT when it goes without EndDialog. An exception
    /// other than CException that a handler raises closes the dialog and comes out of here.
    virtual INT_PTR DoModal();
    /// Closes a modal dialog when the handler that calls it returns; only hides a modeless one. A dialog that
    /// calls it in OnInitDialog is never shown.
    void EndDialog(int result);

    // Moving the focus, with the default button following it
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* control);

    void SetDefID(UINT id);
    DWORD GetDefID() const; ///< Low word the default button, high word DC_HASDEFID; 0 for none.
    void SetHelpID(UINT id) { m_nIDHelp = id; }
    void MapDialogRect(LPRECT rect) const; ///< From dialog units to pixels.

    /// Called before the dialog is shown; fills the controls with UpdateData. An override calls this first.
    /// It gives FALSE only when it has set the focus itself.
    virtual BOOL OnInitDialog();
    /// Called with the font that the dialog's controls get.
    virtual void OnSetFont(CFont* font);

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    /// Whether the dialog is centred on its owner after OnInitDialog: when its template gives 0, 0 as the
    /// place and has none of DS_ABSALIGN, DS_CENTER and DS_CENTERMOUSE, and it is no child window. A dialog
    /// that OnInitDialog has moved or shown is not centred.
    BOOL CheckAutoCenter() override;

protected:
    /// The button IDOK, or Enter: reads the controls with UpdateData and, if all are valid, ends with IDOK.
    virtual void OnOK();
    /// The button IDCANCEL, Escape, or the close box: ends with IDCANCEL.
    virtual void OnCancel();

    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM);
    afx_msg LRESULT HandleSetFont(WPARAM font, LPARAM);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM);
    afx_msg LRESULT OnHelpHitTest(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    // Around a modal system dialog: gives its owner, with the top-level window above that one disabled.
    HWND PreModal();
    void PostModal();

    UINT m_nIDHelp = 0; ///< 0: no help
    LPCTSTR m_lpszTemplateName = nullptr;
    CWnd* m_pParentWnd = nullptr;

private:
    INT_PTR runModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance, HWND owner);
    HWND createWindow(LPCDLGTEMPLATE dialogTemplate, HWND owner, HINSTANCE instance);
    bool createModeless(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance);

    LPCDLGTEMPLATE m_template = nullptr; ///< of InitModalIndirect
    HGLOBAL m_templateHandle = nullptr;  ///< likewise
    const void* m_dialogInit = nullptr;  ///< DLGINIT data given with a template in memory
    bool m_shownWhenMade = false;        ///< its template says WS_VISIBLE
    bool m_placeLeftOpen = false;        ///< its template gives no place
    HWND m_disabledTopLevel = nullptr;   ///< between PreModal and PostModal
};
