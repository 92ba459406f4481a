#pragma once

#include "Input.h"
#include "Spot.h"

#include <chrono>
#include <functional>
#include <string>

namespace ovo::testkit
{

/// Where the steps of a story are acted out: the robot's thread, its hands, and its eyes.
class Stage
{
public:
    using Limit = std::chrono::milliseconds;

    /// Moves the pointer in small steps, as a hand does, so that drags are recognised and hovered windows
    /// notice.
    void glideTo(const Spot& spot);
    void glideBy(CSize distance);

    void press(Button button);
    void release(Button button);
    void doubleClick(Button button);
    void turnWheel(int notches);
    void keyDown(WORD virtualKey);
    void keyUp(WORD virtualKey);
    void type(const std::wstring& text);

    /// Presses a key while another is held, until the condition holds.
    void chordUntil(const std::string& what, WORD held, WORD virtualKey,
                    const std::function<bool()>& condition);

    /// Waits until the condition holds; it is evaluated on the thread with the windows. Throws
    /// std::runtime_error with the words of `what` when it does not in time.
    void waitFor(const std::string& what, const std::function<bool()>& condition, Limit limit);

    /// Lets go of every key and button, and waits until that has been taken.
    void letGo();

    /// Presses Escape without waiting for what it does: the user has had enough.
    void escape();

private:
    static bool holdsWithin(const std::function<bool()>& condition, Limit limit);
    void jumpTo(CPoint point);
    void awaitInputTaken();
    void keepHeldKeysDown();

    Input m_input;
};

} // namespace ovo::testkit
