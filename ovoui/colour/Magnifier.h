/// Not exported. The pixels around the pointer, enlarged.
#pragma once

#include <ovoui/colour/core/MagnifierLayout.h>

#include <afxwin.h>

namespace ovoui::colour
{

/// The colour of a pixel of the screen; black beside it.
COLORREF screenColour(CPoint point);

/// A window beside the pointer that never covers the pixels that it shows. It takes neither the activation
/// nor the mouse.
class Magnifier : public CWnd
{
public:
    ~Magnifier() override;

    /// Shows what is around a point of the screen, and beside it the colour of the point.
    void show(CWnd& owner, CPoint point);
    void hide();

protected:
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg LRESULT OnNcHitTest(CPoint) { return HTTRANSPARENT; }
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    bool create(CWnd& owner);
    void take(CPoint point);
    void paintPixels(CDC& dc);
    void paintColour(CDC& dc) const;

    CBitmap m_pixels; // those around the point
    COLORREF m_colour = 0;
    MagnifierLayout m_layout;
};

} // namespace ovoui::colour
