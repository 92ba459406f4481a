#include "trackedmenu.h"

#include <utility>

namespace afxdetail
{

namespace
{

thread_local HMENU t_tracked = nullptr;

HMENU menuBarOf(HWND wnd)
{
    const bool child = (::GetWindowLongW(wnd, GWL_STYLE) & WS_CHILD) != 0;
    return child ? nullptr : ::GetMenu(wnd);
}

/// The menu below `top`, itself included, that opens `popup`.
HMENU find(HMENU top, HMENU popup)
{
    const int count = top ? ::GetMenuItemCount(top) : 0;
    for (int i = 0; i < count; ++i) {
        const HMENU sub = ::GetSubMenu(top, i);
        if (sub == popup)
            return top;
        if (const HMENU found = find(sub, popup))
            return found;
    }
    return nullptr;
}

} // namespace

TrackedMenu::TrackedMenu(HMENU menu)
    : m_outer(std::exchange(t_tracked, menu))
{
}

TrackedMenu::~TrackedMenu()
{
    t_tracked = m_outer;
}

HMENU menuAbove(HMENU popup, HWND wnd)
{
    const HMENU found = find(t_tracked, popup);
    return found ? found : find(menuBarOf(wnd), popup);
}

} // namespace afxdetail
