#include <ovoui/tree/DragDetector.h>

#include <ovoui/tree/QueuedMouse.h>

namespace ovoui::tree
{

namespace
{

constexpr UINT_PTR kTimer = 1832;

/// The mouse and a timer for the double-click time, for as long as the wait lasts.
class DragWait
{
public:
    explicit DragWait(HWND window)
        : m_window(window)
    {
        ::SetCapture(window);
        ::SetTimer(window, kTimer, ::GetDoubleClickTime(), nullptr);
    }
    ~DragWait()
    {
        ::KillTimer(m_window, kTimer);
        if (holdsMouse())
            ::ReleaseCapture();
    }
    DragWait(const DragWait&) = delete;
    DragWait& operator=(const DragWait&) = delete;

    bool holdsMouse() const { return ::GetCapture() == m_window; }
    bool isOver(const MSG& message) const
    {
        return message.message == WM_TIMER && message.hwnd == m_window && message.wParam == kTimer;
    }

private:
    HWND m_window;
};

} // namespace

bool detectDrag(HWND window, POINT press)
{
    const frame::Box area =
        dragArea(press.x, press.y, ::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG));
    const DragWait wait(window);
    for (;;) {
        MSG message;
        const BOOL fetched = ::GetMessageW(&message, window, 0, 0);
        if (fetched == 0)
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
        if (fetched <= 0 || endsWithoutDrag(queuedMouse(message)))
            return false;
        if (wait.isOver(message))
            return true;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        // Whatever else took the mouse, it will not tell us when the button goes up.
        if (!wait.holdsMouse())
            return false;
        if (leaves(queuedMouse(message), area))
            return true;
    }
}

} // namespace ovoui::tree
