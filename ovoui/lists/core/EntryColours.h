/// The colours that a row's colour entry leads to.
#pragma once

#include <cstdint>

namespace ovoui::lists
{

/// A COLORREF whose highest byte is the alpha: 255 opaque, 0 fully transparent.
using ColourEntry = std::uint32_t;

/// All as palette-relative COLORREF values.
struct EntryColours
{
    std::uint32_t solid;     ///< without the alpha
    std::uint32_t overBlack; ///< blended with black
    std::uint32_t overWhite; ///< blended with white
    std::uint32_t text;      ///< black or white, whichever can be read on the colour

    friend bool operator==(const EntryColours&, const EntryColours&) = default;
};

EntryColours coloursOf(ColourEntry entry);

} // namespace ovoui::lists
