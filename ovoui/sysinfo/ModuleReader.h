/// Not exported. The modules of this process, read from the system.
#pragma once

#include <string>

namespace ovoui::sysinfo
{

/// The loaded modules as they are now: a line with the names of the columns and one for each module, each
/// ended by CR LF. When the system does not give them, a sentence that says so.
std::wstring loadedModulesText();

} // namespace ovoui::sysinfo
