#include "WindowCounter.h"

#include <windows.h>

namespace ovotest
{

namespace
{

BOOL CALLBACK countOne(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK countWithChildren(HWND window, LPARAM count)
{
    ::EnumChildWindows(window, countOne, count);
    return countOne(window, count);
}

} // namespace

int WindowCounter::live()
{
    int count = 0;
    const auto counter = reinterpret_cast<LPARAM>(&count);
    const DWORD thread = ::GetCurrentThreadId();
    ::EnumThreadWindows(thread, countWithChildren, counter);
    for (HWND window = nullptr;
         (window = ::FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        if (::GetWindowThreadProcessId(window, nullptr) == thread)
            countWithChildren(window, counter);
    return count;
}

} // namespace ovotest
