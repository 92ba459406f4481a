/// Line ends as edit controls want them. Plain values, no windows.
#pragma once

#include <string>

namespace ovoui::frame
{

/// The lines of a text, with whatever ends, with CR LF between them.
std::wstring withWindowsLineEnds(const std::wstring& text);

} // namespace ovoui::frame
