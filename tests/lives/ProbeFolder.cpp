#include "ProbeFolder.h"

#include <support/StartProcess.h>
#include <testkit/Watchdog.h>

namespace fs = std::filesystem;

fs::path thisProgram()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

DWORD exitCodeOf(std::wstring line, const fs::path& folder)
{
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    if (!support::startProcess(std::move(line), startup, process, TRUE, 0, folder.c_str()))
        return ~DWORD{0};
    while (::WaitForSingleObject(process.hProcess, 1000) == WAIT_TIMEOUT)
        ovo::testkit::Watchdog::progress(); // a program that hangs is ended by its own
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

ProbeFolder::ProbeFolder()
    : m_programs(thisProgram().parent_path())
    , m_path(fs::temp_directory_path() / (L"ovoui-damaged-" + std::to_wstring(::GetCurrentProcessId())))
{
    fs::create_directory(m_path);
    for (const wchar_t* name :
         {L"module_probe.exe", L"ovoui.dll", L"ovouires.dll", L"ovomfc.dll", L"ovocor11.dll", L"ovomsg11.dll",
          L"libstdc++-6.dll", L"libgcc_s_seh-1.dll", L"libwinpthread-1.dll"})
        add(name);
}

ProbeFolder::~ProbeFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void ProbeFolder::add(const std::wstring& name) const
{
    fs::copy_file(m_programs / name, m_path / name);
}

DWORD ProbeFolder::run(const std::wstring& arguments, const std::wstring& program) const
{
    // What is started inherits the mode.
    const UINT mode = ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    const DWORD code = exitCodeOf(L"\"" + (m_path / program).wstring() + L"\" " + arguments, m_path);
    ::SetErrorMode(mode);
    return code;
}
