/// Not exported. The text of any window.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace ovoui::frame
{

/// All of it; empty when the window is gone.
inline std::wstring windowText(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)), L'\0');
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

} // namespace ovoui::frame
