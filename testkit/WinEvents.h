#pragma once

#include <afxwin.h>

#include <vector>

namespace ovo::testkit
{

/// Hears, as a client of accessibility does, what the calling thread's windows tell of one kind of event
/// while this object lives.
///
///     WinEvents changes(EVENT_OBJECT_VALUECHANGE);
///     slider.SetPos(5);
///     EXPECT_EQ(changes.of(slider), 1);
class WinEvents
{
public:
    /// Of `event`, EVENT_OBJECT_ or EVENT_SYSTEM_.
    explicit WinEvents(DWORD event);
    ~WinEvents();
    WinEvents(const WinEvents&) = delete;
    WinEvents& operator=(const WinEvents&) = delete;

    /// How many came so far of what is inside `window`: of `child`, the whole (0) or a part from 1 on. Those
    /// that are on their way are waited for.
    int of(HWND window, LONG child = CHILDID_SELF);

    /// Counts anew.
    void forget();

private:
    struct Heard
    {
        HWND window;
        LONG object;
        LONG child;
    };

    static void CALLBACK hear(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child,
                              DWORD thread, DWORD time);
    void awaitAll();

    static WinEvents* s_first;
    WinEvents* m_next;
    const DWORD m_event;
    HWND m_marker; // events of this window follow all that came before
    HWINEVENTHOOK m_hook;
    std::vector<Heard> m_heard;
};

} // namespace ovo::testkit
