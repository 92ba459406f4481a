/// The machine, its system and its monitors, as data.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A monitor of the desktop.
struct MachineMonitor
{
    int left = 0;              ///< of the desktop, in pixels
    int top = 0;               ///< of the desktop, in pixels
    int width = 0;             ///< in pixels
    int height = 0;            ///< in pixels
    unsigned dotsPerInch = 96; ///< the resolution that Windows uses for it
    bool primary = false;      ///< whether it is the one with the origin of the desktop
};

/// The machine, its system and its monitors.
struct MachineInfo
{
    std::wstring system;                  ///< name, version and build; with Wine also its version
    unsigned processors = 0;              ///< logical ones
    bool themed = false;                  ///< whether visual styles are on
    std::vector<MachineMonitor> monitors; ///< in the system's order
    std::uint64_t memory = 0;             ///< of the machine, in bytes
    std::uint64_t freeMemory = 0;         ///< of it
    unsigned gdiObjects = 0;              ///< of this process; 0 where the system does not count
    unsigned userObjects = 0;             ///< the same for windows, menus, cursors and the like
};
