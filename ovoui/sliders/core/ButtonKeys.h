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
    Space, ///< presses the button, as the mouse does
    Done,  ///< Tab or Enter
    Other,
};

/// By the platform's virtual key.
ButtonKey buttonKeyOf(unsigned virtualKey);

enum class KeyMeaning
{
    Nothing,  ///< the key goes on its way
    Open,     ///< presses the button and opens the popup
    Close,    ///< closes the popup
    Cancel,   ///< the same, and puts the text from before back
    Slider,   ///< goes on to the slider
    FineMore, ///< a part of a position up
    FineLess, ///< the same down
};

/// `pressed`: the popup is open. `fine`: Shift is held and makes steps finer.
KeyMeaning meaningOf(ButtonKey key, bool pressed, bool fine);

/// How far a key or the wheel moves the number, in positions of the slider. Away from the user is more.
double stepsOfKey(KeyMeaning meaning);
double stepsOfWheel(int notches, bool fine);

} // namespace ovoui::sliders
