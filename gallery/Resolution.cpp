#include "Resolution.h"

#include <string_view>

namespace
{

constexpr int kUsual = 96;

using GetDpiForWindow = UINT(WINAPI*)(HWND);

// Windows before 10 has one resolution for all monitors, and no such function.
GetDpiForWindow lookUp()
{
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
    return reinterpret_cast<GetDpiForWindow>(reinterpret_cast<void*>(found));
}

int dotsPerInchOfSystem()
{
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dots;
}

} // namespace

int dotsPerInch(HWND window)
{
    static const GetDpiForWindow ofWindow = lookUp();
    const UINT dots = ofWindow ? ofWindow(window) : 0;
    return dots ? static_cast<int>(dots) : dotsPerInchOfSystem();
}

int scaled(HWND window, int length)
{
    return ::MulDiv(length, dotsPerInch(window), kUsual);
}

// As the system has it: the horizontal unit is a quarter of the letters' mean width, the vertical one an
// eighth of the font's height.
SIZE dialogUnits(HWND window, HFONT font, SIZE size)
{
    constexpr std::wstring_view kLetters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kHalf = static_cast<int>(kLetters.size()) / 2;
    const HDC dc = ::GetDC(window);
    const HGDIOBJ old = ::SelectObject(dc, font);
    SIZE extent{};
    ::GetTextExtentPoint32W(dc, kLetters.data(), static_cast<int>(kLetters.size()), &extent);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    ::SelectObject(dc, old);
    ::ReleaseDC(window, dc);
    const int width = (extent.cx / kHalf + 1) / 2;
    return {::MulDiv(size.cx, width, 4), ::MulDiv(size.cy, metrics.tmHeight, 8)};
}
