#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

BEGIN_MESSAGE_MAP(CCommonDialog, CDialog)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

CCommonDialog::CCommonDialog(CWnd* parent)
{
    m_pParentWnd = parent;
}

void CCommonDialog::OnOK()
{
    Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

BOOL CCommonDialog::OnHelpInfo(HELPINFO* info)
{
    return CDialog::OnHelpInfo(info);
}
