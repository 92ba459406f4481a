/// Not exported: whether the resource module belongs to this library.
#pragma once

#include <windows.h>

namespace ovoui
{

/// Whether the module's version record has the library's own version. If not, tells the user both versions in
/// a box, unless the process has asked the system to be silent about such errors (SEM_FAILCRITICALERRORS),
/// and any debugger. Made for the time while the library is being loaded.
bool isOfOwnVersion(HMODULE resources);

} // namespace ovoui
