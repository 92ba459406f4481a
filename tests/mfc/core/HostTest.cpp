// A windowed program from its start to its end, in a process of its own.
#include <afxwin.h>

#include <support/StartProcess.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace
{

struct Life
{
    DWORD exitCode = 0;
    std::vector<std::string> lines; ///< what the program reported
};

fs::path programFolder()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

DWORD exitCodeOf(std::wstring commandLine)
{
    PROCESS_INFORMATION process{};
    if (!support::startProcess(std::move(commandLine), {}, process, FALSE, 0, programFolder().c_str()))
        return 0xFFFF;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

Life lifeOf(const wchar_t* mode, const wchar_t* arguments = L"")
{
    const fs::path report =
        fs::temp_directory_path() / (L"ovoui-host-" + std::to_wstring(::GetCurrentProcessId()) + L".txt");
    fs::remove(report);
    ::SetEnvironmentVariableW(L"OVO_HOST_MODE", mode);
    ::SetEnvironmentVariableW(L"OVO_HOST_REPORT", report.c_str());
    Life life;
    life.exitCode =
        exitCodeOf(L"\"" + (programFolder() / L"mfc_core_host.exe").wstring() + L"\" " + arguments);
    std::ifstream file(report);
    for (std::string line; std::getline(file, line);)
        life.lines.push_back(line);
    file.close();
    fs::remove(report);
    return life;
}

} // namespace

TEST(Host, LivesFromItsInitialisationToTheEndOfItsMainWindow)
{
    const Life life = lifeOf(L"window");
    EXPECT_EQ(life.exitCode, 42u);
    EXPECT_THAT(life.lines,
                ElementsAre("InitApplication", "InitInstance", HasSubstr("name"), HasSubstr("help"),
                            HasSubstr("arguments"), HasSubstr("file"), "Run", "PostNcDestroy", "~CHostWnd",
                            "ExitInstance 0, main window gone", "~CHostApp, OLE ended"));
}

TEST(Host, WithoutAMainWindowEndsAtOnce)
{
    const Life life = lifeOf(L"no window");
    EXPECT_EQ(life.exitCode, 42u);
    EXPECT_THAT(life.lines, ElementsAre("InitApplication", "InitInstance", HasSubstr("name"),
                                        HasSubstr("help"), HasSubstr("arguments"), HasSubstr("file"), "Run",
                                        "ExitInstance 0, main window gone", "~CHostApp, OLE ended"));
}

TEST(Host, ThatRefusesToStartIsNotRun)
{
    const Life life = lifeOf(L"refuse");
    EXPECT_EQ(life.exitCode, 42u) << "its own exit code all the same";
    EXPECT_THAT(life.lines, ElementsAre("InitApplication", "InitInstance", HasSubstr("name"),
                                        HasSubstr("help"), HasSubstr("arguments"), HasSubstr("file"),
                                        "ExitInstance 0, main window gone", "~CHostApp, OLE ended"));
}

TEST(Host, IsNamedAfterItsFile)
{
    const Life life = lifeOf(L"refuse");
    ASSERT_GT(life.lines.size(), 3u);
    EXPECT_EQ(life.lines[2], "name mfc_core_host, program mfc_core_host, profile mfc_core_host.INI");
    EXPECT_EQ(life.lines[3], "help mfc_core_host.HLP");
}

TEST(Host, GetsItsArguments)
{
    const Life life = lifeOf(L"refuse", L"/p \"my file.txt\"");
    ASSERT_GT(life.lines.size(), 5u);
    EXPECT_EQ(life.lines[4], "arguments /p \"my file.txt\"");
    EXPECT_EQ(life.lines[5], "file my file.txt, command 2");
}
