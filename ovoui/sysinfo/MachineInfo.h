/// What a support case wants to know about the machine.
///
///     report << machineAsText(machineInfo());
#pragma once

#include <ovoui/export.h>

#include <cstdint>
#include <string>
#include <vector>

struct MachineMonitor
{
    int left = 0; ///< of the desktop, in pixels
    int top = 0;
    int width = 0;
    int height = 0;
    unsigned dotsPerInch = 96;
    bool primary = false;
};

struct MachineInfo
{
    std::wstring system; ///< name, version and build; with Wine also its version
    unsigned processors = 0;
    bool themed = false;
    std::vector<MachineMonitor> monitors;
    std::uint64_t memory = 0;     ///< of the machine, in bytes
    std::uint64_t freeMemory = 0; ///< of it
    unsigned gdiObjects = 0;      ///< of this process; 0 where the system does not count
    unsigned userObjects = 0;
};

/// As it is now. What the system does not tell stays 0 or empty.
OVOUI_API MachineInfo machineInfo();

/// Some lines, each ended by CR LF.
OVOUI_API std::wstring machineAsText(const MachineInfo& machine);
