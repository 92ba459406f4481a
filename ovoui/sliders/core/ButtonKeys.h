/// What keys mean to a slider button that has the focus. Plain values, no windows.
#pragma once

namespace ovoui::sliders
{

enum class ButtonKey
{
    Left,
    Right,
    Up,
    Down,
    Travel, ///< Page Up, Page Down, Home or End
    Escape,
    Other,
};

/// By the platform's virtual key.
ButtonKey buttonKeyOf(unsigned virtualKey);

enum class KeyMeaning
{
    Nothing,  ///< the dialog's
    Open,     ///< presses the button and opens the popup
    Cancel,   ///< closes the popup and puts the text from before back
    Slider,   ///< goes on to the slider
    FineMore, ///< a part of a position up
    FineLess, ///< the same down
};

/// `pressed`: the popup is open. `fine`: Shift is held and makes steps finer.
KeyMeaning meaningOf(ButtonKey key, bool pressed, bool fine);

} // namespace ovoui::sliders
