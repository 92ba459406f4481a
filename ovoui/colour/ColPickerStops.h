/// Not exported. What the picker keeps for the keyboard.
#pragma once

#include <ovoui/colour/ColPicker.h>
#include <ovoui/colour/PickerStop.h>

struct ColPicker::Stops
{
    // Their numbers in the dialog; those of the library's dialog items lie around them
    static constexpr UINT kRingId = 20565;
    static constexpr UINT kTriangleId = 20566;
    static constexpr UINT kSwatchesId = 20567;

    std::unique_ptr<ovoui::colour::PickerStop> ring;
    std::unique_ptr<ovoui::colour::PickerStop> triangle;
    std::unique_ptr<ovoui::colour::PickerStop> swatches; ///< null without custom colours

    /// Black and white have no saturation of their own: what the keys were at is kept as long as the colour
    /// is the one that they led to.
    ovoui::colour::Shade shade;
    Colour shadeColour;

    int swatch = 0; ///< the one with the mark

    // What accessibility was told last
    int toldHue = -1;
    ovoui::colour::Shade toldShade{-1, -1};
};
