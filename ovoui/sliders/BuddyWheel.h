/// Not exported. The mouse wheel over an edit control.
#pragma once

#include <windows.h>

#include <functional>

namespace ovoui::sliders
{

/// Hears the wheel of a window in front of the window itself, while this object and the window live.
class BuddyWheel
{
public:
    /// `turned` gets the delta (120 is a notch away from the user). It may destroy the window and this
    /// object.
    BuddyWheel(HWND buddy, std::function<void(int delta)> turned);
    ~BuddyWheel();
    BuddyWheel(const BuddyWheel&) = delete;
    BuddyWheel& operator=(const BuddyWheel&) = delete;

private:
    static LRESULT CALLBACK hear(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR self);

    HWND m_buddy;
    std::function<void(int)> m_turned;
};

} // namespace ovoui::sliders
