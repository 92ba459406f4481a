#include <afxwin.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/version.h>
#include <ovouires/resource.h>
#include <support/StartProcess.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace
{

fs::path programFolder()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

std::wstring takeBoxOf(DWORD process);

/// A program that runs, without a console.
class RunningProbe
{
public:
    RunningProbe(const fs::path& program, const wchar_t* argument)
    {
        support::startProcess(L"\"" + program.wstring() + L"\" " + argument, {}, m_process, FALSE,
                              CREATE_NO_WINDOW, program.parent_path().c_str());
    }
    ~RunningProbe()
    {
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    RunningProbe(const RunningProbe&) = delete;
    RunningProbe& operator=(const RunningProbe&) = delete;

    /// The text of the box that the program shows, which is closed; empty when it ends without one.
    std::wstring box() const
    {
        std::wstring text;
        while (text.empty() && ::WaitForSingleObject(m_process.hProcess, 20) == WAIT_TIMEOUT)
            text = takeBoxOf(m_process.dwProcessId);
        return text;
    }

    /// Waits for the end.
    DWORD exitCode() const
    {
        ::WaitForSingleObject(m_process.hProcess, INFINITE);
        DWORD code = 0;
        return ::GetExitCodeProcess(m_process.hProcess, &code) ? code : 0xFFFF;
    }

private:
    PROCESS_INFORMATION m_process{};
};

DWORD exitCodeOf(const fs::path& program, const wchar_t* argument)
{
    return RunningProbe(program, argument).exitCode();
}

HINSTANCE ownModule()
{
    return ::GetModuleHandleW(L"ovoui.dll");
}

HINSTANCE resourceModule()
{
    return ::GetModuleHandleW(L"ovouires.dll");
}

/// A folder with a copy of the probe and every DLL but the one left out.
class ProbeFolder
{
public:
    explicit ProbeFolder(const wchar_t* leftOut)
        : m_path(fs::temp_directory_path() / (L"ovoui-probe-" + std::to_wstring(::GetCurrentProcessId())))
    {
        fs::create_directory(m_path);
        for (const fs::directory_entry& entry : fs::directory_iterator(programFolder())) {
            const fs::path name = entry.path().filename();
            if (name == L"module_probe.exe" || (name.extension() == L".dll" && name != leftOut))
                fs::copy_file(entry.path(), m_path / name);
        }
    }
    ~ProbeFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    fs::path probe() const { return m_path / L"module_probe.exe"; }

    /// Changes the version of the resource module by writing into its record. The version is the four words
    /// that follow signature and layout of the fixed part, each pair with the higher one last.
    void setResourceVersion(WORD major, WORD minor, WORD patch)
    {
        const fs::path path = m_path / L"ovouires.dll";
        std::string bytes = contentOf(path);
        const std::size_t at = bytes.find(kFixedPart);
        ASSERT_NE(at, std::string::npos);
        const WORD version[] = {minor, major, 0, patch};
        bytes.replace(at + 8, sizeof version, reinterpret_cast<const char*>(version), sizeof version);
        std::ofstream(path, std::ios::binary) << bytes;
    }

    void destroyResourceVersion()
    {
        const fs::path path = m_path / L"ovouires.dll";
        std::string bytes = contentOf(path);
        const std::size_t at = bytes.find(kFixedPart);
        ASSERT_NE(at, std::string::npos);
        bytes[at] = 0;
        std::ofstream(path, std::ios::binary) << bytes;
    }

private:
    static constexpr std::string_view kFixedPart{"\xBD\x04\xEF\xFE\0\0\1\0", 8};

    static std::string contentOf(const fs::path& path)
    {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }

    fs::path m_path;
};

/// The text of the box that another process shows; empty while there is none. Closes the box.
std::wstring takeBoxOf(DWORD process)
{
    struct Search
    {
        DWORD process;
        HWND box;
    } search{process, nullptr};
    const auto look = [](HWND window, LPARAM argument) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(argument);
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner != wanted.process || !::IsWindowVisible(window) || !::GetDlgItem(window, IDOK))
            return TRUE;
        wanted.box = window;
        return FALSE;
    };
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    if (!search.box)
        return {};
    std::wstring text;
    for (HWND child = nullptr; (child = ::FindWindowExW(search.box, child, L"Static", nullptr)) != nullptr;) {
        wchar_t part[512];
        part[::SendMessageW(child, WM_GETTEXT, std::size(part), reinterpret_cast<LPARAM>(part))] = 0;
        text += part;
    }
    ::PostMessageW(search.box, WM_COMMAND, IDOK, 0);
    return text;
}

} // namespace

TEST(Module, LoadsBesideItsResources)
{
    const ProbeFolder folder(L"");
    EXPECT_EQ(exitCodeOf(folder.probe(), L"once"), 0u);
}

TEST(Module, RefusesToLoadWithoutItsResourceModule)
{
    const ProbeFolder folder(L"ovouires.dll");
    EXPECT_EQ(exitCodeOf(folder.probe(), L"once"), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
}

TEST(Module, RefusesAResourceModuleOfAnotherVersion)
{
    const struct
    {
        WORD major, minor, patch;
    } others[] = {{OVOUI_VERSION_MAJOR + 1, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH},
                  {OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR + 1, OVOUI_VERSION_PATCH},
                  {OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH + 1}};
    for (const auto& other : others) {
        ProbeFolder folder(L"");
        folder.setResourceVersion(other.major, other.minor, other.patch);
        EXPECT_EQ(exitCodeOf(folder.probe(), L"once"), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
    }
    ProbeFolder folder(L"");
    folder.setResourceVersion(OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH);
    EXPECT_EQ(exitCodeOf(folder.probe(), L"once"), 0u);
}

TEST(Module, NamesBothVersionsWhenItRefusesItsResources)
{
    ProbeFolder folder(L"");
    folder.setResourceVersion(4, 17, 2);
    const RunningProbe probe(folder.probe(), L"openly");
    const std::wstring text = probe.box();
    EXPECT_NE(text.find(L"4.17.2"), std::wstring::npos) << text;
    EXPECT_NE(text.find(L"" OVOUI_VERSION_STRING), std::wstring::npos) << text;
    EXPECT_NE(text.find(L"ovouires.dll"), std::wstring::npos) << text;
    EXPECT_EQ(probe.exitCode(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
}

TEST(Module, RefusesAResourceModuleWithoutAVersion)
{
    ProbeFolder folder(L"");
    folder.destroyResourceVersion();
    const RunningProbe probe(folder.probe(), L"openly");
    EXPECT_NE(probe.box().find(L"(unknown)"), std::wstring::npos);
    EXPECT_EQ(probe.exitCode(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
}

TEST(Module, LoadsAndUnloadsTwoHundredTimesWithoutGrowth)
{
    EXPECT_EQ(exitCodeOf(programFolder() / L"module_probe.exe", L"cycles"), 0u);
}

TEST(Module, JoinsItsResourcesToTheFrameworksSearch)
{
    RECT anywhere{0, 0, 1, 1};
    EnsureRectVisible(anywhere); // a call that makes this program need the library
    ASSERT_NE(resourceModule(), nullptr);

    const HINSTANCE before = AfxGetResourceHandle();
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDD_MESSAGE_BOX), RT_DIALOG), resourceModule());
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_MESSAGE_CAPTION));
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(Module, LeavesTheFrameworksSearchWhenItIsUnloaded)
{
    EXPECT_EQ(exitCodeOf(programFolder() / L"module_probe.exe", L"leaving"), 0u);
}

TEST(Module, HoldsTheMessageBoxIconsItself)
{
    for (const wchar_t* name : {L"COMPUTER", L"DISCCD", L"DISCFIXED", L"DISCNETWORK", L"DISCREMOVABLE",
                                L"EXCLAIM", L"FOLDERCLOSED", L"FOLDEROPEN", L"INET", L"INFO", L"OVOLOGO",
                                L"KEY", L"MOUSE", L"NETWORK", L"NOTEEMPTY", L"NOTEFULL", L"QUERY", L"STOP"}) {
        EXPECT_NE(::LoadIconW(ownModule(), name), nullptr) << name;
        for (const int size : {16, 32, 48}) {
            const auto icon = static_cast<HICON>(::LoadImageW(ownModule(), name, IMAGE_ICON, size, size, 0));
            EXPECT_NE(icon, nullptr) << name << " at " << size;
            ::DestroyIcon(icon);
        }
    }
}
