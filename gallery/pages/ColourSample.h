// What a colour looks like in use.
#pragma once

#include <ovocor/Colour.h>

#include <afxwin.h>

/// A leaf in the colour, on white and on black, and text in it. What is transparent shows the ground.
class ColourSample : public CWnd
{
public:
    bool create(CWnd& parent);
    void show(const Colour& colour);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void draw(CDC& dc, const CRect& part, COLORREF ground) const;
    COLORREF over(COLORREF ground) const;

    Colour m_colour;
};
