#include <ovoui/tree/DragDetector.h>

#include <windowsx.h>

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

/// The left and the top edge both lie half the drag width before the press.
RECT dragRectangle(POINT press)
{
    const int width = ::GetSystemMetrics(SM_CXDRAG);
    const int height = ::GetSystemMetrics(SM_CYDRAG);
    RECT rect{press.x - width / 2, press.y - width / 2, 0, 0};
    rect.right = rect.left + width;
    rect.bottom = rect.top + height;
    return rect;
}

bool isMouse(const MSG& message)
{
    return message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
}

bool endsWithoutDrag(const MSG& message)
{
    if (isMouse(message))
        return !(message.wParam & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON));
    return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
}

bool leaves(const RECT& rect, const MSG& message)
{
    const bool wheel = message.message == WM_MOUSEWHEEL || message.message == WM_MOUSEHWHEEL;
    const POINT point{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    return isMouse(message) && !wheel && !::PtInRect(&rect, point);
}

} // namespace

bool detectDrag(HWND window, POINT press)
{
    const RECT rect = dragRectangle(press);
    const DragWait wait(window);
    for (;;) {
        MSG message;
        const BOOL fetched = ::GetMessageW(&message, window, 0, 0);
        if (fetched == 0)
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
        if (fetched <= 0 || endsWithoutDrag(message))
            return false;
        if (wait.isOver(message))
            return true;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        // Whatever else took the mouse, it will not tell us when the button goes up.
        if (!wait.holdsMouse())
            return false;
        if (leaves(rect, message))
            return true;
    }
}

} // namespace ovoui::tree
