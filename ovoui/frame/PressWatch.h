/// Not exported: whether a press of the mouse goes on after a call into the host's code.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// A host that is called during a press, such as when another control loses the focus, may show a message:
/// the release of the button then goes there, and who takes the mouse afterwards has it without a button.
/// Made before the call.
class PressWatch
{
public:
    /// The left button is as it was: held, or up where code has sent the press.
    bool goesOn() const { return isHeld() == m_wasHeld; }

private:
    static bool isHeld() { return ::GetKeyState(VK_LBUTTON) < 0; }

    const bool m_wasHeld = isHeld();
};

} // namespace ovoui::frame
