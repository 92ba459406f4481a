// CFormView: a view with the controls of a dialog template.
#include <afxext.h>

#include "../dlg/dialoginit.h"
#include "templatewindow.h"

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_MESSAGE(WM_INITDIALOG, &CFormView::HandleInitDialog)
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

namespace
{

bool isInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

/// The frame may be about to be shown, so the control's own style counts.
bool canTakeFocus(HWND control, HWND form)
{
    if (!::IsWindow(control) || !::IsChild(form, control))
        return false;
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(control, GWL_STYLE));
    return (style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

} // namespace

CFormView::CFormView(LPCTSTR templateName)
    : m_lpszTemplateName(templateName)
{
}

CFormView::CFormView(UINT templateId)
    : CFormView(MAKEINTRESOURCEW(templateId))
{
}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                       CCreateContext*)
{
    const afxdetail::DialogResource resource(m_lpszTemplateName);
    if (!resource.get()) {
        PostNcDestroy();
        return FALSE;
    }
    if (!afxdetail::makeFromTemplate(this, resource, parent, [this] { PostNcDestroy(); }))
        return FALSE;

    SetDlgCtrlID(static_cast<int>(id));
    CRect controls;
    GetClientRect(&controls);
    SetScrollSizes(MM_TEXT, controls.Size());
    if (style & WS_BORDER)
        ModifyStyleEx(0, WS_EX_CLIENTEDGE);
    const CRect place(rect);
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED |
                     static_cast<UINT>((style & WS_VISIBLE) ? SWP_SHOWWINDOW : 0));
    return TRUE;
}

LRESULT CFormView::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    m_initialised = afxdetail::runDialogInit(m_hWnd, m_lpszTemplateName);
    return FALSE; // a view does not take the focus while the frame is made
}

void CFormView::OnInitialUpdate()
{
    UpdateData(FALSE);
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*) {}

void CFormView::OnPaint()
{
    Default();
}

// Keys and focus

BOOL CFormView::PreTranslateMessage(MSG* message)
{
    if (CScrollView::PreTranslateMessage(message))
        return TRUE;
    const CWinApp* const app = AfxGetApp();
    if (app && app->m_bHelpMode) // keys look for help now
        return FALSE;
    // The frames' accelerators first: the dialog would take keys such as Ctrl+Tab.
    for (CFrameWnd* frame = GetParentFrame(); frame; frame = frame->GetParentFrame())
        if (frame->PreTranslateMessage(message))
            return TRUE;
    return isInput(message->message) && IsDialogMessage(message);
}

void CFormView::rememberFocus()
{
    const HWND focus = ::GetFocus();
    if (focus && ::IsChild(m_hWnd, focus))
        m_lastFocus = focus;
}

void CFormView::OnActivateView(BOOL activate, CView* activateView, CView* deactiveView)
{
    rememberFocus();
    CScrollView::OnActivateView(activate, activateView, deactiveView);
}

void CFormView::OnActivateFrame(UINT state, CFrameWnd* frame)
{
    if (state == WA_INACTIVE)
        rememberFocus();
    CScrollView::OnActivateFrame(state, frame);
}

/// The focus goes on to the control that had it last, at first to the first one.
void CFormView::OnSetFocus(CWnd*)
{
    const HWND control =
        canTakeFocus(m_lastFocus, m_hWnd) ? m_lastFocus : ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    if (control && canTakeFocus(control, m_hWnd))
        afxdetail::callOut([&] { ::SetFocus(control); });
    else
        Default();
}
