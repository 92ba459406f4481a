/// The shade that the keys have led to, and what accessibility is told of a colour. Plain values, no windows.
#pragma once

#include <ovoui/colour/core/WheelKeys.h>

#include <ovocor/Colour.h>

namespace ovoui::colour
{

/// The hue in whole degrees, 0 to 359.
int hueOf(const Colour& colour);
/// The same colour with another hue.
Colour withHue(const Colour& colour, int hue);
/// In per cent, rounded.
Shade shadeOf(const Colour& colour);

/// Black and white have no saturation of their own: what the keys were at is kept as long as the colour is
/// the one that they led to.
class KeyedShade
{
public:
    Shade of(const Colour& colour) const;

    /// Where a key leads from a colour.
    Colour moved(const Colour& colour, WheelKey key, frame::HeldKeys held);

private:
    Shade m_shade;
    Colour m_colour;
};

/// Hue and shade of which accessibility was told last.
class ToldColour
{
public:
    struct News
    {
        bool hue = false;
        bool shade = false;

        friend bool operator==(const News&, const News&) = default;
    };

    /// Nothing is news of this colour: it is there from the beginning.
    void begin(const Colour& colour);
    /// What is to be told of a colour.
    News news(const Colour& colour);

private:
    int m_hue = -1;
    Shade m_shade{-1, -1};
};

} // namespace ovoui::colour
