// Notes.cpp : the application, and its about box
#include "stdafx.h"
#include "Notes.h"
#include "MainFrm.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

BEGIN_MESSAGE_MAP(CNotesApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &CNotesApp::OnAppAbout)
END_MESSAGE_MAP()

CNotesApp::CNotesApp()
{
}

CNotesApp theApp;

BOOL CNotesApp::InitInstance()
{
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&InitCtrls);

    CWinApp::InitInstance();
    AfxEnableControlContainer();

    SetRegistryKey(_T("ovoui test programs"));
    LoadStdProfileSettings(6);

    CMainFrame* pFrame = new CMainFrame;
    if (!pFrame)
        return FALSE;
    m_pMainWnd = pFrame;
    pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, NULL, NULL);

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    if (cmdInfo.m_nShellCommand == CCommandLineInfo::FileOpen)
        OpenDocumentFile(cmdInfo.m_strFileName);

    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}

CDocument* CNotesApp::OpenDocumentFile(LPCTSTR lpszFileName)
{
    CMainFrame* pFrame = static_cast<CMainFrame*>(m_pMainWnd);
    if (!pFrame->OpenNote(lpszFileName)) {
        CString strMessage;
        AfxFormatString1(strMessage, IDP_CANNOT_OPEN, lpszFileName);
        AfxMessageBox(strMessage);
        return NULL;
    }
    AddToRecentFileList(lpszFileName);
    // There is no document class: anything that is not NULL says that it went well.
    return reinterpret_cast<CDocument*>(pFrame);
}

class CAboutDlg : public CDialog
{
public:
    CAboutDlg();

    enum { IDD = IDD_ABOUTBOX };

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    DECLARE_MESSAGE_MAP()

    CStatic m_wndVersion;
};

CAboutDlg::CAboutDlg() : CDialog(CAboutDlg::IDD)
{
}

void CAboutDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_VERSION, m_wndVersion);
}

BEGIN_MESSAGE_MAP(CAboutDlg, CDialog)
END_MESSAGE_MAP()

void CNotesApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}
