/// The dialogs for opening and saving files, with controls of the host.
///
///     class SaveDialog : public COVOFileDialog
///     {
///     public:
///         explicit SaveDialog(const CDialog& controls, BOOL newStyle)
///             : COVOFileDialog(FALSE, L"txt", nullptr, OFN_HIDEREADONLY, L"Text|*.txt||", nullptr, newStyle)
///         {
///             if (IsVistaStyle())
///                 AddCheckButton(controls, IDC_BACKUP, true);
///             else
///                 ofn->Flags |= OFN_ENABLETEMPLATE, ofn->lpTemplateName = MAKEINTRESOURCE(IDD_CONTROLS);
///         }
///     protected:
///         BOOL OnFileNameOK(BOOL refused) override { m_backup = GetCheckButtonState(IDC_BACKUP); return
///         refused; }
///     };
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

#include <commdlg.h>

#include <string>
#include <vector>

class COVOFileDialogImp;

/// Hides which of the system's two file dialogs is in use. The new-style dialog gets its controls by the Add
/// operations, between construction and the end of DoModal; the classic one has them in the host's child
/// template. The identifiers are the same, and so are the handlers.
///
/// What a handler throws closes the dialog and comes out of DoModal; a CException is reported, and refuses
/// the file when OnFileNameOK has thrown it.
///
/// An object must not be copied: copies share what the first destructor deletes.
class OVOUI_API COVOFileDialog
{
public:
    /// The arguments are those of CFileDialog. Where there is no new-style dialog the classic one is used.
    COVOFileDialog(BOOL bOpenFileDialog, LPCWSTR lpszDefExt, LPCWSTR lpszFileName, DWORD dwFlags,
                   LPCWSTR lpszFilter, CWnd* pParentWnd, BOOL bVistaStyle);
    COVOFileDialog(const COVOFileDialog&) = default;
    virtual ~COVOFileDialog();

    /// IDOK or IDCANCEL.
    virtual INT_PTR DoModal() const;

protected:
    // Classic only, from the child dialog of the host's template
    virtual BOOL OnHelpInfo(HELPINFO* pHelpInfo, BOOL bHandled); ///< Gives whether help was shown.
    virtual void OnSize(UINT nType, int cx, int cy);
    virtual BOOL OnInitDialog(); ///< FALSE when it has set the focus.

    // Both
    /// TRUE refuses the file; `bResult` is what would be given otherwise.
    virtual BOOL OnFileNameOK(BOOL bResult);
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnInitDone();
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnTypeChange();
    /// Classic only: once, when the dialog is shown.
    virtual LRESULT OnPostInit(WPARAM wParam, LPARAM lParam);

    // The host's controls. On the classic path the item is the index; a push button is told as a check
    // button, unless AddPushButton has named it.
    virtual void OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem);
    virtual void OnButtonClicked(DWORD dwIDCtl);
    virtual void OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked);
    virtual void OnControlActivating(DWORD dwIDCtl); ///< New style, and menus of AddMenu.
    virtual void OnEnChange(DWORD dwIDCtl);          ///< Classic only.

private:
    friend class COVOFileDialogImp;
    COVOFileDialogImp* m_imp;

public:
    OPENFILENAME* ofn; ///< To be changed before DoModal; lives as long as this object.

    bool IsVistaStyle() const;
    /// On the classic path the child dialog with the host's controls.
    CWnd* DialogWnd() const;

    // As those of CFileDialog
    CString GetPathName() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    // As those of CWnd, on the classic path
    CWnd* GetDlgItem(int nID) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const;
    int GetDlgItemText(int nID, LPWSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);

    // New style only: it is an error of the host to call them on the classic path. `dlg` is a dialog of the
    // template that the classic path has; its window must exist, since the labels are the texts of its
    // controls.
    void AddCheckButton(const CDialog& dlg, DWORD id, bool checked);
    /// With the text of `labelId` in front of it.
    void AddComboBox(const CDialog& dlg, DWORD labelId, DWORD comboId);
    void AddComboBox(DWORD id);
    /// `textId` gives the text to begin with; 0 for none.
    void AddEditBox(const CDialog& dlg, DWORD textId, DWORD editId);
    void AddControlItem(DWORD id, DWORD itemId, std::wstring label);
    void StartVisualGroup(DWORD id, const std::wstring& label);
    void EndVisualGroup();
    void SetSelectedControlItem(DWORD id, DWORD itemId);

    // Both
    /// Of a combo box: the item, or 0; on the classic path the index, or CB_ERR.
    LONG_PTR GetSelectedControlItem(DWORD id) const;
    bool GetCheckButtonState(DWORD id) const;
    void SetControlState(DWORD id, bool enabled, bool visible);
    bool GetControlStateVisible(DWORD id) const;
    std::wstring GetEditBoxText(DWORD id) const;
    int GetEditBoxInt(DWORD id) const; ///< The number at the beginning of the text; 0 without one.
    void SetEditBoxInt(DWORD id, int value);
    // Further controls, for both. The classic dialog has them in its template; there these operations say
    // what they are, so that the handlers are the same.
    /// Told by OnButtonClicked.
    void AddPushButton(const CDialog& dlg, DWORD id);
    /// A button that opens a menu; OnControlActivating comes before, and OnItemSelected tells the choice. In
    /// the template it is a push button.
    void AddMenu(const CDialog& dlg, DWORD id);
    void AddMenuItem(DWORD id, DWORD itemId, const std::wstring& label);
    /// Radio buttons of the template; OnItemSelected tells the group's `id` and the button's.
    void AddRadioGroup(const CDialog& dlg, DWORD id, const std::vector<DWORD>& buttonIds);
    void AddSeparator(DWORD id);
    void AddText(const CDialog& dlg, DWORD id);
    DWORD GetSelectedRadioButton(DWORD id) const; ///< 0 for none.
    void SetSelectedRadioButton(DWORD id, DWORD buttonId);

    // Folders, to be called before DoModal
    /// Offers a folder beside those of the system; new style only, nothing on the classic path.
    void AddPlace(const std::wstring& path, bool top = false);
    /// Where to begin when nothing is remembered and no folder is given otherwise.
    void SetDefaultFolder(const std::wstring& path);
    /// Begins where the user took a file last for this purpose: remembered by the system for the new-style
    /// dialog, in the application's profile, section "settings", for the classic one. `lpstrInitialDir` goes
    /// before it.
    void RememberFolder(const GUID& purpose);

    /// Where the new-style dialog goes; nothing happens on the classic path, and for a folder that does not
    /// exist.
    void SetFolder(const std::wstring& path);
};
