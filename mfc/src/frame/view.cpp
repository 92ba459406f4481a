#include <afxwin.h>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() = default;

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CWnd::PreCreateWindow(cs);
}

int CView::OnCreate(LPCREATESTRUCT cs)
{
    return CWnd::OnCreate(cs);
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

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*)
{
    Invalidate();
}

void CView::OnActivateView(BOOL activate, CView* activateView, CView*)
{
    if (activate && activateView == this && IsTopParentActive())
        SetFocus();
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnDraw(&dc);
}

int CView::OnMouseActivate(CWnd* top, UINT hitTest, UINT message)
{
    const int result = CWnd::OnMouseActivate(top, hitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT)
        return result;
    if (CFrameWnd* frame = GetParentFrame())
        frame->SetActiveView(this);
    return result;
}
