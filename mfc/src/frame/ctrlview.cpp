// CCtrlView, CTreeView, CListView: views that are a control of the system's.
#include <afxcview.h>

IMPLEMENT_DYNCREATE(CCtrlView, CView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)
IMPLEMENT_DYNCREATE(CListView, CCtrlView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kWindowStyles = 0xFFFF0000; // the low word is the control's

void needClasses(DWORD classes)
{
    const INITCOMMONCONTROLSEX wanted{sizeof wanted, classes};
    ::InitCommonControlsEx(&wanted);
}

} // namespace

CCtrlView::CCtrlView() = default;

CCtrlView::CCtrlView(LPCTSTR windowClass, DWORD style)
    : m_strClass(windowClass)
    , m_dwDefaultStyle(style)
{
}

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = m_strClass;
    // A host that makes the view itself chooses other window styles than a frame does.
    const DWORD style = static_cast<DWORD>(cs.style);
    if (((style | AFX_WS_DEFAULT_VIEW) & kWindowStyles) == (AFX_WS_DEFAULT_VIEW & kWindowStyles))
        cs.style |= static_cast<LONG>(m_dwDefaultStyle);
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnDraw(CDC*) {}

void CCtrlView::OnPaint()
{
    Default();
}

// CTreeView

CTreeView::CTreeView()
    : CCtrlView(WC_TREEVIEWW, AFX_WS_DEFAULT_VIEW)
{
}

BOOL CTreeView::PreCreateWindow(CREATESTRUCT& cs)
{
    needClasses(ICC_TREEVIEW_CLASSES);
    return CCtrlView::PreCreateWindow(cs);
}

CTreeCtrl& CTreeView::GetTreeCtrl() const
{
    m_tree.m_hWnd = m_hWnd;
    return m_tree;
}

// CListView

CListView::CListView()
    : CCtrlView(WC_LISTVIEWW, AFX_WS_DEFAULT_VIEW)
{
}

BOOL CListView::PreCreateWindow(CREATESTRUCT& cs)
{
    needClasses(ICC_LISTVIEW_CLASSES);
    return CCtrlView::PreCreateWindow(cs);
}

CListCtrl& CListView::GetListCtrl() const
{
    m_list.m_hWnd = m_hWnd;
    return m_list;
}

void CListView::RemoveImageList(int kind)
{
    GetListCtrl().SetImageList(nullptr, kind);
}
