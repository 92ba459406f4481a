#include <ovoui/colour/ColourHistory.h>

#include <ovoui/colour/core/ColourModes.h>

namespace ovoui::colour
{

ColourHistory::ColourHistory(const Colour& first)
    : m_colours{first}
{
}

void ColourHistory::add(const Colour& colour)
{
    if (!differ(colour, m_colours[m_present], true))
        return;
    m_colours.resize(m_present + 1);
    m_colours.push_back(colour);
    ++m_present;
}

const Colour* ColourHistory::back()
{
    return m_present == 0 ? nullptr : &m_colours[--m_present];
}

const Colour* ColourHistory::forward()
{
    return m_present + 1 == m_colours.size() ? nullptr : &m_colours[++m_present];
}

} // namespace ovoui::colour
