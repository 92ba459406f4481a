// The module list as data, and what is known about the machine.
#include <testkit/ImportPatch.h>

#include <ovoui/sysinfo/LoadedModules.h>
#include <ovoui/sysinfo/MachineInfo.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>

#include <gtest/gtest.h>

#include <tlhelp32.h>

#include <algorithm>

using ovo::testkit::ImportPatch;

namespace
{

const LoadedModule* find(const std::vector<LoadedModule>& modules, const wchar_t* name)
{
    const auto found = std::ranges::find_if(
        modules, [&](const LoadedModule& module) { return lowercase(module.name) == name; });
    return found == modules.end() ? nullptr : &*found;
}

HANDLE WINAPI noSnapshot(DWORD, DWORD)
{
    ::SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

int g_refusals = 0;

/// As while other threads load modules.
HANDLE WINAPI snapshotAfterRefusals(DWORD flags, DWORD process)
{
    if (g_refusals == 0)
        return ::CreateToolhelp32Snapshot(flags, process);
    --g_refusals;
    ::SetLastError(ERROR_BAD_LENGTH);
    return INVALID_HANDLE_VALUE;
}

} // namespace

TEST(LoadedModules, KnowWhereTheirFilesLie)
{
    wchar_t folder[MAX_PATH]{};
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring elsewhere = std::wstring(folder) + L"sysinfo_elsewhere.dll";
    ASSERT_TRUE(::CopyFileW(L"sysinfo_plain.dll", elsewhere.c_str(), FALSE));
    const HMODULE plugIn = ::LoadLibraryW(elsewhere.c_str());
    ASSERT_NE(plugIn, nullptr);

    const std::vector<LoadedModule> modules = loadedModules();
    const LoadedModule* const own = find(modules, L"ovoui.dll");
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->place, ModulePlace::Program);
    EXPECT_TRUE(own->hasVersionRecord);
    EXPECT_EQ(own->baseAddress, reinterpret_cast<std::uintptr_t>(::GetModuleHandleW(L"ovoui.dll")));
    const LoadedModule* const system = find(modules, L"user32.dll");
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(system->place, ModulePlace::System);
    const LoadedModule* const other = find(modules, L"sysinfo_elsewhere.dll");
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(other->place, ModulePlace::Elsewhere);
    EXPECT_FALSE(other->hasVersionRecord);

    ::FreeLibrary(plugIn);
    ::DeleteFileW(elsewhere.c_str());
}

TEST(LoadedModules, EveryFormHasEveryModule)
{
    const std::vector<LoadedModule> modules = loadedModules();
    const auto lines = [](const std::wstring& text) { return std::ranges::count(text, L'\n'); };
    const auto count = static_cast<std::ptrdiff_t>(modules.size());
    EXPECT_EQ(lines(modulesAsText(modules)), count + 1);
    EXPECT_EQ(lines(modulesAsMarkdown(modules)), count + 2);
    EXPECT_EQ(lines(modulesAsJson(modules)), count + 2);
}

TEST(LoadedModules, AFailureIsAnErrorWithItsCause)
{
    const ImportPatch patch(L"ovoui.dll", "CreateToolhelp32Snapshot", reinterpret_cast<void*>(&noSnapshot));
    try {
        loadedModules();
        ADD_FAILURE() << "no error";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), DWORD{ERROR_ACCESS_DENIED});
        EXPECT_EQ(std::wstring(error.wwhat()),
                  L"CreateToolhelp32Snapshot failed: " + formatMessage(ERROR_ACCESS_DENIED));
    }
}

TEST(LoadedModules, AreListedWhenTheSystemCanTellThemAgain)
{
    const ImportPatch patch(L"ovoui.dll", "CreateToolhelp32Snapshot",
                            reinterpret_cast<void*>(&snapshotAfterRefusals));
    g_refusals = 3;
    EXPECT_NE(find(loadedModules(), L"ovoui.dll"), nullptr);

    g_refusals = 1'000'000; // for ever
    EXPECT_THROW(loadedModules(), WinError);
    EXPECT_GT(g_refusals, 0);
}

// The machine

TEST(MachineInfo, TellsWhatTheSystemTells)
{
    const MachineInfo machine = machineInfo();
    EXPECT_NE(machine.system.find(L"Windows "), std::wstring::npos);
    EXPECT_GE(machine.processors, 1u);
    EXPECT_GT(machine.memory, machine.freeMemory);
    ASSERT_GE(machine.monitors.size(), 1u);
    const auto primary = std::ranges::find(machine.monitors, true, &MachineMonitor::primary);
    ASSERT_NE(primary, machine.monitors.end());
    EXPECT_EQ(primary->width, ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(primary->height, ::GetSystemMetrics(SM_CYSCREEN));
    EXPECT_EQ(primary->left, 0);
}

TEST(MachineInfo, TheTextHasALineForEachThing)
{
    MachineInfo machine;
    machine.system = L"Windows 10.0, build 19045";
    machine.processors = 4;
    machine.themed = true;
    machine.monitors = {{0, 0, 1920, 1080, 96, true}, {-2560, 0, 2560, 1440, 144, false}};
    machine.memory = 16ull << 30;
    machine.freeMemory = 512ull << 20;
    machine.gdiObjects = 12;
    machine.userObjects = 34;
    EXPECT_EQ(machineAsText(machine), L"System: Windows 10.0, build 19045, 4 processors\r\n"
                                      L"Visual styles: on\r\n"
                                      L"Monitor: 1920 x 1080 at 0, 0, 96 dots per inch, primary\r\n"
                                      L"Monitor: 2560 x 1440 at -2560, 0, 144 dots per inch\r\n"
                                      L"Memory: 16.0 GB, 512 MB free\r\n"
                                      L"GDI objects: 12, USER objects: 34\r\n");
}
