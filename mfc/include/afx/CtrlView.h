// CCtrlView: a view that is a control of the system's.
#pragma once

#include <afx/String.h>
#include <afx/View.h>

/// The base of CTreeView, CListView and CEditView. The control paints itself, and its notifications come back
/// to the view: handle them with ON_NOTIFY_REFLECT or ON_CONTROL_REFLECT.
class OVOMFC_API CCtrlView : public CView
{
    DECLARE_DYNCREATE(CCtrlView)

public:
    /// The control's window class, and the style that it gets when the frame makes it as any other view.
    CCtrlView(LPCTSTR windowClass, DWORD style);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    CCtrlView(); ///< For run-time creation; m_strClass must be set before the window is made.

    /// Not called for the screen, which the control sees to. Does nothing.
    void OnDraw(CDC* dc) override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    CString m_strClass;
    DWORD m_dwDefaultStyle = AFX_WS_DEFAULT_VIEW;
};
