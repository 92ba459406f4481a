/// What opens and ends the popup of a slider button, and when its bubble is shown. Plain values, no windows.
#pragma once

namespace ovoui::sliders
{

/// What a press of the mouse on the button, or of Space, leads to.
enum class PressMeaning
{
    Open,
    Dismiss ///< the popup goes, and its number stays
};

PressMeaning meaningOfPress(bool open);

/// A message to a window of the program while the popup is open, as far as it matters.
enum class PopupInput
{
    Other,
    Press, ///< of a button of the mouse, in a window or on its frame
    Escape
};

/// By the platform's message. `key` is the virtual key where the message tells of one.
PopupInput popupInputOf(unsigned message, unsigned key);

/// The window that is pressed while the popup is open.
enum class PressedOn
{
    Button, ///< which hears of the press itself
    Popup,  ///< or a part of it
    Elsewhere
};

PressedOn pressedOn(bool button, bool popup);

/// Whether that press dismisses the popup.
bool dismisses(PressedOn where);

/// Whether a key that the slider gets hides the popup: Space and Tab.
bool hidesPopup(unsigned virtualKey);

/// What has become of the activation.
enum class Activation
{
    WindowGained,
    WindowLost,
    ProgramGained,
    ProgramLost ///< the popup hears of this without having had the activation itself
};

/// Whether the popup is put away. `goingAway`: it is being put away, which takes the activation from it once
/// more.
bool putsAway(Activation news, bool visible, bool goingAway);

/// Whether the bubble is shown. `wanted`: the host has asked for it. `open`: the button is pressed.
/// `visible`: the popup is to be seen.
bool showsBubble(bool wanted, bool open, bool visible);

} // namespace ovoui::sliders
