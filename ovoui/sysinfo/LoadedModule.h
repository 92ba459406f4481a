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
    std::wstring name;                          ///< the file's name, without its folder
    std::wstring path;                          ///< the full path
    bool hasAddress = false;                    ///< whether the next two are known
    std::uint64_t baseAddress = 0;              ///< where it begins in memory
    std::uint64_t size = 0;                     ///< in bytes
    std::wstring linkTime;                      ///< in local time
    std::wstring fileVersion;                   ///< from the version record, as the rest
    std::wstring productVersion;                ///< four numbers with dots
    std::wstring fileDescription;               ///< one for each language, tabs between them
    std::wstring type;                          ///< such as "DLL", and what kind of driver or font
    std::wstring flags;                         ///< such as "debug" or "pre-release"
    std::wstring system;                        ///< that it was made for
    bool hasVersionRecord = false;              ///< whether the file has a version record
    ModulePlace place = ModulePlace::Elsewhere; ///< where the file lies
};
