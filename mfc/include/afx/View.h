// CView: the part of a frame that shows the program's data.
#pragma once

#include <afx/Wnd.h>

struct CPrintInfo;

/// The styles of a view that a frame makes for itself.
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

/// A view is made with new, as a child of a frame, and deletes itself with its window. It becomes the active
/// one when the user clicks into it, or by CFrameWnd::SetActiveView.
class OVOMFC_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    ~CView() override;

    /// Called once, before the view is first shown (by WM_INITIALUPDATE). By default it calls OnUpdate.
    virtual void OnInitialUpdate();
    /// Called before OnDraw, to set up the device context; `info` is null for the screen.
    virtual void OnPrepareDC(CDC* dc, CPrintInfo* info = nullptr);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    CView();

    /// Paints what is to be seen.
    virtual void OnDraw(CDC* dc) = 0;
    /// Called when the data have changed. By default everything is painted anew.
    virtual void OnUpdate(CView* sender, LPARAM hint, CObject* object);
    /// By default a view that becomes active takes the focus. The two views are the same when the frame is
    /// activated again.
    virtual void OnActivateView(BOOL activate, CView* activateView, CView* deactiveView);
    /// `state` is a WA_ value.
    virtual void OnActivateFrame(UINT state, CFrameWnd* frame);
    void PostNcDestroy() override;

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    afx_msg LRESULT HandleInitialUpdate(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    friend class CFrameWnd;
};
