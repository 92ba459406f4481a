/// What leads to what while the user picks a colour from the screen. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::colour
{

/// From a press of the mouse, by dragging, or from a key, by moving the pointer with keys.
class ScreenPick
{
public:
    enum class Act
    {
        None,
        Begin,  ///< the mouse is to be captured
        Follow, ///< the colour under the pointer is to be shown
        Take,   ///< the colour under the pointer is taken: picking is over
        GiveUp, ///< picking is over
    };

    bool goesOn() const { return m_state != State::Idle; }
    bool byKeys() const { return m_state == State::Keys; }

    // What the user does; `onControl` tells whether the pointer is on the control that it all began at.
    Act press();
    Act move(bool onControl);
    Act release();
    Act start();     ///< a key, or another program, presses the control
    Act accept();    ///< a key that takes the colour
    Act arrow();     ///< a key has moved the pointer
    Act interrupt(); ///< Escape; focus or capture have gone

private:
    enum class State
    {
        Idle,
        Pressed, // and still on the control: a mere click picks nothing
        Dragging,
        Keys,
    };

    Act end(Act act);

    State m_state = State::Idle;
};

/// Where the magnifier goes: beside the point of the pointer by `gap`, to the right of it and below, or to
/// the other side where the screen ends. All of it is on the screen when there is room.
frame::Box magnifierPlace(int x, int y, int width, int height, int gap, const frame::Box& screen);

} // namespace ovoui::colour
