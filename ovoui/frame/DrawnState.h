/// Not exported. What an owner-drawn control or item looks like in a state of flags ODS_...
#pragma once

#include <ovoui/frame/core/ItemColours.h>

#include <windows.h>

namespace ovoui::frame
{

inline COLORREF colorrefOf(SystemColour colour)
{
    static_assert(static_cast<int>(SystemColour::Window) == COLOR_WINDOW);
    static_assert(static_cast<int>(SystemColour::WindowText) == COLOR_WINDOWTEXT);
    static_assert(static_cast<int>(SystemColour::Highlight) == COLOR_HIGHLIGHT);
    static_assert(static_cast<int>(SystemColour::HighlightText) == COLOR_HIGHLIGHTTEXT);
    static_assert(static_cast<int>(SystemColour::GrayText) == COLOR_GRAYTEXT);
    return ::GetSysColor(static_cast<int>(colour));
}

inline ItemColours itemColoursOf(UINT state)
{
    return itemColours((state & ODS_SELECTED) != 0, (state & ODS_DISABLED) != 0);
}

inline bool showsFocus(UINT state)
{
    return (state & ODS_FOCUS) && !(state & ODS_NOFOCUSRECT);
}

} // namespace ovoui::frame
