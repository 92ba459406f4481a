// ConvertDlg.h : a dialog that a tool borrows from this DLL
#pragma once

class AFX_EXT_CLASS CConvertDlg : public CDialog
{
    DECLARE_DYNAMIC(CConvertDlg)

public:
    CConvertDlg(CWnd* pParent = NULL);
    virtual ~CConvertDlg();

    double m_dMetres;

    static double FeetOf(double dMetres);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);

    afx_msg void OnConvert();
    DECLARE_MESSAGE_MAP()
};
