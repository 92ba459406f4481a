// ChildView.h : the note
#pragma once

#include <afxtempl.h>

class CChildView : public CWnd
{
public:
    CChildView();

    void Clear();

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnEditStamp();
    afx_msg void OnEditClear();
    afx_msg void OnUpdateEditClear(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    CArray<CPoint, CPoint> m_arrStamps;
};
