#include <ovoui/sysinfo/core/MachineText.h>

namespace ovoui::sysinfo
{
namespace
{

constexpr std::uint64_t kMegabyte = 1024 * 1024;
constexpr std::uint64_t kGigabyte = 1024 * kMegabyte;

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

} // namespace ovoui::sysinfo
