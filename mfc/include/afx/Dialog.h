// CDialog: a dialog box.
#pragma once

#include <afx/Wnd.h>

/// A dialog made from a template that is found along the resource chain.
class OVOMFC_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    ~CDialog() override;

    // Modeless. FALSE on failure.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr,
                        HINSTANCE instance = nullptr);
    BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr, HINSTANCE instance = nullptr);

    // Modal
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* init = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    /// Shows the dialog and waits. Gives what EndDialog was given, -1 when the dialog cannot be created.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog when the handler that calls it returns; hides a modeless one. From OnInitDialog: the
    /// dialog is never shown.
    void EndDialog(int result);

    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* control);
    void SetDefID(UINT id);
    DWORD GetDefID() const;
    void SetHelpID(UINT id) { m_nIDHelp = id; }
    void MapDialogRect(LPRECT rect) const;

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

    /// Called before the dialog is shown. FALSE when it has set the focus itself.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* font);

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog();

    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM);
    afx_msg LRESULT OnCommandHelp(WPARAM, LPARAM);
    afx_msg LRESULT OnHelpHitTest(WPARAM, LPARAM);
    afx_msg LRESULT HandleSetFont(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr; ///< disabled while the dialog is modal

private:
    HWND PreModal();
    void PostModal();
    INT_PTR runModal(LPCDLGTEMPLATE dialogTemplate, HINSTANCE instance, HWND owner);
    bool createWindow(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance);
};
