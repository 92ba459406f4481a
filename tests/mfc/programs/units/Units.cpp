// Units.cpp : a tool that borrows a dialog from an extension DLL
#include "stdafx.h"
#include "Resource.h"
#include "../unitsext/ConvertDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

class CUnitsDlg : public CDialog
{
public:
    CUnitsDlg() : CDialog(IDD_UNITS_DIALOG) {}

protected:
    afx_msg void OnConvert();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CUnitsDlg, CDialog)
    ON_BN_CLICKED(IDC_OPEN, &CUnitsDlg::OnConvert)
END_MESSAGE_MAP()

void CUnitsDlg::OnConvert()
{
    CConvertDlg dlg(this);
    dlg.m_dMetres = AfxGetApp()->GetProfileInt(_T("Settings"), _T("Metres"), 5);
    dlg.DoModal();

    CString strLast;
    strLast.Format(_T("%s: %.1f m are %.1f ft"), (LPCTSTR)CString(dlg.GetRuntimeClass()->m_lpszClassName),
                   dlg.m_dMetres, CConvertDlg::FeetOf(dlg.m_dMetres));
    SetDlgItemText(IDC_LAST, strLast);
    AfxGetApp()->WriteProfileInt(_T("Settings"), _T("Metres"), (int)dlg.m_dMetres);
}

class CUnitsApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        SetRegistryKey(_T("ovoui test programs"));
        CUnitsDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CUnitsApp theApp;
