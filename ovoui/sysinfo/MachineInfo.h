/// What a support case wants to know about the machine.
///
///     report << machineAsText(machineInfo());
#pragma once

#include <ovoui/export.h>
#include <ovoui/sysinfo/Machine.h>

#include <string>

/// As it is now. What the system does not tell stays 0 or empty.
OVOUI_API MachineInfo machineInfo();

/// Some lines about `machine`, each ended by CR LF.
OVOUI_API std::wstring machineAsText(const MachineInfo& machine);
