/// What keys do to hue, shade and swatches. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/HeldKeys.h>

#include <optional>

namespace ovoui::colour
{

enum class WheelKey
{
    Left,
    Right,
    Up,
    Down,
    PageUp,
    PageDown,
    Home,
    End,
};

/// By the platform's virtual key; nothing for other keys.
std::optional<WheelKey> wheelKeyOf(unsigned virtualKey);
/// Where rows of cells are mirrored, the next one is at the left.
WheelKey mirrored(WheelKey key);

/// The hue, 0 to 359 degrees, that a key leads to. Arrows go round by one, with Shift by ten, as the page
/// keys do; Home goes to 0 and End to 359.
int hueAfter(int hue, WheelKey key, frame::HeldKeys held);

/// In per cent.
struct Shade
{
    int lightness = 0;
    int saturation = 0;

    friend bool operator==(const Shade&, const Shade&) = default;
};

/// Left and right change the lightness, up and down the saturation, by one and with Shift by ten; the page
/// keys change the saturation by ten. Home and End go to the ends of the lightness, with Ctrl of the
/// saturation.
Shade shadeAfter(Shade shade, WheelKey key, frame::HeldKeys held);

/// The place in a grid of `count` cells, rows of `columns`, that a key leads to; where there is none it
/// stays. Left and right go on in the next row; Home and End go to the first and the last cell, the page keys
/// to the first and the last row.
int cellAfter(int cell, int count, int columns, WheelKey key);

} // namespace ovoui::colour
