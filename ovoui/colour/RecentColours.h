/// The colours that were used last.
#pragma once

#include <ovoui/colour/UnitExport.h>

#include <ovocor/Colour.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::colour
{

/// Opaque colours, the last one used first, each of them once.
class OVOUI_UNIT_API RecentColours
{
public:
    /// At most `room` colours are kept.
    explicit RecentColours(std::size_t room);

    /// Puts a colour in front, and takes it away further back. Its alpha is left out.
    void use(const Colour& colour);

    /// The last one used first.
    const std::vector<Colour>& colours() const { return m_colours; }

    // For a profile. What cannot be read is left out.
    /// The colours as a text for a profile.
    std::wstring text() const;
    /// Takes the colours of such a `text`. What cannot be read is left out.
    void setText(std::wstring_view text);

private:
    std::size_t m_room;
    std::vector<Colour> m_colours;
};

} // namespace ovoui::colour
