// Finder.cpp : a frame with a text, and a modeless dialog that finds in it
#include "stdafx.h"
#include "Resource.h"
#include "FindDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

class CMainFrame : public CFrameWnd
{
public:
    CMainFrame() : m_pFindDlg(NULL) {}

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnEditFind();
    afx_msg LRESULT OnFindNext(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFindClosed(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CEdit m_wndText;
    CFindDlg* m_pFindDlg;
};

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_COMMAND(ID_EDIT_FIND, &CMainFrame::OnEditFind)
    ON_REGISTERED_MESSAGE(WM_FINDER_FIND_NEXT, &CMainFrame::OnFindNext)
    ON_MESSAGE(WM_FINDER_CLOSED, &CMainFrame::OnFindClosed)
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_wndText.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL,
                     CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST);
    return 0;
}

void CMainFrame::OnSetFocus(CWnd* /*pOldWnd*/)
{
    m_wndText.SetFocus();
}

void CMainFrame::OnEditFind()
{
    if (m_pFindDlg == NULL) {
        m_pFindDlg = new CFindDlg;
        m_pFindDlg->Create(this);
    }
    m_pFindDlg->ShowWindow(SW_SHOW);
    m_pFindDlg->SetActiveWindow();
}

LRESULT CMainFrame::OnFindNext(WPARAM wParam, LPARAM lParam)
{
    CString strText, strWhat((LPCTSTR)lParam);
    m_wndText.GetWindowText(strText);
    if (!wParam) {
        strText.MakeLower();
        strWhat.MakeLower();
    }
    int nStart, nEnd;
    m_wndText.GetSel(nStart, nEnd);
    int nFound = strText.Find(strWhat, nEnd);
    if (nFound < 0)
        nFound = strText.Find(strWhat);
    if (nFound < 0) {
        CString strMessage;
        strMessage.Format(_T("\"%s\" was not found."), (LPCTSTR)lParam);
        AfxMessageBox(strMessage, MB_OK | MB_ICONINFORMATION);
        return FALSE;
    }
    m_wndText.SetSel(nFound, nFound + strWhat.GetLength());
    return TRUE;
}

LRESULT CMainFrame::OnFindClosed(WPARAM, LPARAM)
{
    m_pFindDlg = NULL;
    return 0;
}

class CFinderApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CMainFrame* pFrame = new CMainFrame;
        m_pMainWnd = pFrame;
        if (!pFrame->LoadFrame(IDR_MAINFRAME))
            return FALSE;
        pFrame->MoveWindow(40, 40, 560, 360);
        pFrame->ShowWindow(m_nCmdShow);
        pFrame->UpdateWindow();
        return TRUE;
    }
};

CFinderApp theApp;
