/// Not exported. Functions of the system that are asked for by name, since not every version has them.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// Null without the library, and when it has no function of this name. `Function` is its type, such as
/// `decltype(&::OpenThemeData)`.
template <class Function>
Function entryPoint(HMODULE library, const char* name)
{
    return library ? reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)))
                   : nullptr;
}

} // namespace ovoui::frame
