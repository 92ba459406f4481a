// Resource modules that are damaged, and resources that are missing: the library refuses to load, or does
// without.
#include "Lives.h"
#include "ResourceGap.h"

#include <testkit/GdiCounter.h>
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/Watchdog.h>
#include <testkit/WindowCounter.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace fs = std::filesystem;
using namespace ovo::testkit;

namespace
{

/// Lives a life; gives a complaint about an exception that is not one of the documented kinds.
std::string liveOnce(const Life& life, CWnd& parent)
{
    try {
        life.live(parent);
        GuiThread::settle();
    } catch (const std::exception&) {
    } catch (CException* error) {
        error->Delete();
    } catch (...) {
        return "an exception of no known kind";
    }
    return "";
}

/// A folder with module_probe and what ovoui.dll needs.
class ProbeFolder
{
public:
    ProbeFolder()
    {
        wchar_t path[MAX_PATH];
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        const fs::path programs = fs::path(path).parent_path();
        m_path = fs::temp_directory_path() / (L"ovoui-damaged-" + std::to_wstring(::GetCurrentProcessId()));
        fs::create_directory(m_path);
        for (const wchar_t* name :
             {L"module_probe.exe", L"ovoui.dll", L"ovouires.dll", L"ovomfc.dll", L"ovocor11.dll",
              L"ovomsg11.dll", L"libstdc++-6.dll", L"libgcc_s_seh-1.dll", L"libwinpthread-1.dll"})
            fs::copy_file(programs / name, m_path / name);
    }
    ~ProbeFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    /// Runs module_probe with an argument; gives its exit code.
    DWORD run(const wchar_t* argument) const
    {
        std::wstring line = L"\"" + (m_path / L"module_probe.exe").wstring() + L"\" " + argument;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                              m_path.c_str(), &startup, &process))
            return ~DWORD{0};
        ::WaitForSingleObject(process.hProcess, INFINITE);
        DWORD code = 0;
        ::GetExitCodeProcess(process.hProcess, &code);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
        return code;
    }

private:
    fs::path m_path;
};

} // namespace

TEST(DamagedResources, AModuleCutAnywhereIsRefused)
{
    const ProbeFolder folder;
    EXPECT_EQ(folder.run(L"damaged"), 0u);
}

TEST(MissingResources, NoControlFailsWithoutAnyOfThem)
{
    RecordingParent parent;
    parent.ShowWindow(SW_SHOWNOACTIVATE);
    for (const Life& life : lives())
        ASSERT_EQ(liveOnce(life, parent), "") << life.name;
    const std::vector<ResourcePlace> resources = resourcesOf(::GetModuleHandleW(L"ovouires.dll"));
    EXPECT_GT(resources.size(), 30u);
    std::printf("%zu resources were missing, one at a time\n", resources.size());
    for (const ResourcePlace& resource : resources) {
        Watchdog::progress();
        SCOPED_TRACE(resource.name);
        const WindowCounter windows;
        {
            const ResourceGap gap(resource);
            for (const Life& life : lives())
                EXPECT_EQ(liveOnce(life, parent), "") << life.name;
        }
        parent.log().clear();
        EXPECT_EQ(windows.grown(), 0);
    }
    for (const Life& life : lives())
        EXPECT_EQ(liveOnce(life, parent), "") << life.name << " when all are back";
}

TEST(MissingResources, AreFoundAgainAfterwards)
{
    const HMODULE module = ::GetModuleHandleW(L"ovouires.dll");
    const LPCWSTR box = MAKEINTRESOURCEW(IDD_MESSAGE_BOX);
    const std::string name = "dialog " + std::to_string(IDD_MESSAGE_BOX);
    int gaps = 0;
    for (const ResourcePlace& resource : resourcesOf(module)) {
        const ResourceGap gap(resource);
        const bool isThere = ::FindResourceW(module, box, RT_DIALOG) != nullptr;
        EXPECT_EQ(isThere, resource.name != name) << resource.name;
        gaps += !isThere;
    }
    EXPECT_EQ(gaps, 1);
    EXPECT_NE(::FindResourceW(module, box, RT_DIALOG), nullptr);
}
