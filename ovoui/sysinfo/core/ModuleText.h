/// Loaded modules as text: with tabs, as a Markdown table, as JSON. Plain values, no windows.
#pragma once

#include <ovoui/sysinfo/LoadedModule.h>

#include <string>
#include <vector>

namespace ovoui::sysinfo
{

/// The names of the columns, with tabs between them.
extern const wchar_t* const kModuleColumns;

/// The module's columns, with tabs between them.
std::wstring moduleLine(const LoadedModule& module);

/// As the C runtime prints pointers: sixteen capital digits.
std::wstring addressText(std::uint64_t address);

/// Hexadecimal with a prefix.
std::wstring sizeText(std::uint64_t size);

/// See LoadedModules.h.
std::wstring textOf(const std::vector<LoadedModule>& modules);
std::wstring markdownOf(const std::vector<LoadedModule>& modules);
std::wstring jsonOf(const std::vector<LoadedModule>& modules);

} // namespace ovoui::sysinfo
