#include <ovoui/sliders/PopupWatcher.h>

#include <ovoui/frame/Exceptions.h>

#include <utility>

using ovoui::frame::dropping;

PopupWatcher* PopupWatcher::s_current = nullptr;

namespace
{

bool isPress(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

bool isEscape(const MSG& message)
{
    return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
}

} // namespace

PopupWatcher::PopupWatcher(Calls calls)
    : m_calls(std::move(calls))
    , m_before(std::exchange(s_current, this))
    , m_hook(::SetWindowsHookExW(WH_GETMESSAGE, &PopupWatcher::hear, nullptr, ::GetCurrentThreadId()))
{
}

PopupWatcher::~PopupWatcher()
{
    ::UnhookWindowsHookEx(m_hook);
    s_current = m_before;
}

/// Hears of every message that the thread takes from its queue, before its window does.
LRESULT CALLBACK PopupWatcher::hear(int code, WPARAM removed, LPARAM message)
{
    auto& taken = *reinterpret_cast<MSG*>(message);
    if (code == HC_ACTION && removed == PM_REMOVE && s_current) {
        // The calls are copied, since the watcher may go. Exceptions do not pass through the system.
        if (isPress(taken.message)) {
            dropping([pressed = s_current->m_calls.pressed, under = taken.hwnd] { pressed(under); });
        } else if (isEscape(taken)) {
            taken.message = WM_NULL;
            dropping([escape = s_current->m_calls.escape] { escape(); });
        }
    }
    return ::CallNextHookEx(nullptr, code, removed, message);
}
