// From the start of a program until its window is shown, painted and waits for the user: the gallery with its
// first page, and an empty frame. Both are started in turns. Their private memory is that at this moment.
#include "support/InTurns.h"

#include <windows.h>
#include <psapi.h>

#include <catch2/catch.hpp>

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{

constexpr DWORD kPatience = 60'000; // milliseconds

/// A running program whose window is shown and painted. It is closed by the destructor.
class ShownProgram
{
public:
    explicit ShownProgram(std::wstring command)
    {
        STARTUPINFOW start{};
        start.cb = sizeof start;
        if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                              &m_process))
            throw std::runtime_error("the program cannot be started");
        const DWORD begin = ::GetTickCount();
        while (!(m_window = shownWindow())) {
            if (::WaitForSingleObject(m_process.hProcess, 1) == WAIT_OBJECT_0 ||
                ::GetTickCount() - begin > kPatience)
                throw std::runtime_error("the program shows no window");
        }
        // It waits for input when nothing is left to be painted.
        if (::WaitForInputIdle(m_process.hProcess, kPatience) != 0)
            throw std::runtime_error("the program does not come to rest");
    }
    ~ShownProgram()
    {
        ::PostMessageW(m_window, WM_CLOSE, 0, 0);
        if (::WaitForSingleObject(m_process.hProcess, kPatience) != WAIT_OBJECT_0)
            ::TerminateProcess(m_process.hProcess, 1);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    ShownProgram(const ShownProgram&) = delete;
    ShownProgram& operator=(const ShownProgram&) = delete;

    /// Bytes that no other process has.
    std::size_t privateMemory() const
    {
        PROCESS_MEMORY_COUNTERS counters{};
        ::GetProcessMemoryInfo(m_process.hProcess, &counters, sizeof counters);
        return counters.PagefileUsage; // which is documented to be the same, and which Wine knows
    }

private:
    HWND shownWindow() const
    {
        std::pair<DWORD, HWND> found{m_process.dwProcessId, nullptr};
        ::EnumWindows(
            [](HWND window, LPARAM wanted) -> BOOL {
                auto& [process, shown] = *reinterpret_cast<std::pair<DWORD, HWND>*>(wanted);
                DWORD owner = 0;
                ::GetWindowThreadProcessId(window, &owner);
                if (owner == process && ::IsWindowVisible(window))
                    shown = window;
                return !shown;
            },
            reinterpret_cast<LPARAM>(&found));
        return found.second;
    }

    PROCESS_INFORMATION m_process{};
    HWND m_window = nullptr;
};

std::size_t privateMemoryOf(const wchar_t* command)
{
    return ShownProgram(command).privateMemory();
}

} // namespace

TEST_CASE("starting the gallery until its first page is shown")
{
    std::unique_ptr<ShownProgram> shown;
    InTurns turns;
    const auto start = [&](const wchar_t* command) {
        return [&shown, command] { shown = std::make_unique<ShownProgram>(command); };
    };
    const auto close = [&shown] { shown.reset(); };
    turns.add("an empty frame [baseline]", start(L"bench_empty_frame.exe"), close);
    turns.add("the gallery [at most 3]", start(L"gallery.exe"), close);
    turns.run("from start to first page", 15);
    close();
    std::printf("  private memory: an empty frame %zu KB, the gallery %zu KB\n",
                privateMemoryOf(L"bench_empty_frame.exe") / 1024, privateMemoryOf(L"gallery.exe") / 1024);
}
