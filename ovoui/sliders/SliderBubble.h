/// Not exported. A small window with the number, beside the thumb of a slider.
#pragma once

#include <ovoui/frame/TipWindow.h>

namespace ovoui::sliders
{

/// It never takes the activation.
class SliderBubble : public frame::TipWindow
{
public:
    SliderBubble();

    /// Shows the text above a slider's thumb, or moves there. The slider's window owns the bubble's.
    void show(CWnd& slider, const std::wstring& text);
};

} // namespace ovoui::sliders
