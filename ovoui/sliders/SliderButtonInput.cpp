// Mouse, wheel, tip and keyboard of a slider button.
#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/PressWatch.h>
#include <ovoui/sliders/SliderButtonParts.h>
#include <ovoui/sliders/core/ButtonKeys.h>
#include <ovoui/sliders/core/PopupRules.h>

using namespace ovoui::sliders;

namespace
{

/// Drags are followed on the screen, where the button may be laid out from right to left and the popup is
/// not.
CPoint onScreen(const CWnd& wnd, CPoint point)
{
    wnd.ClientToScreen(&point);
    return point;
}

} // namespace

// Mouse

/// A static control lets the mouse through to its parent otherwise.
LRESULT CSliderButton::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

void CSliderButton::OnLButtonDown(UINT, CPoint point)
{
    if (meaningOfPress(m_parts->pressed) == PressMeaning::Dismiss) {
        dismiss();
        return;
    }
    const ovoui::frame::PressWatch held;
    if (!press(point) || !held.goesOn())
        return;
    SetCapture();
    const CPoint pointer = onScreen(*this, point);
    m_parts->drag.begin({pointer.x, pointer.y}, m_parts->place,
                        {::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG)});
}

/// A quick second click is one like the first.
void CSliderButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CSliderButton::OnMouseMove(UINT, CPoint point)
{
    if (!m_parts->drag.tracking()) {
        enterTip();
        return;
    }
    const CPoint pointer = onScreen(*this, point);
    const auto position = m_parts->drag.move({pointer.x, pointer.y}, m_parts->positions);
    if (!position || !m_popup.m_hWnd)
        return;
    m_popup.slider().SetPos(*position);
    SetValue();
}

void CSliderButton::OnLButtonUp(UINT, CPoint)
{
    if (!m_parts->drag.tracking())
        return;
    const bool dragged = m_parts->drag.end();
    ::ReleaseCapture();
    if (dragged)
        dismiss();
}

/// Something else has the mouse now. The popup stays open.
void CSliderButton::OnCaptureChanged(CWnd* wnd)
{
    m_parts->drag.end();
    CStatic::OnCaptureChanged(wnd);
}

// The wheel

BOOL CSliderButton::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!m_parts->stepsByWheel)
        return CStatic::OnMouseWheel(flags, delta, point);
    turnWheel(delta);
    return TRUE;
}

void CSliderButton::turnWheel(int delta)
{
    if (!IsWindowEnabled())
        return;
    if (const int notches = m_parts->wheel.turned(delta); notches != 0)
        stepBy(stepsOfWheel(notches, m_parts->fine()));
}

void CSliderButton::hearBuddyWheel()
{
    m_parts->buddyWheel.reset();
    if (m_parts->stepsByWheel && m_parts->buddy.exists())
        m_parts->buddyWheel =
            std::make_unique<BuddyWheel>(m_parts->buddy.window(), [this](int delta) { turnWheel(delta); });
}

// The tip

void CSliderButton::enterTip()
{
    const auto text = m_parts->tip.enter([this] {
        return ovoui::frame::loadedText(static_cast<UINT>(::GetDlgCtrlID(m_parts->buddy.window())));
    });
    if (!text)
        return;
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leaving);
    m_parts->utils.showTip(*text);
}

void CSliderButton::OnMouseLeave()
{
    m_parts->tip.leave();
    m_parts->utils.hideTip();
}

// Keyboard

UINT CSliderButton::OnGetDlgCode()
{
    return CStatic::OnGetDlgCode() & ~static_cast<UINT>(DLGC_STATIC);
}

/// Space counts when it goes down. While it is held the buddy would get the focus, and the blanks.
void CSliderButton::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (buttonKeyOf(key) != ButtonKey::Space)
        CStatic::OnKeyDown(key, repeat, flags);
    else if (flags & KF_REPEAT)
        return;
    else if (meaningOfPress(m_parts->pressed) == PressMeaning::Dismiss)
        dismiss();
    else
        press(middle());
}

BOOL CSliderButton::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->hwnd == m_hWnd && takesKey(*message))
        return TRUE;
    return CStatic::PreTranslateMessage(message);
}

/// Takes keys that must not reach the dialog, which would go to another control or close.
bool CSliderButton::takesKey(const MSG& message)
{
    const ButtonKey key = buttonKeyOf(static_cast<unsigned>(message.wParam));
    const KeyMeaning meaning = meaningOf(key, m_parts->pressed, m_parts->fine());
    switch (meaning) {
    case KeyMeaning::Open:
        press(middle());
        return true;
    case KeyMeaning::Close:
        dismiss();
        return true;
    case KeyMeaning::Cancel:
        cancelPopup();
        return true;
    case KeyMeaning::Slider:
        if (m_popup.m_hWnd)
            m_popup.slider().SendMessage(WM_KEYDOWN, message.wParam, message.lParam);
        return m_popup.m_hWnd != nullptr;
    case KeyMeaning::FineMore:
    case KeyMeaning::FineLess:
        stepBy(stepsOfKey(meaning));
        return true;
    case KeyMeaning::Nothing:
        break;
    }
    return false;
}
