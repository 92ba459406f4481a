/// Not exported. The tip of a slider button.
#pragma once

#include <afxwin.h>

#include <optional>
#include <string>

namespace ovoui::sliders
{

/// Loads the tip's text when the pointer first comes to the button, once and for all: without a text there is
/// none for good.
class SliderTip
{
public:
    /// The pointer is over the button. The text to be shown now; none when it is shown already or there is
    /// none. `id` is that of the string, of which the part before the first line feed counts.
    std::optional<std::wstring> enter(UINT id);

    /// The pointer has left.
    void leave() { m_shown = false; }

private:
    bool m_shown = false;
    bool m_none = false;
    CString m_text;
};

} // namespace ovoui::sliders
