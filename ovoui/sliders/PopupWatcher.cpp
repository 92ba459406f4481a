#include <ovoui/sliders/PopupWatcher.h>

#include <utility>

PopupWatcher* PopupWatcher::s_current = nullptr;

namespace
{

bool isPress(WPARAM message)
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

bool isDown(LPARAM keyFlags)
{
    return (HIWORD(keyFlags) & KF_UP) == 0;
}

/// No exception may pass through the system that calls a hook.
template <typename Call>
void guarded(const Call& call)
{
    try {
        call();
    } catch (...) {
    }
}

} // namespace

PopupWatcher::PopupWatcher(Calls calls)
    : m_calls(std::move(calls))
    , m_before(std::exchange(s_current, this))
    , m_mouse(::SetWindowsHookExW(WH_MOUSE, &PopupWatcher::hearMouse, nullptr, ::GetCurrentThreadId()))
    , m_keyboard(::SetWindowsHookExW(WH_KEYBOARD, &PopupWatcher::hearKey, nullptr, ::GetCurrentThreadId()))
{
}

PopupWatcher::~PopupWatcher()
{
    ::UnhookWindowsHookEx(m_mouse);
    ::UnhookWindowsHookEx(m_keyboard);
    s_current = m_before;
}

LRESULT CALLBACK PopupWatcher::hearMouse(int code, WPARAM message, LPARAM event)
{
    if (code == HC_ACTION && s_current && isPress(message)) {
        const auto pressed = s_current->m_calls.pressed; // a copy, since the watcher may go
        guarded([&] { pressed(reinterpret_cast<const MOUSEHOOKSTRUCT*>(event)->hwnd); });
    }
    return ::CallNextHookEx(nullptr, code, message, event);
}

LRESULT CALLBACK PopupWatcher::hearKey(int code, WPARAM key, LPARAM flags)
{
    if (code != HC_ACTION || !s_current || key != VK_ESCAPE || !isDown(flags))
        return ::CallNextHookEx(nullptr, code, key, flags);
    const auto escape = s_current->m_calls.escape;
    guarded(escape);
    return 1;
}
