#include <afxwin.h>
#include <ovoui/frame/Geometry.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace
{

fs::path programFolder()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

/// Runs the program to its end, without a window, and gives its exit code.
DWORD exitCodeOf(const fs::path& program, const wchar_t* argument)
{
    std::wstring line = L"\"" + program.wstring() + L"\" " + argument;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                          program.parent_path().c_str(), &startup, &process))
        return 0xFFFF;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
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

private:
    fs::path m_path;
};

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

TEST(Module, HoldsTheMessageBoxIconsItself)
{
    for (const wchar_t* name :
         {L"COMPUTER", L"DISCCD", L"DISCFIXED", L"DISCNETWORK", L"DISCREMOVABLE", L"EXCLAIM", L"FOLDERCLOSED",
          L"FOLDEROPEN", L"INET", L"INFO", L"OVOLOGO", L"KEY", L"MOUSE", L"NETWORK", L"NOTEEMPTY", L"NOTEFULL",
          L"QUERY", L"STOP"}) {
        EXPECT_NE(::LoadIconW(ownModule(), name), nullptr) << name;
        for (const int size : {16, 32, 48}) {
            const auto icon = static_cast<HICON>(::LoadImageW(ownModule(), name, IMAGE_ICON, size, size, 0));
            EXPECT_NE(icon, nullptr) << name << " at " << size;
            ::DestroyIcon(icon);
        }
    }
}
