/// Not exported. Sliders as accessibility sees them.
#pragma once

#include <ovoui/frame/Accessible.h>
#include <ovoui/frame/Lifeline.h>

#include <functional>
#include <string>

namespace ovoui::sliders
{

/// A control with the role of a slider, without parts.
class AccessibleSlider : public frame::Accessible
{
public:
    using Text = std::function<std::wstring()>;

    /// The texts are asked for while the slider has the window that it has now.
    AccessibleSlider(const CWnd& slider, Text name, Text value);

    /// Offers a default action: what it is called (empty while it cannot be done), and what does it.
    void offer(Text action, std::function<void()> act);

    HWND window() const override;
    LONG role(int part) const override;
    std::wstring name(int part) const override;
    std::wstring value(int part) const override;
    std::wstring action(int part) const override;
    void act(int part) override;

private:
    const HWND m_window;
    const Lifeline::Watch m_watch;
    const Text m_name;
    const Text m_value;
    Text m_action;
    std::function<void()> m_act;
};

/// The text of the label in front of a control, without its mnemonic and colon; empty without one.
std::wstring labelBefore(HWND control);
/// The same, or the control's own text where there is no label.
std::wstring labelOrText(HWND control);

} // namespace ovoui::sliders
