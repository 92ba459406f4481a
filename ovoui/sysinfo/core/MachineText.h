/// What is known about the machine, as text. Plain values, no windows.
#pragma once

#include <ovoui/sysinfo/Machine.h>

#include <cstdint>
#include <string>

namespace ovoui::sysinfo
{

/// "Windows 10.0, build 19045", with the version of Wine in front where there is one.
std::wstring systemText(unsigned major, unsigned minor, unsigned build, const std::string& wine);

/// In the unit that leaves at most four digits: "512 MB", "15.6 GB".
std::wstring memoryText(std::uint64_t bytes);

/// See MachineInfo.h.
std::wstring machineText(const MachineInfo& machine);

} // namespace ovoui::sysinfo
