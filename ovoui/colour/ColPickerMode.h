/// The colour models of the picker.
#pragma once

/// What the picker's three edits and sliders stand for. The numbers are kept by hosts.
enum ColPickerModeType : int
{
    ColPickerModeRGB = 1, ///< red, green, blue: 0 to 255
    ColPickerModeHLS = 2, ///< hue 0 to 359, lightness and saturation 0 to 100
    ColPickerModeHSV = 3, ///< hue 0 to 359, saturation and value 0 to 100
};
