/// Not exported. What the picker keeps for the keyboard.
#pragma once

#include <ovoui/colour/ColPicker.h>
#include <ovoui/colour/PickerStop.h>

struct ColPicker::Stops
{
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
