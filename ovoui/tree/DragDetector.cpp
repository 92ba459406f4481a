#include <ovoui/tree/DragDetector.h>

#include <ovoui/tree/MouseWait.h>
#include <ovoui/tree/QueuedMouse.h>

namespace ovoui::tree
{

bool detectDrag(HWND window, POINT press)
{
    const frame::Box area =
        dragArea(press.x, press.y, ::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG));
    const ULONGLONG end = ::GetTickCount64() + ::GetDoubleClickTime();
    const MouseWait wait(window);
    for (;;) {
        MSG message;
        const MouseWait::Event event = wait.next(message, end);
        if (event != MouseWait::Event::Message)
            return event == MouseWait::Event::Time;
        if (endsWithoutDrag(queuedMouse(message)))
            return false;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        // Whatever else took the mouse, it will not tell us when the button goes up.
        if (!wait.holdsMouse())
            return false;
        // The queue may never be empty.
        if (leaves(queuedMouse(message), area) || isLate(message.time, static_cast<std::uint32_t>(end)))
            return true;
    }
}

} // namespace ovoui::tree
