#include "WinEvents.h"

#include "GuiThread.h"

#include <algorithm>
#include <utility>

namespace ovo::testkit
{

WinEvents* WinEvents::s_first = nullptr;

WinEvents::WinEvents(DWORD event)
    : m_next(std::exchange(s_first, this))
    , m_event(event)
    , m_marker(::CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr))
    , m_hook(::SetWinEventHook(event, event, nullptr, &WinEvents::hear, ::GetCurrentProcessId(),
                               ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT))
{
}

WinEvents::~WinEvents()
{
    ::UnhookWinEvent(m_hook);
    ::DestroyWindow(m_marker);
    WinEvents** place = &s_first;
    while (*place != this)
        place = &(*place)->m_next;
    *place = m_next;
}

void CALLBACK WinEvents::hear(HWINEVENTHOOK hook, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    for (WinEvents* events = s_first; events; events = events->m_next)
        if (events->m_hook == hook)
            events->m_heard.push_back({window, object, child});
}

int WinEvents::of(HWND window, LONG child)
{
    awaitAll();
    return static_cast<int>(std::count_if(m_heard.begin(), m_heard.end(), [&](const Heard& heard) {
        return heard.window == window && heard.object == OBJID_CLIENT && heard.child == child;
    }));
}

void WinEvents::forget()
{
    awaitAll();
    m_heard.clear();
}

/// Events come one after the other through the message queue: when one sent now has come, so have all before.
void WinEvents::awaitAll()
{
    const auto marked = [this] {
        return std::any_of(m_heard.begin(), m_heard.end(),
                           [this](const Heard& heard) { return heard.window == m_marker; });
    };
    ::NotifyWinEvent(m_event, m_marker, OBJID_CLIENT, CHILDID_SELF);
    if (!GuiThread::runUntil(marked))
        throw std::runtime_error("events of accessibility do not arrive");
    std::erase_if(m_heard, [this](const Heard& heard) { return heard.window == m_marker; });
}

} // namespace ovo::testkit
