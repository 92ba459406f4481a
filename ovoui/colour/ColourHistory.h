/// The colours that a dialog has shown, to go back and forward.
#pragma once

#include <ovoui/colour/UnitExport.h>

#include <ovocor/Colour.h>

#include <cstddef>
#include <vector>

namespace ovoui::colour
{

/// A row of colours with a present one, for undo and redo.
class OVOUI_UNIT_API ColourHistory
{
public:
    /// Begins with `first` as the present colour.
    explicit ColourHistory(const Colour& first);

    /// Makes a colour the present one, and forgets those that were undone. One that equals the present
    /// colour, its hue included, is not added.
    void add(const Colour& colour);

    /// The colour before the present one, which becomes the present one; null at the beginning. Good until
    /// the next call.
    const Colour* back();
    /// The colour after the present one, which becomes the present one; null at the end. Good until the next
    /// call.
    const Colour* forward();

private:
    std::vector<Colour> m_colours;
    std::size_t m_present = 0;
};

} // namespace ovoui::colour
