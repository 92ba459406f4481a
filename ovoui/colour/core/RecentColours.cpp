#include <ovoui/colour/RecentColours.h>

#include <ovoui/colour/ColourText.h>

#include <algorithm>

namespace ovoui::colour
{

RecentColours::RecentColours(std::size_t room)
    : m_room(room)
{
}

void RecentColours::use(const Colour& colour)
{
    const auto code = colour.colorref();
    std::erase_if(m_colours, [&](const Colour& other) { return other.colorref() == code; });
    m_colours.insert(m_colours.begin(), Colour::colorref(code));
    m_colours.resize(std::min(m_colours.size(), m_room));
}

std::wstring RecentColours::text() const
{
    return textOfColours(m_colours);
}

void RecentColours::setText(std::wstring_view text)
{
    m_colours.clear();
    const auto read = coloursFromText(text);
    for (auto colour = read.rbegin(); colour != read.rend(); ++colour)
        if (*colour)
            use(**colour);
}

} // namespace ovoui::colour
