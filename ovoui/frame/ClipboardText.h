/// Not exported: text on the clipboard.
#pragma once

#include <windows.h>

#include <string_view>

namespace ovoui::frame
{

/// Replaces the clipboard's contents by Unicode text. Returns false, and leaves the clipboard as it was, when
/// another program holds it.
bool setClipboardText(HWND owner, std::wstring_view text);

} // namespace ovoui::frame
