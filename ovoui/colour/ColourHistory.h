/// The colours that a dialog has shown, to go back and forward.
#pragma once

#include <ovoui/colour/UnitExport.h>

#include <ovocor/Colour.h>

#include <cstddef>
#include <vector>

namespace ovoui::colour
{

class OVOUI_UNIT_API ColourHistory
{
public:
    explicit ColourHistory(const Colour& first);

    /// Makes a colour the present one, and forgets those that were undone. One that equals the present
    /// colour, its hue included, is not added.
    void add(const Colour& colour);

    /// The colour before the present one, or after it, which becomes the present one; null at the end. Good
    /// until the next call.
    const Colour* back();
    const Colour* forward();

private:
    std::vector<Colour> m_colours;
    std::size_t m_present = 0;
};

} // namespace ovoui::colour
