/// Not exported. Texts of string resources.
#pragma once

#include <afxwin.h>

#include <string>

namespace ovoui::frame
{

/// A string by its number, wherever the framework finds it: the host's module may hold another one. Empty
/// without one.
inline std::wstring loadedText(UINT id)
{
    CString text;
    text.LoadString(id);
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

} // namespace ovoui::frame
