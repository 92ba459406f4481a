#pragma once

#include <windows.h>

namespace ovo::testkit
{

/// Whether the program runs under Wine.
inline bool runsUnderWine()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace ovo::testkit
