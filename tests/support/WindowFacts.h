// What several tests ask a window.
#pragma once

#include <windows.h>

#include <string>

namespace support
{

inline std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)), L'\0');
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

inline std::wstring classOf(HWND window)
{
    wchar_t name[257]; // as long as a name can be
    return {name, static_cast<std::size_t>(::GetClassNameW(window, name, 257))};
}

/// The same in small letters, as tables have it.
inline std::wstring lowerClassOf(HWND window)
{
    std::wstring name = classOf(window);
    ::CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

} // namespace support
