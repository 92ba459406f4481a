#include <ovoui/files/FileDialog.h>

#include <ovoui/files/FileDialogImp.h>

COVOFileDialog::COVOFileDialog(BOOL bOpenFileDialog, LPCWSTR lpszDefExt, LPCWSTR lpszFileName, DWORD dwFlags,
                               LPCWSTR lpszFilter, CWnd* pParentWnd, BOOL bVistaStyle)
    : m_imp(new COVOFileDialogImp(bOpenFileDialog, lpszDefExt, lpszFileName, dwFlags, lpszFilter, pParentWnd,
                                  bVistaStyle))
{
    m_imp->GetOFN().Flags |= OFN_ENABLESIZING;
    ofn = &m_imp->GetOFN();
    m_imp->m_owner = this;
}

COVOFileDialog::~COVOFileDialog()
{
    delete m_imp;
}

INT_PTR COVOFileDialog::DoModal() const
{
    return m_imp->ask();
}

// What a host overrides

BOOL COVOFileDialog::OnHelpInfo(HELPINFO*, BOOL bHandled)
{
    return bHandled;
}

BOOL COVOFileDialog::OnInitDialog()
{
    return TRUE;
}

BOOL COVOFileDialog::OnFileNameOK(BOOL bResult)
{
    return bResult;
}

LRESULT COVOFileDialog::OnPostInit(WPARAM, LPARAM)
{
    return 1;
}

void COVOFileDialog::OnSize(UINT, int, int) {}
void COVOFileDialog::OnFileNameChange() {}
void COVOFileDialog::OnFolderChange() {}
void COVOFileDialog::OnInitDone() {}
void COVOFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}
void COVOFileDialog::OnTypeChange() {}
void COVOFileDialog::OnItemSelected(DWORD, DWORD) {}
void COVOFileDialog::OnButtonClicked(DWORD) {}
void COVOFileDialog::OnCheckButtonToggled(DWORD, BOOL) {}
void COVOFileDialog::OnControlActivating(DWORD) {}
void COVOFileDialog::OnEnChange(DWORD) {}

// Queries and results

bool COVOFileDialog::IsVistaStyle() const
{
    return m_imp->isNewStyle();
}

CWnd* COVOFileDialog::DialogWnd() const
{
    return m_imp;
}

CString COVOFileDialog::GetPathName() const
{
    return m_imp->GetPathName();
}

CString COVOFileDialog::GetFileTitle() const
{
    return m_imp->GetFileTitle();
}

CString COVOFileDialog::GetFolderPath() const
{
    return m_imp->GetFolderPath();
}

POSITION COVOFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(ofn->lpstrFile);
}

CString COVOFileDialog::GetNextPathName(POSITION& pos) const
{
    return m_imp->GetNextPathName(pos);
}

CWnd* COVOFileDialog::GetDlgItem(int nID) const
{
    return m_imp->GetDlgItem(nID);
}

UINT COVOFileDialog::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return m_imp->GetDlgItemInt(nID, lpTrans, bSigned);
}

int COVOFileDialog::GetDlgItemText(int nID, LPWSTR lpStr, int nMaxCount) const
{
    return m_imp->GetDlgItemText(nID, lpStr, nMaxCount);
}

int COVOFileDialog::GetDlgItemText(int nID, CString& rString) const
{
    return m_imp->GetDlgItemText(nID, rString);
}

void COVOFileDialog::CheckDlgButton(int nIDButton, UINT nCheck)
{
    m_imp->CheckDlgButton(nIDButton, nCheck);
}
