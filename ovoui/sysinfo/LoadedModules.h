/// The modules of the process as data, for crash reports and support cases.
///
///     report << modulesAsMarkdown(loadedModules());
#pragma once

#include <ovoui/export.h>
#include <ovoui/sysinfo/LoadedModule.h>

#include <string>
#include <vector>

/// The modules that are loaded now, in the system's order. Throws WinError when the system does not give
/// them.
OVOUI_API std::vector<LoadedModule> loadedModules();

/// A line with the names of the columns and one for each module, each ended by CR LF; tabs between columns.
/// `modules` stand in their order.
OVOUI_API std::wstring modulesAsText(const std::vector<LoadedModule>& modules);

/// A table of `modules` as Markdown has it, with the same columns; lines end with LF.
OVOUI_API std::wstring modulesAsMarkdown(const std::vector<LoadedModule>& modules);

/// An array with an object for each module; lines end with LF. Addresses are texts, since not every reader of
/// JSON keeps 64 bits of a number.
OVOUI_API std::wstring modulesAsJson(const std::vector<LoadedModule>& modules);
