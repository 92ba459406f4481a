// CDialogBar: a bar with the controls of a dialog template.
#include <afxext.h>

#include "../dlg/dialoginit.h"
#include "templatewindow.h"

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
    ON_MESSAGE(WM_INITDIALOG, &CDialogBar::HandleInitDialog)
    // lines, gripper and borders lie around the controls
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

/// What a template's contents need in a window without a caption.
CSize neededSize(const CWnd& dialog)
{
    CRect rect;
    dialog.GetClientRect(&rect);
    ::AdjustWindowRectEx(&rect, dialog.GetStyle() & ~static_cast<DWORD>(WS_CAPTION), FALSE,
                         dialog.GetExStyle());
    return rect.Size();
}

} // namespace

CDialogBar::CDialogBar()
{
    SetBorders(0, 0, 0, 0);
}

CDialogBar::~CDialogBar()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd); // not by the member: no exception may leave a destructor
}

BOOL CDialogBar::Create(CWnd* parent, UINT templateId, UINT style, UINT id)
{
    return Create(parent, MAKEINTRESOURCEW(templateId), style, id);
}

BOOL CDialogBar::Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id)
{
    const afxdetail::DialogResource resource(templateName);
    if (!resource.get())
        return FALSE;
    m_lpszTemplateName = templateName;
    m_dwStyle = style & CBRS_ALL;

    if (!afxdetail::makeFromTemplate(this, resource, parent, [this] { PostNcDestroy(); }))
        return FALSE;

    SetDlgCtrlID(static_cast<int>(id));
    ModifyStyle(0, WS_CLIPSIBLINGS);
    m_sizeDefault = neededSize(*this);
    SetWindowPos(nullptr, 0, 0, m_sizeDefault.cx, m_sizeDefault.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                     static_cast<UINT>((style & WS_VISIBLE) ? SWP_SHOWWINDOW : 0));
    return TRUE;
}

LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    if (!afxdetail::runDialogInit(m_hWnd, m_lpszTemplateName))
        return FALSE;
    UpdateData(FALSE);
    return FALSE; // a bar does not take the focus
}

CSize CDialogBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    CSize size(m_sizeDefault.cx - inside.Width(), m_sizeDefault.cy - inside.Height());
    if (stretch)
        (horizontal ? size.cx : size.cy) = 32767;
    return size;
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    UpdateDialogControls(target, disableIfNoHandler);
}

// Its window

/// A bar with a frame of the system's, such as a caption, has no other.
static bool hasSystemFrame(const CWnd& bar)
{
    return (bar.GetStyle() & (WS_BORDER | WS_DLGFRAME)) ||
           (bar.GetExStyle() & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
}

void CDialogBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* sizes)
{
    if (hasSystemFrame(*this))
        Default();
    else
        calcFrame(*sizes);
}

void CDialogBar::OnNcPaint()
{
    if (hasSystemFrame(*this))
        Default();
    else
        paintFrame();
}

/// Lines and gripper are the bar's too: the mouse takes hold of it there.
LRESULT CDialogBar::OnNcHitTest(CPoint)
{
    return hasSystemFrame(*this) ? Default() : HTCLIENT;
}

void CDialogBar::OnPaint()
{
    Default();
}

/// A dialog that is part of a page of a theme would show the page's background, beside other bars it looks
/// foreign.
BOOL CDialogBar::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
