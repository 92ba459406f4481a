/// Not exported. What WM_GETDLGCODE is asked about.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// Whether the dialog asks if this key, which goes down, is for the control. `lParam` is that of
/// WM_GETDLGCODE.
inline bool asksForKey(LPARAM lParam, UINT virtualKey)
{
    const auto* const asked = reinterpret_cast<const MSG*>(lParam);
    return asked && asked->message == WM_KEYDOWN && asked->wParam == virtualKey;
}

} // namespace ovoui::frame
