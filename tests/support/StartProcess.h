/// For tests that start programs.
#pragma once

#include <windows.h>

#include <cstdio>
#include <string>

namespace support
{

/// Starts a process as CreateProcess does. A loaded machine refuses this now and then, so it is tried a few
/// times; the tests are not about the start of processes.
inline bool startProcess(std::wstring commandLine, STARTUPINFOW startup, PROCESS_INFORMATION& process,
                         BOOL inherits = FALSE, DWORD flags = 0, const wchar_t* folder = nullptr)
{
    constexpr int kAttempts = 5;
    constexpr DWORD kPause = 200; // milliseconds
    startup.cb = sizeof startup;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, inherits, flags, nullptr, folder,
                             &startup, &process))
            return true;
        std::printf("the program was not started, error %lu\n", ::GetLastError());
        ::Sleep(kPause);
    }
    return false;
}

} // namespace support
