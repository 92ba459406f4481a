// A small map of the work area with a rectangle to drag.
#pragma once

#include <afxwin.h>

#include <functional>

/// The rectangle may be dragged anywhere; on release it is pulled back into the work area.
class WorkAreaMap : public CWnd
{
public:
    /// `moved` is called whenever the rectangle has a new place.
    bool create(CWnd& parent, std::function<void(const CRect& rect)> moved);

    /// The rectangle in screen pixels.
    CRect rectangle() const { return m_rect; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CRect onMap(const CRect& screen) const;
    void moveTo(const CRect& rect);

    CRect m_rect{300, 200, 700, 450};
    CPoint m_grip; ///< where the rectangle was taken, in map pixels
    CRect m_gripped;
    std::function<void(const CRect&)> m_moved;
};
