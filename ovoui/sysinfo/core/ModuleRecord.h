/// A loaded module as a line of text. Plain values, no windows.
#pragma once

#include <cstdint>
#include <string>

namespace ovoui::sysinfo
{

/// Texts that are not known are empty.
struct ModuleRecord
{
    std::wstring name;
    std::wstring path;
    bool hasAddress = false;
    std::uint64_t baseAddress = 0;
    std::uint64_t size = 0; ///< in bytes
    std::wstring linkTime;
    std::wstring fileVersion;
    std::wstring productVersion;
    std::wstring fileDescription; ///< one for each language, tabs between them
    std::wstring type;
    std::wstring flags;
    std::wstring system;
};

/// The names of the columns, with tabs between them.
extern const wchar_t* const kModuleColumns;

/// The record's columns, with tabs between them.
std::wstring moduleLine(const ModuleRecord& record);

} // namespace ovoui::sysinfo
