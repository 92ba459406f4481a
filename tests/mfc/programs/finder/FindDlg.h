// FindDlg.h : the find dialog
#pragma once

// Sent to the owner. wParam: nonzero when the case counts. lParam: LPCTSTR, what to find.
extern const UINT WM_FINDER_FIND_NEXT;
// Sent to the owner when the dialog has gone.
#define WM_FINDER_CLOSED (WM_APP + 1)

class CFindDlg : public CDialog
{
public:
    BOOL Create(CWnd* pOwner);

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    virtual void PostNcDestroy();

    afx_msg void OnFindNext();
    afx_msg void OnChangeWhat();
    virtual BOOL OnInitDialog();
    DECLARE_MESSAGE_MAP()

private:
    CWnd* m_pOwner;
    CString m_strWhat;
    BOOL m_bMatchCase;
};
