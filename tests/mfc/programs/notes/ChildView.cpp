// ChildView.cpp : the note
#include "stdafx.h"
#include "Notes.h"
#include "ChildView.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

static const int cxStamp = 20;

CChildView::CChildView()
{
}

BEGIN_MESSAGE_MAP(CChildView, CWnd)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_COMMAND(ID_EDIT_STAMP, &CChildView::OnEditStamp)
    ON_COMMAND(ID_EDIT_CLEAR, &CChildView::OnEditClear)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CChildView::OnUpdateEditClear)
END_MESSAGE_MAP()

BOOL CChildView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle |= WS_EX_CLIENTEDGE;
    cs.style &= ~WS_BORDER;
    cs.lpszClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW),
                                       reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), NULL);
    return TRUE;
}

void CChildView::OnPaint()
{
    CPaintDC dc(this);
    CBrush brush(RGB(200, 30, 30));
    for (int i = 0; i < m_arrStamps.GetSize(); i++) {
        CRect rect(m_arrStamps[i], CSize(cxStamp, cxStamp));
        dc.FillRect(rect, &brush);
    }
    // Do not call CWnd::OnPaint() for painting messages
}

void CChildView::OnLButtonDown(UINT nFlags, CPoint point)
{
    m_arrStamps.Add(point - CSize(cxStamp / 2, cxStamp / 2));
    Invalidate();
    CWnd::OnLButtonDown(nFlags, point);
}

void CChildView::OnEditStamp()
{
    m_arrStamps.Add(CPoint(10 + 30 * (int)m_arrStamps.GetSize(), 10));
    Invalidate();
}

void CChildView::OnEditClear()
{
    Clear();
}

void CChildView::OnUpdateEditClear(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_arrStamps.GetSize() > 0);
}

void CChildView::Clear()
{
    m_arrStamps.RemoveAll();
    if (m_hWnd)
        Invalidate();
}
