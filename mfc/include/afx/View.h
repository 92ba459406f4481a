// CView: the part of a frame that shows the program's data.
#pragma once

#include <afx/Wnd.h>

/// A view lives on the heap and deletes itself with its window.
class OVOMFC_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    ~CView() override;

    /// Called once the frame is there and before it is shown.
    virtual void OnInitialUpdate();

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    CView();

    virtual void OnDraw(CDC* dc) = 0;
    virtual void OnUpdate(CView* sender, LPARAM hint, CObject* object);
    virtual void OnActivateView(BOOL activate, CView* activateView, CView* deactiveView);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

    friend class CFrameWnd;
};
