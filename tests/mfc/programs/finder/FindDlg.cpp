// FindDlg.cpp : the find dialog
#include "stdafx.h"
#include "Resource.h"
#include "FindDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

const UINT WM_FINDER_FIND_NEXT = ::RegisterWindowMessage(_T("Finder_FindNext"));

BEGIN_MESSAGE_MAP(CFindDlg, CDialog)
    ON_BN_CLICKED(IDC_FIND_NEXT, &CFindDlg::OnFindNext)
    ON_EN_CHANGE(IDC_WHAT, &CFindDlg::OnChangeWhat)
END_MESSAGE_MAP()

BOOL CFindDlg::Create(CWnd* pOwner)
{
    m_pOwner = pOwner;
    m_bMatchCase = FALSE;
    return CDialog::Create(IDD_FIND, pOwner);
}

void CFindDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_WHAT, m_strWhat);
    DDX_Check(pDX, IDC_MATCH_CASE, m_bMatchCase);
}

BOOL CFindDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    OnChangeWhat();
    return TRUE;
}

void CFindDlg::OnFindNext()
{
    UpdateData();
    m_pOwner->SendMessage(WM_FINDER_FIND_NEXT, m_bMatchCase, (LPARAM)(LPCTSTR)m_strWhat);
}

void CFindDlg::OnChangeWhat()
{
    GetDlgItem(IDC_FIND_NEXT)->EnableWindow(GetDlgItem(IDC_WHAT)->GetWindowTextLength() > 0);
}

void CFindDlg::OnCancel()
{
    DestroyWindow();
}

void CFindDlg::PostNcDestroy()
{
    m_pOwner->SendMessage(WM_FINDER_CLOSED);
    delete this;
}
