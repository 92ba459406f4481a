#include <ovoui/sliders/PopupWatcher.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/RaiseLater.h>
#include <ovoui/sliders/core/PopupRules.h>

#include <utility>

using namespace ovoui::sliders;
using ovoui::frame::keeping;
using ovoui::frame::raiseLater;

PopupWatcher* PopupWatcher::s_current = nullptr;

PopupWatcher::PopupWatcher(Calls calls)
    : m_calls(std::move(calls))
    , m_before(std::exchange(s_current, this))
    , m_hook(::SetWindowsHookExW(WH_GETMESSAGE, &PopupWatcher::hear, nullptr, ::GetCurrentThreadId()))
{
}

PopupWatcher::~PopupWatcher()
{
    ::UnhookWindowsHookEx(m_hook);
    // Watchers go in any order.
    PopupWatcher** place = &s_current;
    while (*place != this)
        place = &(*place)->m_before;
    *place = m_before;
}

/// Hears of every message that the thread takes from its queue, before its window does.
LRESULT CALLBACK PopupWatcher::hear(int code, WPARAM removed, LPARAM message)
{
    auto& taken = *reinterpret_cast<MSG*>(message);
    if (code == HC_ACTION && removed == PM_REMOVE && s_current) {
        // The calls are copied, since the watcher may go. What they raise does not pass through the system,
        // and does not keep the message from its window.
        switch (popupInputOf(taken.message, static_cast<unsigned>(taken.wParam))) {
        case PopupInput::Press:
            raiseLater(
                keeping([pressed = s_current->m_calls.pressed, under = taken.hwnd] { pressed(under); }));
            break;
        case PopupInput::Escape:
            taken.message = WM_NULL;
            raiseLater(keeping([escape = s_current->m_calls.escape] { escape(); }));
            break;
        case PopupInput::Other:
            break;
        }
    }
    return ::CallNextHookEx(nullptr, code, removed, message);
}
