#include "support/NestedMessages.h"

#include <windows.h>

namespace
{

constexpr UINT kDeeper = WM_USER;
constexpr WPARAM kMost = 100;

LRESULT CALLBACK answer(HWND wnd, UINT message, WPARAM left, LPARAM lParam)
{
    if (message != kDeeper)
        return ::DefWindowProcW(wnd, message, left, lParam);
    return left > 1 ? ::SendMessageW(wnd, kDeeper, left - 1, 0) + 1 : 1;
}

} // namespace

int nestedMessages()
{
    const HWND wnd =
        ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&answer));
    const LRESULT deep = ::SendMessageW(wnd, kDeeper, kMost, 0);
    ::DestroyWindow(wnd);
    return static_cast<int>(deep);
}
