/// Not exported: the buttons of a toolbar control, one by one.
#pragma once

#include <ovoui/toolbar/core/BarRules.h>

#include <afxext.h>

namespace ovoui::toolbar
{

/// False, and all of `button` 0, when there is no such button.
inline bool readButton(HWND bar, int index, TBBUTTON& button)
{
    button = {};
    return index >= 0 && ::SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(index),
                                        reinterpret_cast<LPARAM>(&button)) != 0;
}

/// The same where there is one.
inline TBBUTTON buttonOf(HWND bar, int index)
{
    TBBUTTON button;
    readButton(bar, index, button);
    return button;
}

inline ButtonFields fieldsOf(const TBBUTTON& button)
{
    return {button.iBitmap, button.idCommand, button.fsState, button.fsStyle, button.dwData, button.iString};
}

inline ButtonFields fieldsOf(HWND bar, int index)
{
    return fieldsOf(buttonOf(bar, index));
}

} // namespace ovoui::toolbar
