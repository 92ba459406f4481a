// Starts a program, waits until it shows its main window, closes that, and looks how the program ends.
#include <windows.h>

#include <cstdio>
#include <string>

namespace
{

constexpr DWORD kPatience = 60'000; // milliseconds until a program is taken for hanging
constexpr DWORD kPause = 50;

BOOL CALLBACK takeShownWindow(HWND window, LPARAM found)
{
    auto& [process, shown] = *reinterpret_cast<std::pair<DWORD, HWND>*>(found);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner != process || !::IsWindowVisible(window) || ::GetWindow(window, GW_OWNER))
        return TRUE;
    shown = window;
    return FALSE;
}

HWND shownWindow(DWORD process)
{
    std::pair<DWORD, HWND> found{process, nullptr};
    ::EnumWindows(takeShownWindow, reinterpret_cast<LPARAM>(&found));
    return found.second;
}

int complain(const char* words)
{
    std::printf("%s\n", words);
    return 1;
}

int visit(const PROCESS_INFORMATION& program)
{
    const DWORD start = ::GetTickCount();
    HWND window = nullptr;
    while (!(window = shownWindow(program.dwProcessId))) {
        if (::WaitForSingleObject(program.hProcess, kPause) == WAIT_OBJECT_0)
            return complain("the program has ended without a window");
        if (::GetTickCount() - start > kPatience)
            return complain("the program shows no window");
    }
    ::WaitForInputIdle(program.hProcess, kPatience);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(program.hProcess, kPatience) != WAIT_OBJECT_0)
        return complain("the program does not end when its window is closed");
    DWORD code = 0;
    ::GetExitCodeProcess(program.hProcess, &code);
    // The code of an exception; the framework ends with the argument of whatever message was the last one.
    return code & 0x80000000 ? complain("the program has crashed") : 0;
}

} // namespace

int wmain(int count, wchar_t** words)
{
    if (count != 2)
        return complain("visitor PROGRAM");
    std::wstring command = L"\"" + std::wstring(words[1]) + L"\"";
    STARTUPINFOW start{.cb = sizeof start};
    PROCESS_INFORMATION program{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &program))
        return complain("the program cannot be started");
    const int result = visit(program);
    ::TerminateProcess(program.hProcess, 1);
    return result;
}
