// CFileDialog: the system's dialogs for opening and saving files.
#pragma once

#include <afx/CommonDialog.h>

#include <commdlg.h>
#include <shobjidl.h>

#include <memory>

/// Asks for a file to open or to save in, or for several to open.
///
/// There are two kinds. The classic dialog is tied to this object by a child dialog, empty or made from the
/// host's template: the object is that child's window, so that a derived class handles messages of its
/// controls, and the dialog itself is its parent. The newer one ("Vista style") has no such child: hosts add
/// controls through IFileDialogCustomize, and a derived class may answer IFileDialogControlEvents in its
/// interface map. While it is shown, the object stands for the dialog's window, but does not handle its
/// messages.
///
/// An exception other than CException that a handler raises closes the dialog as Cancel does, and comes out
/// of DoModal.
class OVOMFC_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// `defaultExtension` without a period; `filter` in pairs of description and patterns, each ended by "|",
    /// and one "|" more at the end. All texts are copied. `size` is that of the OPENFILENAME; 0 for the
    /// newest. The classic dialog is used where the newer one cannot be made.
    explicit CFileDialog(BOOL open, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);
    ~CFileDialog() override;
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;

    /// What the dialog starts with, to be changed before DoModal, and its result. For several files the host
    /// puts a buffer of its own into lpstrFile and nMaxFile. The object's own buffer grows with the result in
    /// the newer dialog; in one of the host that is too small the first character becomes the length needed,
    /// and DoModal gives IDCANCEL, as the classic dialog does.
    OPENFILENAME m_ofn{};
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME& GetOFN() { return m_ofn; }

    /// IDOK or IDCANCEL. Exceptions that handlers have raised come out of here.
    INT_PTR DoModal() override;

    // The file, while the dialog is shown and after IDOK. Of several files only the iteration gives the
    // names.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;   ///< Without the period.
    CString GetFileTitle() const; ///< Without folder and extension.
    /// Throws CNotSupportedException in the newer dialog.
    BOOL GetReadOnlyPref() const;

    POSITION GetStartPosition() const;
    /// The full path at the position, which goes on to the next file and becomes null after the last one.
    CString GetNextPathName(POSITION& position) const;

    // Only while the dialog is shown
    CString GetFolderPath() const;

    // The dialog's own controls, by their number in dlgs.h. In the newer dialog SetControlText knows IDOK and
    // the label of the file name (stc3); the rest throws CNotSupportedException there.
    void SetControlText(int id, LPCSTR text);
    void SetControlText(int id, const wchar_t* text);
    void HideControl(int id);
    void SetDefExt(LPCSTR extension); ///< Without a period.

    /// The template of the child dialog; the first argument is for dialogs without OFN_EXPLORER. Throws
    /// CNotSupportedException in the newer dialog.
    void SetTemplate(UINT oldStyle, UINT explorerStyle);
    void SetTemplate(LPCTSTR oldStyle, LPCTSTR explorerStyle);

    // Between m_ofn and the newer dialog. DoModal does both, and the latter also before OnFileNameOK.
    void ApplyOFNToShellDialog();
    void UpdateOFNFromShellDialog();

    // With a reference that the caller releases. Null in the classic dialog (after an assertion) and, of the
    // first two, in a dialog of the other kind.
    IFileOpenDialog* GetIFileOpenDialog();
    IFileSaveDialog* GetIFileSaveDialog();
    IFileDialogCustomize* GetIFileDialogCustomize();

protected:
    /// The user wants this file. Nonzero keeps the dialog open.
    virtual BOOL OnFileNameOK();
    /// The chosen file is in use: OFN_SHAREWARN, OFN_SHARENOWARN or OFN_SHAREFALLTHROUGH. Not called with
    /// OFN_SHAREAWARE.
    virtual UINT OnShareViolation(LPCTSTR path);
    virtual void OnLBSelChangedNotify(UINT box, UINT selection, UINT code); ///< Old style only.
    virtual void OnInitDone();
    virtual void OnFileNameChange(); ///< Another file is selected.
    virtual void OnFolderChange();
    virtual void OnTypeChange();

    // Controls that the host has added to the newer dialog
    virtual void OnItemSelected(DWORD control, DWORD item);
    virtual void OnButtonClicked(DWORD control);
    virtual void OnCheckButtonToggled(DWORD control, BOOL checked);
    virtual void OnControlActivating(DWORD control);

    BOOL OnInitDialog() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg LRESULT HandleFileOk(WPARAM, LPARAM);
    afx_msg LRESULT HandleSelectionChange(WPARAM box, LPARAM selectionAndCode);
    afx_msg LRESULT HandleShareViolation(WPARAM, LPARAM path);
    DECLARE_MESSAGE_MAP()
    DECLARE_INTERFACE_MAP()

    BOOL m_bOpenFileDialog;
    BOOL m_bVistaStyle = FALSE;                              ///< the newer dialog is in use
    IFileDialog* m_pIFileDialog = nullptr;                   ///< null in the classic dialog
    IFileDialogCustomize* m_pIFileDialogCustomize = nullptr; ///< likewise

private:
    BEGIN_INTERFACE_PART(FileDialogEvents, IFileDialogEvents)
    STDMETHOD(OnFileOk)(IFileDialog*) override;
    STDMETHOD(OnFolderChanging)(IFileDialog*, IShellItem*) override;
    STDMETHOD(OnFolderChange)(IFileDialog*) override;
    STDMETHOD(OnSelectionChange)(IFileDialog*) override;
    STDMETHOD(OnShareViolation)
    (IFileDialog*, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* response) override;
    STDMETHOD(OnTypeChange)(IFileDialog*) override;
    STDMETHOD(OnOverwrite)(IFileDialog*, IShellItem* item, FDE_OVERWRITE_RESPONSE* response) override;
    END_INTERFACE_PART(FileDialogEvents)

    BEGIN_INTERFACE_PART(FileDialogControlEvents, IFileDialogControlEvents)
    STDMETHOD(OnItemSelected)(IFileDialogCustomize*, DWORD control, DWORD item) override;
    STDMETHOD(OnButtonClicked)(IFileDialogCustomize*, DWORD control) override;
    STDMETHOD(OnCheckButtonToggled)(IFileDialogCustomize*, DWORD control, BOOL checked) override;
    STDMETHOD(OnControlActivating)(IFileDialogCustomize*, DWORD control) override;
    END_INTERFACE_PART(FileDialogControlEvents)

    class ClassicChild;
    friend class ClassicChild;
    struct Data;

    bool isAsking() const;     ///< whether the dialog is shown and has not got its result yet
    HWND dialogWindow() const; ///< the classic dialog itself
    LPCTSTR nameInBuffer() const;

    // The classic dialog
    INT_PTR showClassicDialog(HWND owner);
    bool fileIsRefused();

    // The newer dialog
    void makeShellDialog();
    INT_PTR showShellDialog(HWND owner);
    void standForShellDialog();
    void applyFolderAndName();
    bool storePaths();
    template <class Handler>
    HRESULT answerEvent(Handler&& handler, HRESULT failure = E_UNEXPECTED);

    std::unique_ptr<Data> m_data;
};
