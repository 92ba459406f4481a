// The number of a slider button: the text of its buddy, the position of its slider, and the host's
// conversions between them.
#include <ovoui/frame/Accessible.h>
#include <ovoui/sliders/SliderButtonParts.h>
#include <ovoui/sliders/core/NumberText.h>

using namespace ovoui::sliders;

namespace
{

constexpr std::size_t kBuddyText = 100; // characters that are read of it

} // namespace

void CSliderButton::SetSliderPos()
{
    std::wstring text;
    if (!machineText(text) || !m_popup.m_hWnd)
        return;
    m_popup.slider().SetPos(m_parts->numbers.positionOf(text));
    if (m_popup.IsWindowVisible()) // all of it is painted when it is shown
        m_popup.slider().Invalidate();
}

void CSliderButton::SetValue()
{
    if (m_parts->buddy.window() && m_popup.m_hWnd)
        showText(m_parts->numbers.textAt(m_popup.slider().GetPos()));
}

std::optional<double> CSliderButton::Number() const
{
    std::wstring text;
    if (!m_parts->buddy.exists() || !machineText(text))
        return std::nullopt;
    return parseReal(text);
}

void CSliderButton::ShowNumber(double number)
{
    readBuddy();
    const SliderNumbers& numbers = m_parts->numbers;
    const auto text = displayed(formatReal(number, numbers.whole ? 0 : numbers.decimals));
    if (text && m_parts->buddy.exists())
        setBuddyText(*text);
}

std::pair<double, double> CSliderButton::Limits() const
{
    return m_parts->numbers.limits();
}

/// Moves the number by positions, or parts of one, whether the popup is open or not.
void CSliderButton::stepBy(double steps)
{
    std::wstring text;
    if (!m_parts->buddy.exists() || !machineText(text))
        return;
    const std::wstring moved = m_parts->numbers.stepped(text, steps);
    if (m_parts->pressed && m_popup.m_hWnd)
        m_popup.slider().SetPos(m_parts->numbers.positionOf(moved));
    showText(moved);
}

// The host's conversions

/// The buddy's text in machine form. False when the host's conversion has taken the button away.
bool CSliderButton::machineText(std::wstring& text) const
{
    const std::wstring shown = readBuddy().substr(0, kBuddyText);
    if (m_parts->numbers.whole) {
        text = shown;
        return true;
    }
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_hWnd; // there may be none yet
    text.clear();
    m_parts->utils.fromDisplay(text, shown);
    return watch.alive() && m_hWnd == window;
}

/// A number in machine form as the buddy shows it; none when the host's conversion has deleted the button.
std::optional<std::wstring> CSliderButton::displayed(const std::wstring& machine) const
{
    if (m_parts->numbers.whole)
        return machine;
    const Lifeline::Watch watch(m_lifeline);
    std::wstring text;
    m_parts->utils.toDisplay(text, machine);
    return watch.alive() ? std::optional(text) : std::nullopt;
}

/// Writes a number in machine form into the buddy and tells the buddy's parent. False when the button is gone
/// then.
bool CSliderButton::showText(const std::wstring& machine)
{
    const auto text = displayed(machine);
    if (!text)
        return false;
    const Lifeline::Watch watch(*this);
    setBuddyText(*text);
    if (!watch.alive())
        return false;
    updateBubble();
    return tellParent(kValueChanged);
}

// The buddy

const std::wstring& CSliderButton::readBuddy() const
{
    m_parts->known = m_parts->buddy.text();
    return m_parts->known;
}

/// The buddy's parent may do anything when it hears of the new text.
void CSliderButton::setBuddyText(const std::wstring& text)
{
    const Lifeline::Watch watch(*this);
    const bool changes = text != m_parts->known;
    m_parts->known = text;
    m_parts->buddy.show(text);
    if (changes && watch.alive())
        ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, m_hWnd);
}

/// Whether the button still has its window afterwards.
bool CSliderButton::tellParent(UINT message)
{
    const Lifeline::Watch watch(*this);
    m_parts->buddy.tellParent(message);
    return watch.alive();
}
