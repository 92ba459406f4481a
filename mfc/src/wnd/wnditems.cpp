// CWnd: messages, and the items of a dialog.
#include <afxwin.h>

#include "mnemonicsearch.h"

#include <detail/pending.h>

using afxdetail::callOut;

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return callOut([&] { return ::SendMessageW(m_hWnd, message, wParam, lParam); });
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam) const
{
    return callOut([&] { return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam); });
}

BOOL CWnd::IsDialogMessage(LPMSG message)
{
    if (afxdetail::isLostCharacter(m_hWnd, *message))
        return FALSE;
    return callOut([&] { return ::IsDialogMessageW(m_hWnd, message); });
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    return callOut([&] { return ::MessageBoxW(m_hWnd, text, caption, type); });
}

void CWnd::SetDlgItemText(int id, LPCTSTR text)
{
    callOut([&] { ::SetDlgItemTextW(m_hWnd, id, text); });
}

int CWnd::GetDlgItemText(int id, LPTSTR buffer, int maxCount) const
{
    return callOut([&] { return static_cast<int>(::GetDlgItemTextW(m_hWnd, id, buffer, maxCount)); });
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    text.Empty();
    if (const CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text.GetLength();
}

void CWnd::SetDlgItemInt(int id, UINT value, BOOL isSigned)
{
    callOut([&] { ::SetDlgItemInt(m_hWnd, id, value, isSigned); });
}

UINT CWnd::GetDlgItemInt(int id, BOOL* translated, BOOL isSigned) const
{
    return callOut([&] { return ::GetDlgItemInt(m_hWnd, id, translated, isSigned); });
}

void CWnd::CheckDlgButton(int id, UINT check)
{
    callOut([&] { ::CheckDlgButton(m_hWnd, id, check); });
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    return callOut([&] { return ::IsDlgButtonChecked(m_hWnd, id); });
}

void CWnd::CheckRadioButton(int first, int last, int id)
{
    callOut([&] { ::CheckRadioButton(m_hWnd, first, last, id); });
}

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
        if (IsDlgButtonChecked(id))
            return id;
    return 0;
}

int CWnd::DlgDirList(LPTSTR path, int listBox, int staticPath, UINT fileType)
{
    return callOut([&] { return ::DlgDirListW(m_hWnd, path, listBox, staticPath, fileType); });
}

int CWnd::DlgDirListComboBox(LPTSTR path, int comboBox, int staticPath, UINT fileType)
{
    return callOut([&] { return ::DlgDirListComboBoxW(m_hWnd, path, comboBox, staticPath, fileType); });
}

BOOL CWnd::DlgDirSelect(LPTSTR path, int listBox)
{
    return callOut([&] { return ::DlgDirSelectExW(m_hWnd, path, MAX_PATH, listBox); });
}

BOOL CWnd::DlgDirSelectComboBox(LPTSTR path, int comboBox)
{
    return callOut([&] { return ::DlgDirSelectComboBoxExW(m_hWnd, path, MAX_PATH, comboBox); });
}

void CWnd::DoDataExchange(CDataExchange*) {}
