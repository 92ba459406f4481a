// A box in space that two angles turn.
#pragma once

#include <afxwin.h>

/// Drawn with plain GDI, lit from the viewer's left shoulder.
class TurnedBox : public CWnd
{
public:
    bool create(CWnd& parent);

    /// `heading` turns it about its upright axis, `tilt` towards the viewer; in degrees.
    void turn(double heading, double tilt);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void draw(CDC& dc, const CRect& client) const;

    double m_heading = 0;
    double m_tilt = 0;
};
