// Lengths at the resolution of the monitor that shows them.
#pragma once

#include <windows.h>

/// Dots per inch where a window is; 96 is a scale of 100 per cent.
int dotsPerInch(HWND window);

/// Pixels for a length that is given in pixels at 96 dots per inch.
int scaled(HWND window, int length);

/// Pixels for a size in the dialog units of a font.
SIZE dialogUnits(HWND window, HFONT font, SIZE size);
