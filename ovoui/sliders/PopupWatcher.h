/// Not exported. What ends a popup that is open without the activation: a press of the mouse elsewhere in
/// this thread's windows, and Escape, wherever the focus is.
#pragma once

#include <windows.h>

#include <functional>

/// One hears at a time: a second watcher takes the first one's place until it goes. They may go in any order.
class PopupWatcher
{
public:
    struct Calls
    {
        /// With the window under the pointer, before that window hears of the press.
        std::function<void(HWND under)> pressed;
        /// The key goes no further.
        std::function<void()> escape;
    };

    /// The calls may destroy the watcher. What they raise is raised anew in a later message.
    explicit PopupWatcher(Calls calls);
    ~PopupWatcher();
    PopupWatcher(const PopupWatcher&) = delete;
    PopupWatcher& operator=(const PopupWatcher&) = delete;

private:
    static LRESULT CALLBACK hear(int code, WPARAM removed, LPARAM message);

    static PopupWatcher* s_current;
    Calls m_calls;
    PopupWatcher* m_before;
    HHOOK m_hook;
};
