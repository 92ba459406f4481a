/// Not exported: the mouse, for as long as a press is followed.
#pragma once

#include <windows.h>

namespace ovoui::tree
{

/// Takes the mouse, and fetches the messages of one window until the mouse is lost.
class MouseWait
{
public:
    enum class Event
    {
        Message,
        Time, ///< the time is over, and no message waits
        Lost  ///< another window has the mouse, the window has gone, or the program is to end
    };

    explicit MouseWait(HWND window);
    ~MouseWait();
    MouseWait(const MouseWait&) = delete;
    MouseWait& operator=(const MouseWait&) = delete;

    bool holdsMouse() const { return ::GetCapture() == m_window; }

    /// Waits until a time of ::GetTickCount64. What other programs and threads send is dealt with meanwhile,
    /// so the window may be gone afterwards.
    Event next(MSG& message, ULONGLONG end) const;

private:
    HWND m_window;
};

} // namespace ovoui::tree
