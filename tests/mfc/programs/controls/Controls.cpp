// Controls.cpp : the application
#include "stdafx.h"
#include "Controls.h"
#include "ControlsDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

BEGIN_MESSAGE_MAP(CControlsApp, CWinApp)
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

CControlsApp::CControlsApp()
{
}

CControlsApp theApp;

BOOL CControlsApp::InitInstance()
{
    INITCOMMONCONTROLSEX InitCtrls;
    InitCtrls.dwSize = sizeof(InitCtrls);
    InitCtrls.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_INTERNET_CLASSES;
    InitCommonControlsEx(&InitCtrls);

    CWinApp::InitInstance();
    AfxEnableControlContainer();
    SetRegistryKey(_T("ovoui test programs"));

    CControlsDlg dlg;
    m_pMainWnd = &dlg;
    INT_PTR nResponse = dlg.DoModal();
    if (nResponse == -1)
        TRACE0("Warning: dialog creation failed, so application is terminating unexpectedly.\n");

    // The dialog has been closed: leave the application rather than start its message pump.
    return FALSE;
}
