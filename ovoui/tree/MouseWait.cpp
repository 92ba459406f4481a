#include <ovoui/tree/MouseWait.h>

namespace ovoui::tree
{

MouseWait::MouseWait(HWND window)
    : m_window(window)
{
    ::SetCapture(window);
}

MouseWait::~MouseWait()
{
    if (holdsMouse())
        ::ReleaseCapture();
}

// A timer of the window's would not do: another window may take the mouse by a message that is sent, and a
// wait for a message in the queue does not end then.
MouseWait::Event MouseWait::next(MSG& message, ULONGLONG end) const
{
    for (;;) {
        if (::PeekMessageW(&message, m_window, 0, 0, PM_REMOVE)) {
            if (message.message != WM_QUIT)
                return Event::Message;
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
            return Event::Lost;
        }
        if (!holdsMouse())
            return Event::Lost;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= end)
            return Event::Time;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
    }
}

} // namespace ovoui::tree
