#include "PlainWheel.h"

#include <ovoui/frame/core/BoxParts.h>

#include <ovocor/Colour.h>

using namespace ovoui::colour;

namespace
{

std::uint32_t pixelOf(const Colour& colour)
{
    unsigned char bytes[3];
    colour.getDib24(bytes);
    return 0xFF000000u | static_cast<std::uint32_t>(bytes[2]) << 16 |
           static_cast<std::uint32_t>(bytes[1]) << 8 | bytes[0];
}

} // namespace

void drawPlainWheel(std::uint32_t* pixels, const ovoui::frame::Box& wheel, Angle hue)
{
    const HueRing ring = ringIn(wheel);
    const ShadeTriangle triangle = triangleIn(ring);
    for (int y = wheel.top; y < wheel.bottom; ++y)
        for (int x = wheel.left; x < wheel.right; ++x, ++pixels) {
            const HueRing::Hit onRing = ring.test({x, y}, 0);
            if (onRing.onRing)
                *pixels = pixelOf(Colour::hls(onRing.hue, 0.5, 1.0));
            if (!contains(triangle.rect(), x, y))
                continue;
            const ShadeTriangle::Hit hit = triangle.test({x, y}, 0);
            if (hit.inTriangle)
                *pixels = pixelOf(Colour::hls(hue, hit.lightness, hit.saturation));
        }
}
