#include <ovoui/lists/ColourEntry.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/lists/SolidFill.h>
#include <ovoui/lists/core/Checkerboard.h>

using ovoui::frame::toBox;
using ovoui::lists::Checkerboard;
using ovoui::lists::SolidFill;

void fillColourEntryBgd(CDC& dc, DWORD colour, DWORD checkA, DWORD checkB, const CRect& rect)
{
    SolidFill fill(dc);
    fill.setColour(colour);
    if (checkA == checkB) {
        fill(toBox(rect));
        return;
    }
    const Checkerboard squares(toBox(rect));
    fill(squares.plain());
    fill.setColour(checkA);
    fill(squares.board());
    fill.setColour(checkB);
    squares.eachSecond(fill);
}
