#include <ovoui/sliders/BuddyWheel.h>

#include <ovoui/frame/AsHandler.h>
#include <ovoui/frame/Subclass.h>

#include <utility>

namespace ovoui::sliders
{

BuddyWheel::BuddyWheel(HWND buddy, std::function<void(int)> turned)
    : m_buddy(buddy)
    , m_turned(std::move(turned))
{
    frame::setSubclass(m_buddy, &BuddyWheel::hear, reinterpret_cast<UINT_PTR>(this),
                       reinterpret_cast<DWORD_PTR>(this));
}

BuddyWheel::~BuddyWheel()
{
    if (m_buddy)
        frame::removeSubclass(m_buddy, &BuddyWheel::hear, reinterpret_cast<UINT_PTR>(this));
}

LRESULT CALLBACK BuddyWheel::hear(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                  DWORD_PTR self)
{
    auto& wheel = *reinterpret_cast<BuddyWheel*>(self);
    if (message == WM_MOUSEWHEEL) {
        const auto turned = wheel.m_turned; // a copy, since the object may go
        return frame::asHandler(wnd, message, wParam, lParam, [&]() -> LRESULT {
            turned(GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        });
    }
    if (message == WM_NCDESTROY) {
        frame::removeSubclass(wnd, &BuddyWheel::hear, id);
        wheel.m_buddy = nullptr;
    }
    return frame::nextProcedure(wnd, message, wParam, lParam);
}

} // namespace ovoui::sliders
