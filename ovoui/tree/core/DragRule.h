/// What messages mean after a press of the mouse: to the wait that tells a drag from a click, and to a band
/// that is drawn. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <cstdint>

namespace ovoui::tree
{

/// A message as it comes from the queue.
struct MouseMessage
{
    unsigned message = 0;
    unsigned keys = 0; ///< wParam: the buttons and keys that are held, or the virtual key
    int x = 0;         ///< lParam of a message of the mouse
    int y = 0;
};

/// The system's drag rectangle around a press. The left and the top edge both lie half the drag width before
/// it.
frame::Box dragArea(int x, int y, int width, int height);

/// Whether the wait is over without a drag: all buttons are up, or Escape was pressed.
bool endsWithoutDrag(const MouseMessage& message);

/// Whether the pointer leaves the drag rectangle, which makes it a drag. The wheel tells of another place.
bool leaves(const MouseMessage& message, const frame::Box& area);

/// Whether a message came when a time was over. Both are in milliseconds, which begin anew after 2^32.
bool isLate(std::uint32_t time, std::uint32_t end);

/// What a message leads to while a band is drawn.
enum class BandStep
{
    PassOn, ///< it is handled as ever
    GiveUp, ///< what was selected before comes back
    Ignore,
    Show,  ///< the band goes on to where the pointer is
    Finish ///< the same, and the band is over
};

BandStep bandStep(const MouseMessage& message);

} // namespace ovoui::tree
