#include "Desktop.h"
#include "GuiThread.h"

#include <gtest/gtest.h>

#include <span>
#include <string_view>

namespace ovo::testkit
{

namespace
{

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr wchar_t kMenuClass[] = L"#32768";

std::wstring_view classOf(HWND window, std::span<wchar_t> buffer)
{
    return {buffer.data(),
            static_cast<size_t>(::GetClassNameW(window, buffer.data(), static_cast<int>(buffer.size())))};
}

// Internal text, since a window that is busy must not be waited for.
std::wstring_view titleOf(HWND window, std::span<wchar_t> buffer)
{
    return {buffer.data(), static_cast<size_t>(::InternalGetWindowText(window, buffer.data(),
                                                                       static_cast<int>(buffer.size())))};
}

// From the front to the back, so that the first match is the one that the user has before them.
HWND find(const wchar_t* title, const wchar_t* windowClass, bool enabled)
{
    wchar_t buffer[256];
    for (HWND window = ::GetTopWindow(nullptr); window; window = ::GetWindow(window, GW_HWNDNEXT)) {
        if (::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId() ||
            !::IsWindowVisible(window))
            continue;
        if (enabled && !::IsWindowEnabled(window))
            continue;
        if (windowClass && classOf(window, buffer) != windowClass)
            continue;
        if (!title || titleOf(window, buffer) == title)
            return window;
    }
    return nullptr;
}

} // namespace

HWND shownWindow(const wchar_t* title, const wchar_t* windowClass)
{
    return find(title, windowClass, false);
}

HWND shownDialog()
{
    return find(nullptr, kDialogClass, true);
}

HWND shownMenu()
{
    return find(nullptr, kMenuClass, false);
}

void present(CWnd& window)
{
    const HWND handle = window.GetSafeHwnd();
    if (!::IsWindow(handle)) {
        ADD_FAILURE() << "the window to present does not exist";
        return;
    }
    ::ShowWindow(handle, SW_SHOWNORMAL);
    ::SetForegroundWindow(handle);
    ::UpdateWindow(handle);
    const bool active = GuiThread::runUntil([handle] {
        return ::GetForegroundWindow() == handle && ::GetUpdateRect(handle, nullptr, FALSE) == FALSE;
    });
    EXPECT_TRUE(active) << "the window does not become the active one";
    GuiThread::settleOnScreen();
}

} // namespace ovo::testkit
