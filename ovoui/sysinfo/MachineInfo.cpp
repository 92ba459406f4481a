#include <ovoui/sysinfo/MachineInfo.h>

#include <ovoui/frame/EntryPoint.h>
#include <ovoui/frame/ScreenDc.h>
#include <ovoui/frame/ThemeData.h>
#include <ovoui/sysinfo/core/MachineText.h>

#include <ovocor/Library.h>

#include <windows.h>

using namespace ovoui::sysinfo;
using ovoui::frame::entryPoint;

namespace
{

/// GetVersionEx tells a program only of systems that its manifest names.
std::wstring systemOf()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const HMODULE kernel = ::GetModuleHandleW(L"ntdll.dll");
    if (const auto get = entryPoint<LONG(WINAPI*)(OSVERSIONINFOW*)>(kernel, "RtlGetVersion"))
        get(&version);
    const auto wine = entryPoint<const char*(__cdecl*)()>(kernel, "wine_get_version");
    return systemText(version.dwMajorVersion, version.dwMinorVersion, version.dwBuildNumber,
                      wine ? wine() : "");
}

using DpiForMonitor = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);

unsigned dotsPerInch(HMONITOR monitor)
{
    // Present from Windows 8.1 on; the library stays loaded, which costs nothing more at the next call.
    static const HMODULE library = OVO::LoadSystemLibrary(L"shcore.dll");
    const auto get = entryPoint<DpiForMonitor>(library, "GetDpiForMonitor");
    constexpr int kEffective = 0;
    UINT x = 0;
    UINT y = 0;
    if (get && get(monitor, kEffective, &x, &y) == S_OK)
        return x;
    return static_cast<unsigned>(ovoui::frame::screenResolution());
}

BOOL CALLBACK addMonitor(HMONITOR monitor, HDC, RECT*, LPARAM monitors)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info)) {
        const RECT& place = info.rcMonitor;
        reinterpret_cast<std::vector<MachineMonitor>*>(monitors)->push_back(
            {place.left, place.top, place.right - place.left, place.bottom - place.top, dotsPerInch(monitor),
             (info.dwFlags & MONITORINFOF_PRIMARY) != 0});
    }
    return TRUE;
}

} // namespace

MachineInfo machineInfo()
{
    MachineInfo machine;
    machine.system = systemOf();
    SYSTEM_INFO system{};
    ::GetNativeSystemInfo(&system);
    machine.processors = system.dwNumberOfProcessors;
    machine.themed = CThemeData::getThemeData().IsAppThemed();
    ::EnumDisplayMonitors(nullptr, nullptr, &addMonitor, reinterpret_cast<LPARAM>(&machine.monitors));
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    if (::GlobalMemoryStatusEx(&memory)) {
        machine.memory = memory.ullTotalPhys;
        machine.freeMemory = memory.ullAvailPhys;
    }
    machine.gdiObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    machine.userObjects = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
    return machine;
}

std::wstring machineAsText(const MachineInfo& machine)
{
    return machineText(machine);
}
