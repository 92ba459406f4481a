#include "WindowCounter.h"

#include <windows.h>

#include <iterator>
#include <string_view>

namespace ovo::testkit
{

namespace
{

bool belongsToInputMethod(HWND window)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return std::wstring_view{name} == L"IME" || std::wstring_view{name} == L"MSCTFIME UI";
}

BOOL CALLBACK countOne(HWND window, LPARAM count)
{
    *reinterpret_cast<int*>(count) += !belongsToInputMethod(window);
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

} // namespace ovo::testkit
