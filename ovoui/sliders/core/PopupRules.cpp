#include <ovoui/sliders/core/PopupRules.h>

#include <ovoui/frame/core/MessageNumbers.h>
#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::sliders
{

using namespace keys;
using namespace messages;

PressMeaning meaningOfPress(bool open)
{
    return open ? PressMeaning::Dismiss : PressMeaning::Open;
}

PopupInput popupInputOf(unsigned message, unsigned key)
{
    switch (message) {
    case kPressLeft:
    case kPressRight:
    case kPressMiddle:
    case kFramePressLeft:
    case kFramePressRight:
    case kFramePressMiddle:
        return PopupInput::Press;
    case kKeyDown:
        return key == kVkEscape ? PopupInput::Escape : PopupInput::Other;
    default:
        return PopupInput::Other;
    }
}

PressedOn pressedOn(bool button, bool popup)
{
    if (button)
        return PressedOn::Button;
    return popup ? PressedOn::Popup : PressedOn::Elsewhere;
}

bool dismisses(PressedOn where)
{
    return where == PressedOn::Elsewhere;
}

bool hidesPopup(unsigned virtualKey)
{
    return virtualKey == kVkSpace || virtualKey == kVkTab;
}

bool putsAway(Activation news, bool visible, bool goingAway)
{
    if (goingAway)
        return false;
    return news == Activation::WindowLost || (news == Activation::ProgramLost && visible);
}

bool showsBubble(bool wanted, bool open, bool visible)
{
    return wanted && open && visible;
}

} // namespace ovoui::sliders
