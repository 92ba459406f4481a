// The popup of a slider button, and the number that it shows.
#include <ovoui/sliders/SliderButton.h>

#include <ovoui/frame/Geometry.h>
#include <ovoui/sliders/AccessibleSlider.h>
#include <ovoui/sliders/PopupWatcher.h>
#include <ovoui/sliders/SliderButtonOptions.h>
#include <ovoui/sliders/core/NumberText.h>
#include <ovoui/sliders/core/SliderDrag.h>
#include <ovoui/sliders/core/SliderNumbers.h>

#include <utility>

using namespace ovoui::sliders;

namespace
{

constexpr int kBuddyText = 100; // characters that are read of it

Mapping mappingOf(CSliderButton::SliderType type)
{
    switch (type) {
    case CSliderButton::SliderLogarithmic:
        return Mapping::Logarithmic;
    case CSliderButton::SliderSquareRoot:
        return Mapping::SquareRoot;
    default:
        return Mapping::Linear;
    }
}

} // namespace

void CSliderButton::ShowPopup(const CPoint& at)
{
    if (!m_popup.m_hWnd && !m_popup.Create(this))
        return;
    const SliderNumbers mapped = numbers();
    const Positions steps = mapped.positions();
    m_minimum = steps.minimum;
    m_maximum = steps.maximum;
    CPopupSliderCtrl& slider = m_popup.slider();
    slider.SetRange(m_minimum, m_maximum);
    slider.SetPageSize(pageSize(steps, m_pages));
    showTicks(mapped);

    const Lifeline::Watch watch(m_lifeline);
    SetSliderPos();
    if (!watch.alive() || !m_popup.m_hWnd || !m_pressed)
        return;
    m_textBefore = buddyText();
    placePopup(at);
    m_watcher = std::make_unique<PopupWatcher>(PopupWatcher::Calls{
        .pressed = [this](HWND under) { dismissFor(under); }, .escape = [this] { cancelPopup(); }});
    updateBubble();
}

/// A press of the mouse on another window than the popup and the button ends the popup.
void CSliderButton::dismissFor(HWND pressed)
{
    if (pressed != m_hWnd && pressed != m_popup.m_hWnd && !::IsChild(m_popup.m_hWnd, pressed))
        dismiss();
}

/// Below the button, with the thumb under the pointer as far as the screen allows, and without the
/// activation.
void CSliderButton::placePopup(const CPoint& at)
{
    CPopupSliderCtrl& slider = m_popup.slider();
    CRect channel;
    slider.GetChannelRect(&channel);
    slider.MapWindowPoints(&m_popup, &channel);
    const int thumb = thumbOffset({channel.left, channel.right}, slider.GetPos(), {m_minimum, m_maximum});

    CPoint pointer = at;
    ClientToScreen(&pointer);
    CRect button;
    GetWindowRect(&button);
    CRect popup;
    m_popup.GetWindowRect(&popup);
    popup.MoveToXY(pointer.x - (channel.left + thumb), button.bottom);
    EnsureRectVisible(popup);
    m_popup.SetWindowPos(&wndTop, popup.left, popup.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);

    m_popup.MapWindowPoints(this, &channel);
    m_channelLeft = channel.left;
    m_channelRight = channel.right;
    m_thumbOffset = channel.left + thumb - at.x;
    m_popup.GetClientRect(&m_popupRect);
    m_popup.MapWindowPoints(this, &m_popupRect);
}

void CSliderButton::HidePopup()
{
    m_watcher.reset();
    m_options->bubble.hide();
    if (m_popup.m_hWnd)
        m_popup.ShowWindow(SW_HIDE);
}

/// The popup goes, and the button comes up.
void CSliderButton::dismiss()
{
    if (!m_pressed)
        return;
    const Lifeline::Watch watch(m_lifeline);
    HidePopup();
    if (watch.alive())
        SetPressed(false);
}

void CSliderButton::cancelPopup()
{
    const Lifeline::Watch watch(m_lifeline);
    if (::IsWindow(m_buddy) && buddyText() != m_textBefore) {
        setBuddyText(m_textBefore);
        if (!watch.alive() || !tellParent(kValueChanged))
            return;
    }
    dismiss();
}

// The number

CString CSliderButton::buddyText() const
{
    CString text;
    const int length = ::GetWindowTextLengthW(m_buddy);
    ::GetWindowTextW(m_buddy, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

void CSliderButton::setBuddyText(LPCTSTR text)
{
    ::SetWindowTextW(m_buddy, text);
}

SliderNumbers CSliderButton::numbers() const
{
    SliderNumbers result;
    result.whole = m_type == SliderInteger;
    result.low = m_low;
    result.high = m_high;
    result.mapping = mappingOf(m_type);
    result.range = {m_realLow, m_realHigh};
    result.decimals = m_decimals;
    result.host = m_options->mapping;
    return result;
}

/// The buddy's text in machine form. False when the host's conversion has taken the button away.
bool CSliderButton::machineText(std::wstring& text) const
{
    const std::wstring shown(buddyText().Left(kBuddyText));
    if (m_type == SliderInteger) {
        text = shown;
        return true;
    }
    const Lifeline::Watch watch(m_lifeline);
    text.clear();
    m_utils.fromDisplay(text, shown);
    return watch.alive() && m_hWnd;
}

/// Writes a number in machine form into the buddy and tells the buddy's parent. False when the button is gone
/// then.
bool CSliderButton::showText(const std::wstring& machine)
{
    const Lifeline::Watch watch(m_lifeline);
    std::wstring text = machine;
    if (m_type != SliderInteger) {
        text.clear();
        m_utils.toDisplay(text, machine);
        if (!watch.alive())
            return false;
    }
    setBuddyText(text.c_str());
    if (!watch.alive())
        return false;
    updateBubble();
    announceValue(m_hWnd);
    return tellParent(kValueChanged);
}

void CSliderButton::SetSliderPos()
{
    std::wstring text;
    if (!machineText(text) || !m_popup.m_hWnd)
        return;
    m_popup.slider().SetPos(numbers().positionOf(text));
    m_popup.slider().Invalidate();
}

void CSliderButton::SetValue()
{
    if (m_buddy && m_popup.m_hWnd)
        showText(numbers().textAt(m_popup.slider().GetPos()));
}

std::optional<double> CSliderButton::Number() const
{
    std::wstring text;
    if (!::IsWindow(m_buddy) || !machineText(text))
        return std::nullopt;
    return parseReal(text);
}

void CSliderButton::ShowNumber(double number)
{
    const Lifeline::Watch watch(m_lifeline);
    std::wstring text = formatReal(number, m_type == SliderInteger ? 0 : m_decimals);
    if (m_type != SliderInteger) {
        const std::wstring machine = std::exchange(text, {});
        m_utils.toDisplay(text, machine);
    }
    if (watch.alive() && ::IsWindow(m_buddy))
        setBuddyText(text.c_str());
}

std::pair<double, double> CSliderButton::Limits() const
{
    return numbers().limits();
}

/// Moves the number by positions, or parts of one, whether the popup is open or not.
void CSliderButton::stepBy(double steps)
{
    std::wstring text;
    if (!::IsWindow(m_buddy) || !machineText(text))
        return;
    const SliderNumbers mapped = numbers();
    const std::wstring moved = mapped.stepped(text, steps);
    if (m_pressed && m_popup.m_hWnd)
        m_popup.slider().SetPos(mapped.positionOf(moved));
    showText(moved);
}

// Ticks and bubble

void CSliderButton::showTicks(const SliderNumbers& numbers)
{
    CPopupSliderCtrl& slider = m_popup.slider();
    slider.ClearTics();
    if (!m_options->ticks.empty()) {
        // The thumb of a slider this low leaves no room for ticks by itself.
        CRect client;
        slider.GetClientRect(&client);
        slider.ModifyStyle(TBS_NOTICKS, TBS_FIXEDLENGTH);
        slider.SendMessage(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(client.Height() * 3 / 5));
    }
    for (const int position : numbers.positionsOf(m_options->ticks))
        slider.SetTic(position);
}

void CSliderButton::updateBubble()
{
    if (!m_options->showsBubble || !m_pressed || !m_popup.m_hWnd || !m_popup.IsWindowVisible())
        m_options->bubble.hide();
    else
        m_options->bubble.show(m_popup.slider(), std::wstring(buddyText()));
}

/// Whether the button still has its window afterwards.
bool CSliderButton::tellParent(UINT message)
{
    const Lifeline::Watch watch(m_lifeline);
    ::SendMessageW(::GetParent(m_buddy), message, reinterpret_cast<WPARAM>(m_buddy), 0);
    return watch.alive() && m_hWnd;
}
