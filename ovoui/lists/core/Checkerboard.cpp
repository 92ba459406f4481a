#include <ovoui/lists/core/Checkerboard.h>

#include <algorithm>

namespace ovoui::lists
{

Checkerboard::Checkerboard(const Box& area)
    : m_area(area)
    , m_middle(area.left + area.width() / 2)
    , m_cell(std::max(0, std::min((area.height() + 1) / 4, (area.width() + 1) / 3)))
{
    if (m_cell > 0)
        m_firstRow = area.top / m_cell;
}

Box Checkerboard::board() const
{
    return m_cell > 0 ? Box{m_middle, std::max(m_area.top, m_firstRow * m_cell), m_area.right, m_area.bottom}
                      : Box{};
}

Box Checkerboard::square(int column, int row) const
{
    const int left = m_middle + column * m_cell;
    const int top = row * m_cell;
    return {left, std::max(top, m_area.top), std::min(left + m_cell, m_area.right),
            std::min(top + m_cell, m_area.bottom)};
}

} // namespace ovoui::lists
