/// The colours of an item in a list. Plain values, no windows.
#pragma once

namespace ovoui::frame
{

/// Colours of the system, by the numbers that it has for them.
enum class SystemColour
{
    Window = 5,
    WindowText = 8,
    Highlight = 13,
    HighlightText = 14,
    GrayText = 17,
};

struct ItemColours
{
    SystemColour text;
    SystemColour background;

    friend bool operator==(const ItemColours&, const ItemColours&) = default;
};

/// A disabled item shows by its background alone that it is selected.
constexpr ItemColours itemColours(bool selected, bool disabled = false)
{
    const SystemColour enabledText = selected ? SystemColour::HighlightText : SystemColour::WindowText;
    return {.text = disabled ? SystemColour::GrayText : enabledText,
            .background = selected ? SystemColour::Highlight : SystemColour::Window};
}

} // namespace ovoui::frame
