#pragma once

#include <afxwin.h>

#include <optional>
#include <vector>

namespace ovo::testkit
{

/// A button of the mouse.
enum class Button
{
    Left,  ///< the usual one
    Right, ///< the one for context menus
    Middle ///< the wheel, pressed
};

/// The keyboard and the mouse as the system sees them: every call is one SendInput, and throws
/// std::runtime_error when the system refuses it. What is down is remembered, so that nothing stays pressed
/// when a script ends early.
class Input
{
public:
    Input() = default;
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    /// Moves the pointer to a point of the screen, in pixels.
    void moveTo(POINT point);

    /// Presses `button` where the pointer was last moved to.
    void press(Button button);
    /// Lets go of `button`, there as well.
    void release(Button button);

    /// Presses `button` and lets go of it: not held for long, however slow the machine is.
    void click(Button button);

    /// Two presses with the same time, however slow the machine is.
    void doubleClick(Button button);

    /// Turns the wheel: positive is away from the user, in notches.
    void turnWheel(int notches);

    /// `virtualKey` is a VK_ code.
    void keyDown(WORD virtualKey);
    /// Lets go of the key with that VK_ code, `virtualKey`.
    void keyUp(WORD virtualKey);

    /// Presses `virtualKey` while the keys `held` are down: one SendInput as well, so that nothing of the
    /// system comes in between.
    void chord(const std::vector<WORD>& held, WORD virtualKey);

    /// The keys that are down, in the order in which they went down.
    const std::vector<WORD>& heldKeys() const { return m_keys; }

    /// Presses the held key `virtualKey` once more, as a keyboard does that repeats it.
    void holdAgain(WORD virtualKey);

    /// One character: by its key where the keyboard has one, else as a character of its own.
    void character(wchar_t character);

    /// Lets go of everything that is still down. Does not throw.
    void releaseAll();

private:
    DWORD nextTime();
    INPUT atThePoint(INPUT input) const;

    std::optional<POINT> m_point; ///< where the pointer was last moved to
    std::vector<WORD> m_keys;
    std::vector<Button> m_buttons;
};

} // namespace ovo::testkit
