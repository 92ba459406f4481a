// ConvertDlg.cpp : a dialog that a tool borrows from this DLL
#include "stdafx.h"
#include "Resource.h"
#include "ConvertDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

IMPLEMENT_DYNAMIC(CConvertDlg, CDialog)

CConvertDlg::CConvertDlg(CWnd* pParent /*=NULL*/)
    : CDialog(IDD_CONVERT, pParent)
    , m_dMetres(1.0)
{
}

CConvertDlg::~CConvertDlg()
{
}

double CConvertDlg::FeetOf(double dMetres)
{
    return dMetres / 0.3048;
}

void CConvertDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_METRES, m_dMetres);
    DDV_MinMaxDouble(pDX, m_dMetres, 0.0, 100000.0);
}

BEGIN_MESSAGE_MAP(CConvertDlg, CDialog)
    ON_BN_CLICKED(IDC_CONVERT, &CConvertDlg::OnConvert)
END_MESSAGE_MAP()

void CConvertDlg::OnConvert()
{
    if (!UpdateData())
        return;
    CString strNumber, strFeet;
    strNumber.Format(_T("%.2f"), FeetOf(m_dMetres));
    AfxFormatString1(strFeet, IDS_FEET, strNumber);
    SetDlgItemText(IDC_FEET, strFeet);
}
