// CMiniDockFrameWnd: the window of a floating bar.
#pragma once

#include <afx/DockBar.h>
#include <afx/MiniFrameWnd.h>

/// The window of a floating bar, or of several with CBRS_FLOAT_MULTI. Made by CFrameWnd::FloatControlBar.
class OVOMFC_API CMiniDockFrameWnd : public CMiniFrameWnd
{
    DECLARE_DYNCREATE(CMiniDockFrameWnd)

public:
    CMiniDockFrameWnd();
    ~CMiniDockFrameWnd() override;

    using CMiniFrameWnd::Create;
    /// For bars of `frame`. `barStyle` says how the bar lies and whether its window can be sized.
    virtual BOOL Create(CFrameWnd* frame, DWORD barStyle, CPoint topLeft);

    CDockBar m_wndDockBar{TRUE};

    /// The size of such a window around a bar of this size.
    static CSize outerSize(CSize client, DWORD barStyle);

    /// As large as its bars; hidden while none of them is shown.
    void RecalcLayout(BOOL notify = TRUE) override;

protected:
    void PostNcDestroy() override;

    afx_msg void OnClose();
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point);
    afx_msg int OnMouseActivate(CWnd* top, UINT hit, UINT message);
    afx_msg void OnSizing(UINT edge, LPRECT rect);
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    CControlBar* onlyBar() const;
    CRect borders() const;
    bool isShownWithFrame() const;

    CFrameWnd* m_frame = nullptr; ///< the frame that the bars belong to; it outlives this window
    bool m_layingOut = false;
    bool m_sized = false; ///< its user is sizing it
};
