/// When the tip of a slider button is shown, and what it says. Plain values, no windows.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ovoui::sliders
{

/// Asks for the tip's text when the pointer first comes to the button, once and for all: without a text there
/// is none for good.
class SliderTip
{
public:
    /// The pointer is over the button. The text to be shown now; none when it is shown already or there is
    /// none. Of what `load` gives, the part before the first line feed counts.
    std::optional<std::wstring> enter(const std::function<std::wstring()>& load);

    /// The pointer has left.
    void leave() { m_shown = false; }

private:
    bool m_shown = false;
    std::optional<std::wstring> m_text; ///< none before it was asked for
};

} // namespace ovoui::sliders
