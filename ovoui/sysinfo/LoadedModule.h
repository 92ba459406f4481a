/// A loaded module, as the system and the version record of its file describe it.
#pragma once

#include <cstdint>
#include <string>

/// Where the file of a module lies.
enum class ModulePlace
{
    Program,  ///< in the program's folder or below
    System,   ///< in one of the folders that the system keeps its own libraries in, or below
    Elsewhere ///< anywhere else: a plug-in, or something that does not belong here
};

/// Texts that are not known are empty.
struct LoadedModule
{
    std::wstring name;
    std::wstring path;
    bool hasAddress = false;
    std::uint64_t baseAddress = 0;
    std::uint64_t size = 0; ///< in bytes
    std::wstring linkTime;  ///< in local time
    std::wstring fileVersion;
    std::wstring productVersion;
    std::wstring fileDescription; ///< one for each language, tabs between them
    std::wstring type;
    std::wstring flags;
    std::wstring system;
    bool hasVersionRecord = false;
    ModulePlace place = ModulePlace::Elsewhere;
};
