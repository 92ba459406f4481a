// MainFrm.h : the frame
#pragma once

#include "ChildView.h"

class CMainFrame : public CFrameWnd
{
public:
    CMainFrame();
    virtual ~CMainFrame();

    BOOL OpenNote(LPCTSTR lpszFileName);

    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    DECLARE_DYNAMIC(CMainFrame)

    CStatusBar m_wndStatusBar;
    CToolBar m_wndToolBar;
    CChildView m_wndView;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnFileNew();
    DECLARE_MESSAGE_MAP()

private:
    void ShowTitle(LPCTSTR lpszNote);
};
