// Pictures of windows in PNG files.
#pragma once

#include <windows.h>

#include <string>

/// What the screen shows where the window is, without what lies beyond the screen. False when the file cannot
/// be written; GDI+ must be started.
bool saveScreenshot(HWND window, const std::wstring& path);

/// The same, with the windows that the dialog has opened beside itself.
bool saveScreenshotOfDialog(HWND dialog, const std::wstring& path);
