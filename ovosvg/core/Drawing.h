/// A drawing in Scalable Vector Graphics, read and made into pixels. Plain values, no windows.
#pragma once

#include <ovosvg/core/Canvas.h>
#include <ovosvg/core/XmlReader.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace ovosvg
{

/// A drawing that was read.
class Drawing
{
public:
    /// Raises SvgFailure for a text that is no drawing.
    explicit Drawing(std::string_view utf8);

    /// The picture at a size, both at least 1, with `currentColour` (0xAARRGGBB) for currentColor where the
    /// drawing does not say another. Adds to `notes` what could not be drawn, once each. Raises SvgFailure,
    /// TooLarge, for a size or a drawing beyond the limits.
    Canvas draw(int width, int height, std::uint32_t currentColour, std::vector<SvgNote>& notes,
                const Budget& budget = Budget()) const;

private:
    XmlElement m_root;
};

} // namespace ovosvg
