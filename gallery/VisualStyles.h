// Visual styles for the windows of this program.
#pragma once

#include <windows.h>

/// Switches them on or off, for windows that are there and for those to come. Without UxTheme nothing
/// happens.
void setVisualStyles(bool on);

/// Makes a new window and its children look so too, where the platform does not see to it itself.
void followVisualStyles(HWND window);
