#include <ovoui/colour/core/KeyedShade.h>

#include <ovoui/colour/core/ColourModes.h>

#include <utility>

namespace ovoui::colour
{

int hueOf(const Colour& colour)
{
    return valuesOf(colour, ColPickerModeHLS)[0] % 360;
}

Colour withHue(const Colour& colour, int hue)
{
    return Colour::hlsa(Angle::degrees(hue), colour.l_hls(), colour.s_hls(), colour.a());
}

Shade shadeOf(const Colour& colour)
{
    const Values values = valuesOf(colour, ColPickerModeHLS);
    return {values[1], values[2]};
}

Shade KeyedShade::of(const Colour& colour) const
{
    return differ(colour, m_colour, true) ? shadeOf(colour) : m_shade;
}

Colour KeyedShade::moved(const Colour& colour, WheelKey key, frame::HeldKeys held)
{
    m_shade = shadeAfter(of(colour), key, held);
    m_colour =
        Colour::hlsa(colour.h_hls(), m_shade.lightness / 100.0, m_shade.saturation / 100.0, colour.a());
    return m_colour;
}

void ToldColour::begin(const Colour& colour)
{
    news(colour);
}

ToldColour::News ToldColour::news(const Colour& colour)
{
    const int hue = hueOf(colour);
    const Shade shade = shadeOf(colour);
    return {std::exchange(m_hue, hue) != hue, std::exchange(m_shade, shade) != shade};
}

} // namespace ovoui::colour
