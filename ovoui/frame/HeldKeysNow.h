/// Not exported: the keys that are held, as of the message that is being handled.
#pragma once

#include <ovoui/frame/core/HeldKeys.h>

#include <windows.h>

namespace ovoui::frame
{

inline HeldKeys heldKeysNow()
{
    const auto isDown = [](int key) { return ::GetKeyState(key) < 0; };
    return {.ctrl = isDown(VK_CONTROL), .shift = isDown(VK_SHIFT), .alt = isDown(VK_MENU)};
}

} // namespace ovoui::frame
