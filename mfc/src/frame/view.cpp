#include <afxwin.h>
#include <afxpriv.h>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() = default;

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    // A plain border becomes a sunken edge.
    if (cs.style & WS_BORDER) {
        cs.style &= ~WS_BORDER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    // What a view shows usually depends on its size: all of it is painted anew when that changes.
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CWnd::PreCreateWindow(cs);
}

void CView::OnDestroy()
{
    CFrameWnd* frame = GetParentFrame();
    if (frame && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::PostNcDestroy()
{
    delete this;
}

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*)
{
    Invalidate();
}

void CView::OnPrepareDC(CDC*, CPrintInfo*) {}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnActivateView(BOOL activate, CView* activateView, CView*)
{
    if (activate && activateView == this && IsTopParentActive())
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

int CView::OnMouseActivate(CWnd* top, UINT hitTest, UINT message)
{
    const int result = CWnd::OnMouseActivate(top, hitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT)
        return result;
    CFrameWnd* frame = GetParentFrame();
    if (!frame)
        return result;
    // The active view may have lost the focus to a bar: a click takes it back.
    const HWND focus = ::GetFocus();
    if (frame->GetActiveView() != this)
        frame->SetActiveView(this);
    else if (focus != m_hWnd && !::IsChild(m_hWnd, focus))
        OnActivateView(TRUE, this, this);
    return result;
}
