#include <ovoui/sysinfo/core/MachineText.h>

namespace ovoui::sysinfo
{
namespace
{

constexpr std::uint64_t kMegabyte = 1024 * 1024;
constexpr std::uint64_t kGigabyte = 1024 * kMegabyte;
constexpr const wchar_t* kLineEnd = L"\r\n";

std::wstring monitorText(const MachineMonitor& monitor)
{
    return L"Monitor: " + std::to_wstring(monitor.width) + L" x " + std::to_wstring(monitor.height) +
           L" at " + std::to_wstring(monitor.left) + L", " + std::to_wstring(monitor.top) + L", " +
           std::to_wstring(monitor.dotsPerInch) + L" dots per inch" + (monitor.primary ? L", primary" : L"") +
           kLineEnd;
}

} // namespace

std::wstring systemText(unsigned major, unsigned minor, unsigned build, const std::string& wine)
{
    const std::wstring windows = L"Windows " + std::to_wstring(major) + L'.' + std::to_wstring(minor) +
                                 L", build " + std::to_wstring(build);
    return wine.empty() ? windows : L"Wine " + std::wstring(wine.begin(), wine.end()) + L" as " + windows;
}

std::wstring memoryText(std::uint64_t bytes)
{
    if (bytes < kGigabyte)
        return std::to_wstring(bytes / kMegabyte) + L" MB";
    const std::uint64_t tenths = bytes / (kGigabyte / 10);
    return std::to_wstring(tenths / 10) + L'.' + std::to_wstring(tenths % 10) + L" GB";
}

std::wstring machineText(const MachineInfo& machine)
{
    std::wstring text = L"System: " + machine.system + L", " + std::to_wstring(machine.processors) +
                        L" processors" + kLineEnd + L"Visual styles: " + (machine.themed ? L"on" : L"off") +
                        kLineEnd;
    for (const MachineMonitor& monitor : machine.monitors)
        text += monitorText(monitor);
    return text + L"Memory: " + memoryText(machine.memory) + L", " + memoryText(machine.freeMemory) +
           L" free" + kLineEnd + L"GDI objects: " + std::to_wstring(machine.gdiObjects) +
           L", USER objects: " + std::to_wstring(machine.userObjects) + kLineEnd;
}

} // namespace ovoui::sysinfo
