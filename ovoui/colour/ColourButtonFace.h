/// Not exported. How a colour button looks.
#pragma once

#include <ovocor/Colour.h>

#include <afxwin.h>

namespace ovoui::colour
{

struct ButtonFaceLayout;

class ColourButtonFace
{
public:
    struct Look
    {
        bool dropped = false;
        bool hot = false; ///< the pointer is over it
    };

    ColourButtonFace(CWnd& button, const Colour& colour, const Look& look);

    /// `state` has flags ODS_... Nothing more is drawn once the parent has destroyed the button.
    void paint(CDC& dc, const CRect& rect, UINT state) const;

private:
    /// Whether the button is still there: the parent, which is asked for the brush, may destroy or delete it.
    bool paintBack(CDC& dc, CRect rect, UINT state) const;
    void paintColour(CDC& dc, const ButtonFaceLayout& layout, bool enabled, COLORREF ink) const;

    bool pressed(UINT state) const;
    /// The state of a themed push button, one of PBS_.
    int themedState(UINT state) const;
    /// The colour of a text on the button, which the arrow and the frame of the swatch have.
    COLORREF ink(UINT state) const;

    CWnd& m_button;
    Colour m_colour;
    Look m_look;
};

} // namespace ovoui::colour
