#include "WindowKinds.h"

#include <windows.h>

#include <iterator>

namespace
{

using Kinds = std::map<std::string, int>;

BOOL CALLBACK countOne(HWND wnd, LPARAM kinds)
{
    char name[128] = "";
    ::GetClassNameA(wnd, name, static_cast<int>(std::size(name)));
    ++(*reinterpret_cast<Kinds*>(kinds))[name];
    return TRUE;
}

BOOL CALLBACK countWithChildren(HWND wnd, LPARAM kinds)
{
    ::EnumChildWindows(wnd, countOne, kinds);
    return countOne(wnd, kinds);
}

} // namespace

std::map<std::string, int> windowKinds()
{
    Kinds kinds;
    const auto argument = reinterpret_cast<LPARAM>(&kinds);
    const DWORD thread = ::GetCurrentThreadId();
    ::EnumThreadWindows(thread, countWithChildren, argument);
    for (HWND wnd = nullptr; (wnd = ::FindWindowExW(HWND_MESSAGE, wnd, nullptr, nullptr)) != nullptr;)
        if (::GetWindowThreadProcessId(wnd, nullptr) == thread)
            countWithChildren(wnd, argument);
    return kinds;
}
