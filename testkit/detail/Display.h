#pragma once

#include <windows.h>

namespace ovo::testkit
{

/// Returns once the display has done what this program asked it for. Reading from the screen takes that long;
/// windows and pixels go there by ways of their own, so that only the second reading comes after both. GetDC
/// might make a device context that the system keeps, which tests would count.
inline void awaitDisplay()
{
    const HDC screen = ::CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr);
    for (int i = 0; i < 2; ++i)
        ::GetPixel(screen, 0, 0);
    ::DeleteDC(screen);
}

} // namespace ovo::testkit
