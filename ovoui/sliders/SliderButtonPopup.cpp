// The popup of a slider button: where it opens, and how it goes.
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/sliders/SliderButtonParts.h>
#include <ovoui/sliders/core/PopupRules.h>
#include <ovoui/sliders/core/SliderPlaces.h>

using namespace ovoui::sliders;
using ovoui::frame::keepFirst;
using ovoui::frame::keeping;
using ovoui::frame::raise;

void CSliderButton::ShowPopup(const CPoint& at)
{
    if (!m_popup.m_hWnd && !m_popup.Create(this))
        return;
    const Positions positions = m_parts->positions = m_parts->numbers.positions();
    CPopupSliderCtrl& slider = m_popup.slider();
    slider.SetRange(positions.minimum, positions.maximum);
    slider.SetPageSize(pageSize(positions, m_parts->pages));
    showTicks();

    const Lifeline::Watch watch(*this);
    SetSliderPos();
    if (!watch.alive() || !m_popup.m_hWnd || !m_parts->pressed)
        return;
    m_parts->textBefore = readBuddy();
    placePopup(at);
    m_parts->watcher = std::make_unique<PopupWatcher>(PopupWatcher::Calls{
        .pressed = [this](HWND under) { dismissFor(under); }, .escape = [this] { cancelPopup(); }});
    updateBubble();
}

/// Below the button, with the thumb under the pointer as far as the screen allows, and without the
/// activation.
void CSliderButton::placePopup(const CPoint& at)
{
    CPopupSliderCtrl& slider = m_popup.slider();
    CRect channel;
    slider.GetChannelRect(&channel);
    slider.MapWindowPoints(&m_popup, &channel);
    const int thumb = thumbOffset({channel.left, channel.right}, slider.GetPos(), m_parts->positions);

    CPoint pointer = at;
    ClientToScreen(&pointer);
    CRect button;
    GetWindowRect(&button);
    CRect popup;
    m_popup.GetWindowRect(&popup);
    popup = ovoui::frame::toRect(
        popupPlace(pointer.x, channel.left + thumb, button.bottom, popup.Width(), popup.Height()));
    m_popup.keepOnScreen(popup);
    m_popup.SetWindowPos(&wndTop, popup.left, popup.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);

    CRect client;
    m_popup.GetClientRect(&client);
    m_popup.ClientToScreen(&client);
    m_popup.ClientToScreen(&channel);
    m_parts->place = {channel.left + thumb - pointer.x,
                      {channel.left, channel.right},
                      client.left,
                      client.top,
                      client.right,
                      client.bottom};
}

void CSliderButton::HidePopup()
{
    m_parts->watcher.reset();
    m_parts->bubble.hide();
    if (m_popup.m_hWnd)
        m_popup.ShowWindow(SW_HIDE);
}

/// The popup goes, and the button comes up, of which the parent is told.
void CSliderButton::dismiss()
{
    if (!m_parts->pressed)
        return;
    const Lifeline::Watch watch(*this);
    std::exception_ptr raised = keeping([this] { HidePopup(); });
    if (watch.alive())
        keepFirst(raised, [this] { SetPressed(false); });
    raise(raised);
}

/// A press of the mouse on another window than the popup and the button ends the popup.
void CSliderButton::dismissFor(HWND pressed)
{
    const bool onPopup = pressed == m_popup.m_hWnd || ::IsChild(m_popup.m_hWnd, pressed);
    if (dismisses(pressedOn(pressed == m_hWnd, onPopup)))
        dismiss();
}

void CSliderButton::cancelPopup()
{
    const Lifeline::Watch watch(*this);
    const bool isOpen = m_parts->pressed; // otherwise the text before is that of another time
    std::exception_ptr raised;
    if (isOpen && m_parts->buddy.exists() && readBuddy() != m_parts->textBefore) {
        raised = keeping([this] { putTextBack(); });
        if (!watch.alive()) {
            raise(raised);
            return;
        }
    }
    keepFirst(raised, [this] { dismiss(); });
    raise(raised);
}

void CSliderButton::putTextBack()
{
    const Lifeline::Watch watch(*this);
    setBuddyText(std::wstring(m_parts->textBefore));
    if (watch.alive())
        tellParent(kValueChanged);
}

// Ticks and bubble

void CSliderButton::showTicks()
{
    CPopupSliderCtrl& slider = m_popup.slider();
    slider.ClearTics();
    if (!m_parts->ticks.empty())
        m_popup.makeRoomForTicks();
    for (const int position : m_parts->numbers.positionsOf(m_parts->ticks))
        slider.SetTic(position);
}

void CSliderButton::updateBubble()
{
    const bool visible = m_popup.m_hWnd && m_popup.IsWindowVisible();
    if (showsBubble(m_parts->wantsBubble, m_parts->pressed, visible))
        m_parts->bubble.show(m_popup.slider(), m_parts->buddy.text());
    else
        m_parts->bubble.hide();
}
