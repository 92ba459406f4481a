// Lengths at the resolution of the monitor that shows them.
#pragma once

#include <windows.h>

/// Dots per inch where a window is; 96 is a scale of 100 per cent.
int dotsPerInch(HWND window);

/// The window, which has no parent, was told by WM_DPICHANGED that its monitor has this resolution; with 0
/// the system is asked again. Not every platform knows of it in other ways.
void noteResolution(HWND window, int dots);

/// Dots per inch for which the system makes dialogs inside a window.
int dotsOfDialogs(HWND parent);

/// Pixels for a length that is given in pixels at 96 dots per inch.
int scaled(HWND window, int length);

/// Pixels for a size in the dialog units of a font.
SIZE dialogUnits(HWND window, HFONT font, SIZE size);
