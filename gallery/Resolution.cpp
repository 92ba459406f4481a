#include "Resolution.h"

#include <string_view>

namespace
{

constexpr int kUsual = 96;

// Windows before 10 has one resolution for all monitors, and no such functions.
template <class Function>
Function lookUp(const char* name)
{
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

using GetDpiForWindow = UINT(WINAPI*)(HWND);
using GetAwareness = DPI_AWARENESS_CONTEXT(WINAPI*)(HWND);
using CompareAwareness = BOOL(WINAPI*)(DPI_AWARENESS_CONTEXT, DPI_AWARENESS_CONTEXT);

struct Told
{
    HWND window = nullptr;
    int dots = 0;
} told;

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
    if (told.dots && ::GetAncestor(window, GA_ROOT) == told.window)
        return told.dots;
    static const auto ofWindow = lookUp<GetDpiForWindow>("GetDpiForWindow");
    const UINT dots = ofWindow ? ofWindow(window) : 0;
    return dots ? static_cast<int>(dots) : dotsPerInchOfSystem();
}

void noteResolution(HWND window, int dots)
{
    told = {window, dots};
}

// Only programs that know monitors of different resolution in the second way have dialogs that follow.
int dotsOfDialogs(HWND parent)
{
    static const auto ofWindow = lookUp<GetDpiForWindow>("GetDpiForWindow");
    static const auto awarenessOf = lookUp<GetAwareness>("GetWindowDpiAwarenessContext");
    static const auto areEqual = lookUp<CompareAwareness>("AreDpiAwarenessContextsEqual");
    const bool follow = ofWindow && awarenessOf && areEqual &&
                        areEqual(awarenessOf(parent), DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    return follow ? static_cast<int>(ofWindow(parent)) : dotsPerInchOfSystem();
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
