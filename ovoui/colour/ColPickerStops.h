/// Not exported. What the picker keeps for the keyboard.
#pragma once

#include <ovoui/colour/ColPicker.h>
#include <ovoui/colour/PickerStop.h>
#include <ovoui/colour/core/KeyedShade.h>

struct ColPicker::Stops
{
    // Their numbers in the dialog; those of the library's dialog items lie around them
    static constexpr UINT kRingId = 20565;
    static constexpr UINT kTriangleId = 20566;
    static constexpr UINT kSwatchesId = 20567;

    std::unique_ptr<ovoui::colour::PickerStop> ring;
    std::unique_ptr<ovoui::colour::PickerStop> triangle;
    std::unique_ptr<ovoui::colour::PickerStop> swatches; ///< null without custom colours

    ovoui::colour::KeyedShade shade;
    int swatch = 0; ///< the one with the mark
    ovoui::colour::ToldColour told;
};
