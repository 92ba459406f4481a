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
///         BOOL OnFileNameOK(BOOL refused) override
///         {
///             m_backup = GetCheckButtonState(IDC_BACKUP);
///             return refused;
///         }
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
    /// The arguments `bOpenFileDialog`, `lpszDefExt`, `lpszFileName`, `dwFlags`, `lpszFilter` and
    /// `pParentWnd` are those of CFileDialog. `bVistaStyle` asks for the new-style dialog; where there is
    /// none the classic one is used.
    COVOFileDialog(BOOL bOpenFileDialog, LPCWSTR lpszDefExt, LPCWSTR lpszFileName, DWORD dwFlags,
                   LPCWSTR lpszFilter, CWnd* pParentWnd, BOOL bVistaStyle);
    COVOFileDialog(const COVOFileDialog&) = default;
    virtual ~COVOFileDialog();

    /// IDOK or IDCANCEL.
    virtual INT_PTR DoModal() const;

protected:
    // Classic only, from the child dialog of the host's template
    /// Classic only, from the child dialog: F1, with the data in `pHelpInfo`; `bHandled` is what would be
    /// given otherwise. Gives whether help was shown.
    virtual BOOL OnHelpInfo(HELPINFO* pHelpInfo, BOOL bHandled);
    /// Classic only, from the child dialog: its size, with the arguments of WM_SIZE, `nType`, `cx` and `cy`.
    /// Does nothing in the base.
    virtual void OnSize(UINT nType, int cx, int cy);
    /// Classic only, from the child dialog: its controls are there. FALSE when it has set the focus.
    virtual BOOL OnInitDialog();

    // Both
    /// TRUE refuses the file; `bResult` is what would be given otherwise.
    virtual BOOL OnFileNameOK(BOOL bResult);
    /// The user has selected another file. Does nothing in the base, as the handlers below.
    virtual void OnFileNameChange();
    /// Another folder is shown.
    virtual void OnFolderChange();
    /// The dialog is ready to be shown.
    virtual void OnInitDone();
    /// Classic only, and only where the host has taken OFN_EXPLORER out of the flags: the list box or combo
    /// box `nIDBox` of the dialog has another selection, `iCurSel`; `nCode` says how it changed.
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    /// Another file type was chosen.
    virtual void OnTypeChange();
    /// Classic only: once, when the dialog is shown. `wParam` and `lParam` mean nothing, nor does the result.
    virtual LRESULT OnPostInit(WPARAM wParam, LPARAM lParam);

    // The host's controls
    /// The item `dwIDItem` of the host's control `dwIDCtl` was chosen. On the classic path the item is the
    /// index.
    virtual void OnItemSelected(DWORD dwIDCtl, DWORD dwIDItem);
    /// The host's push button `dwIDCtl` was pressed. On the classic path a push button is told as a check
    /// button, unless AddPushButton has named it.
    virtual void OnButtonClicked(DWORD dwIDCtl);
    /// The host's check button `dwIDCtl` was pressed, and is `bChecked` now.
    virtual void OnCheckButtonToggled(DWORD dwIDCtl, BOOL bChecked);
    /// New style, and menus of AddMenu: the list of `dwIDCtl` is about to open.
    virtual void OnControlActivating(DWORD dwIDCtl);
    /// Classic only: the text of the edit `dwIDCtl` has changed.
    virtual void OnEnChange(DWORD dwIDCtl);

private:
    friend class COVOFileDialogImp;
    COVOFileDialogImp* m_imp;

public:
    OPENFILENAME* ofn; ///< To be changed before DoModal; lives as long as this object.

    /// Whether the new-style dialog is used.
    bool IsVistaStyle() const;
    /// On the classic path the child dialog with the host's controls.
    CWnd* DialogWnd() const;

    // As those of CFileDialog
    /// The full path that was chosen, as CFileDialog gives it.
    CString GetPathName() const;
    /// The name without folder and extension, as CFileDialog gives it.
    CString GetFileTitle() const;
    /// The folder, while the dialog is shown, as CFileDialog gives it.
    CString GetFolderPath() const;
    /// The beginning of the files chosen with OFN_ALLOWMULTISELECT, as CFileDialog gives it.
    POSITION GetStartPosition() const;
    /// The file at `pos`, which goes on to the next one and is null after the last, as CFileDialog gives it.
    CString GetNextPathName(POSITION& pos) const;

    // As those of CWnd, on the classic path
    /// Classic only: the control `nID`, as CWnd gives it.
    CWnd* GetDlgItem(int nID) const;
    /// Classic only: the number in the control `nID`, `bSigned` or not; `lpTrans` (may be null) tells whether
    /// it is one, as CWnd does.
    UINT GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const;
    /// Classic only: the text of the control `nID` in `lpStr`, of at most `nMaxCount` characters with the
    /// zero, as CWnd gives it.
    int GetDlgItemText(int nID, LPWSTR lpStr, int nMaxCount) const;
    /// Classic only: the text of the control `nID` in `rString`. Both give its length.
    int GetDlgItemText(int nID, CString& rString) const;
    /// Classic only: checks the button `nIDButton` as `nCheck` says, a BST_ value.
    void CheckDlgButton(int nIDButton, UINT nCheck);

    // New style only
    /// A check button with the number `id`, and whether it is `checked` at first. New style only, as the
    /// operations up to SetSelectedControlItem: it is an error of the host to call them on the classic path.
    /// `dlg` is a dialog of the template that the classic path has; its window must exist, since the labels
    /// are the texts of its controls.
    void AddCheckButton(const CDialog& dlg, DWORD id, bool checked);
    /// A combo box `comboId` with the text of `labelId` in `dlg` in front of it.
    void AddComboBox(const CDialog& dlg, DWORD labelId, DWORD comboId);
    /// A combo box `id` without a label.
    void AddComboBox(DWORD id);
    /// An edit box `editId`; the text of `textId` in `dlg` is the one to begin with, 0 for none.
    void AddEditBox(const CDialog& dlg, DWORD textId, DWORD editId);
    /// An item `itemId` with this `label`, at the end of the combo box `id`.
    void AddControlItem(DWORD id, DWORD itemId, std::wstring label);
    /// A group `id` with a `label`, for the controls that are added up to EndVisualGroup.
    void StartVisualGroup(DWORD id, const std::wstring& label);
    /// Ends the group.
    void EndVisualGroup();
    /// Chooses the item `itemId` of the combo box `id`.
    void SetSelectedControlItem(DWORD id, DWORD itemId);

    // Both
    /// Of the combo box `id`: the item, or 0; on the classic path the index, or CB_ERR.
    LONG_PTR GetSelectedControlItem(DWORD id) const;
    /// Whether the check button `id` is checked.
    bool GetCheckButtonState(DWORD id) const;
    /// Whether the control `id` is `enabled` and `visible`.
    void SetControlState(DWORD id, bool enabled, bool visible);
    /// Whether the control `id` is visible.
    bool GetControlStateVisible(DWORD id) const;
    /// The text of the edit box `id`.
    std::wstring GetEditBoxText(DWORD id) const;
    /// The number at the beginning of the text of the edit box `id`; 0 without one. On the classic path what
    /// GetDlgItemInt gives: with other characters behind the number 0.
    int GetEditBoxInt(DWORD id) const;
    /// Puts the number `value` into the edit box `id`.
    void SetEditBoxInt(DWORD id, int value);
    /// A push button `id`, told by OnButtonClicked; its label is the text in `dlg`.
    void AddPushButton(const CDialog& dlg, DWORD id);
    /// A button `id` that opens a menu; its label is the text in `dlg`. OnControlActivating comes before, and
    /// OnItemSelected tells the choice. In the template it is a push button.
    void AddMenu(const CDialog& dlg, DWORD id);
    /// An item `itemId` with this `label`, at the end of the menu of the button `id`.
    void AddMenuItem(DWORD id, DWORD itemId, const std::wstring& label);
    /// Radio buttons `buttonIds` of the template, whose labels are in `dlg`; OnItemSelected tells the group's
    /// `id` and the button's.
    void AddRadioGroup(const CDialog& dlg, DWORD id, const std::vector<DWORD>& buttonIds);
    /// A line `id` between the controls.
    void AddSeparator(DWORD id);
    /// A text `id`, the one in `dlg`.
    void AddText(const CDialog& dlg, DWORD id);
    /// The chosen button of the radio group `id`; 0 for none.
    DWORD GetSelectedRadioButton(DWORD id) const;
    /// Chooses the button `buttonId` of the radio group `id`.
    void SetSelectedRadioButton(DWORD id, DWORD buttonId);

    /// Offers a folder `path` beside those of the system, at the `top` or below them; new style only, nothing
    /// on the classic path.
    void AddPlace(const std::wstring& path, bool top = false);
    /// Begins in the folder `path` when nothing is remembered and no folder is given otherwise.
    void SetDefaultFolder(const std::wstring& path);
    /// Begins where the user took a file last for this purpose: remembered by the system for the new-style
    /// dialog, in the application's profile, section "settings", for the classic one. `lpstrInitialDir` goes
    /// before it.
    void RememberFolder(const GUID& purpose);

    /// Where the new-style dialog goes; nothing happens on the classic path, and for a folder that does not
    /// exist.
    void SetFolder(const std::wstring& path);
};
