/// Not exported. WinINet, which is large and needed by few programs: it is not linked, but loaded when it is
/// first needed.
#pragma once

#include <windows.h>

namespace ovoui::update
{

/// Has the texts of WinINet's error codes, too. It stays loaded. Null where the system has none.
HMODULE winInet();

} // namespace ovoui::update
