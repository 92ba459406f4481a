/// Not exported. Sliders as accessibility sees them.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

namespace ovoui::sliders
{

/// What is to be told about a slider. The slider empties `window` when it goes; nothing else is asked then.
struct SliderIdentity
{
    HWND window = nullptr;
    std::function<std::wstring()> name;
    std::function<std::wstring()> value;
};

/// The answer to WM_GETOBJECT for the client area: an object with the role of a slider, which outlives it.
LRESULT accessibleSlider(WPARAM wParam, std::shared_ptr<SliderIdentity> slider);

/// Tells accessibility that the value has changed.
void announceValue(HWND slider);

/// The text of the label in front of a control, without its mnemonic and colon; empty without one.
std::wstring labelBefore(HWND control);

} // namespace ovoui::sliders
