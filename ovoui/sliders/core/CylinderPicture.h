/// What a ribbed cylinder looks like from the side, along its turning direction: strips of one colour and the
/// lines of the ribs. Plain values, no windows.
#pragma once

#include <vector>

namespace ovoui::sliders
{

struct Shade
{
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const Shade&, const Shade&) = default;
};

struct CylinderColours
{
    Shade dark;  ///< of what faces away
    Shade light; ///< of what faces the viewer
    Shade face;  ///< of the bright bands
};

/// From `from` up to, not including, `to`, in pixels along the turning direction.
struct Strip
{
    int from = 0;
    int to = 0;
    Shade colour;
};

/// One pixel across the whole cylinder.
struct RibLine
{
    int at = 0;
    Shade colour;
};

struct CylinderPicture
{
    std::vector<Strip> strips;  ///< side by side, without a gap
    std::vector<RibLine> lines; ///< drawn over the strips in this order; some may lie outside
};

/// What is seen of a picture, as the fewest strips: side by side, each of another colour than its neighbours.
/// A line at the very first coordinate is not drawn.
std::vector<Strip> seenStrips(const CylinderPicture& picture);

/// `dark` and `light` mixed by the cosine of the angle from the viewer, channel by channel, rounded.
Shade shadeAt(double degreesFromViewer, const Shade& dark, const Shade& light);

/// A cylinder that lies from `from` up to, not including, `to`, turned by `rotation` degrees. There is a rib
/// every 5 degrees, seen where its sine puts it; the strip between two ribs has the colour of its middle.
/// Every quarter of a turn stands out as a bright band when `quarters` is set. Line colours fade towards the
/// edges, where the ribs lie closer than the pixels.
CylinderPicture cylinderPicture(int from, int to, double rotation, const CylinderColours& colours,
                                bool quarters);

} // namespace ovoui::sliders
