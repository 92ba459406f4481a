/// Not exported: bitmap resources as images of a toolbar control.
#pragma once

#include <windows.h>

namespace ovoui::toolbar
{

/// Adds the images of a bitmap resource, `width` pixels each, found by the framework's search. Index of the
/// first one, -1 on failure.
int addStrip(HWND toolBar, int bitmapId, int width);

} // namespace ovoui::toolbar
