/// Not exported: a message from the queue as the rules of drags take it.
#pragma once

#include <ovoui/tree/core/DragRule.h>

#include <windows.h>
#include <windowsx.h>

namespace ovoui::tree
{

inline MouseMessage queuedMouse(const MSG& message)
{
    return {message.message, static_cast<unsigned>(message.wParam), GET_X_LPARAM(message.lParam),
            GET_Y_LPARAM(message.lParam)};
}

} // namespace ovoui::tree
