/// Where the squares of a colour swatch lie: the colour at the left, a checkerboard at the right.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::lists
{

using frame::Box;

/// A swatch in a rectangle. The rows of squares lie on multiples of the cell's size, counted from the top of
/// the drawing surface, so that swatches of neighbouring rows continue each other's pattern.
class Checkerboard
{
public:
    explicit Checkerboard(const Box& area);

    /// The left half, which shows the colour.
    Box plain() const { return {m_area.left, m_area.top, m_middle, m_area.bottom}; }

    /// The right half. Empty when the area is too small for squares: less than 3 pixels high or 2 wide. Above
    /// the drawing surface it begins with the first whole row of squares.
    Box board() const;

    /// Side of a square in pixels; 0 when there are none.
    int cell() const { return m_cell; }

    /// Calls `draw(const Box&)` for every square of the second colour, cut to the area. The rest of the board
    /// has the first colour.
    template <class Draw>
    void eachSecond(const Draw& draw) const
    {
        if (m_cell < 1)
            return;
        for (int row = m_firstRow; row * m_cell < m_area.bottom; ++row)
            for (int column = (row % 2 == 0) ? 1 : 0; m_middle + column * m_cell < m_area.right; column += 2)
                draw(square(column, row));
    }

private:
    Box square(int column, int row) const;

    Box m_area;
    int m_middle;
    int m_cell;
    int m_firstRow = 0;
};

} // namespace ovoui::lists
