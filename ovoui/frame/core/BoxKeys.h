/// What keys do in a message box, and which keys copy anywhere. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/HeldKeys.h>

namespace ovoui::frame
{

/// Ctrl+C and Ctrl+Insert, with neither Shift nor Alt. `key` is the platform's virtual key.
bool isCopyKey(unsigned key, const HeldKeys& held);

enum class BoxKey
{
    None,   ///< of no meaning to the box
    Cancel, ///< from anywhere: an edit control of several lines would take Escape to itself
    Copy    ///< from anywhere: the selection, or the whole message
};

/// A key goes down in the box.
BoxKey boxKey(unsigned key, const HeldKeys& held);

} // namespace ovoui::frame
