#pragma once

#include "Input.h"
#include "Spot.h"

#include <chrono>
#include <functional>
#include <string>
#include <type_traits>

namespace ovo::testkit
{

/// Where the steps of a story are acted out: the robot's thread, its hands, and its eyes.
class Stage
{
public:
    /// How long something may take.
    using Limit = std::chrono::milliseconds;

    /// Moves the pointer to `spot` in small steps, as a hand does, so that drags are recognised and hovered
    /// windows notice.
    void glideTo(const Spot& spot);
    /// The same, by a `distance` in pixels.
    void glideBy(CSize distance);

    /// Presses `button` and waits until that has been taken, as the others do.
    void press(Button button);
    /// Lets go of `button`.
    void release(Button button);
    /// A double click with `button`.
    void doubleClick(Button button);
    /// Turns the wheel by `notches`, away from the user.
    void turnWheel(int notches);
    /// Presses the key `virtualKey`.
    void keyDown(WORD virtualKey);
    /// Lets go of the key `virtualKey`.
    void keyUp(WORD virtualKey);
    /// Types `text`.
    void type(const std::wstring& text);

    /// Presses `virtualKey` while `held` is held, until `condition` holds; else throws with the words of
    /// `what`.
    void chordUntil(const std::string& what, WORD held, WORD virtualKey,
                    const std::function<bool()>& condition);

    /// Waits until the condition holds; it is evaluated on the thread with the windows. Throws
    /// std::runtime_error with the words of `what` when it does not within `limit`.
    void waitFor(const std::string& what, const std::function<bool()>& condition, Limit limit);

    /// Lets go of every key and button, and waits until that has been taken.
    void letGo();

    /// Presses Escape without waiting for what it does: the user has had enough.
    void escape();

private:
    static bool holdsWithin(const std::function<bool()>& condition, Limit limit);
    /// Does `act` with `what`, and waits until that has been taken.
    template <class... Parameters>
    void send(void (Input::*act)(Parameters...), std::type_identity_t<Parameters>... what);
    void jumpTo(CPoint point);
    void catchUpInNewFront();
    void awaitInputTaken();
    void keepHeldKeysDown();

    Input m_input;
    HWND m_front = nullptr; ///< the window that was in front at the last press
};

} // namespace ovo::testkit
