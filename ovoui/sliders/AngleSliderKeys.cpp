// Keyboard, wheel and accessibility of the angle sliders.
#include <ovoui/sliders/AngleSlider.h>

#include <ovoui/sliders/AccessibleSlider.h>
#include <ovoui/sliders/AngleSliderOptions.h>
#include <ovoui/sliders/core/AngleKeys.h>
#include <ovoui/sliders/core/CylinderDrag.h>

#include <cmath>
#include <optional>
#include <string>
#include <utility>

using namespace ovoui::sliders;

namespace
{

bool isHeld(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

void CAngleSlider::UseKeyboard(bool use)
{
    m_options->keyboard = use;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CAngleSlider::SetSnap(double degrees)
{
    m_options->snap = degrees;
}

double CAngleSlider::snapNow() const
{
    return m_options->snap > 0 && isHeld(VK_SHIFT) ? m_options->snap : 0;
}

bool CAngleSlider::showsFocus() const
{
    return m_options->keyboard && ::GetFocus() == m_hWnd;
}

/// The user has chosen an angle in one step: commits it, paints it and tells the parent.
void CAngleSlider::turnTo(double degrees)
{
    const double before = m_drag->position();
    m_drag->turnTo(degrees);
    if (m_drag->position() == before)
        return;
    Invalidate(FALSE);
    announceValue();
    tellParent(SB_THUMBPOSITION, m_drag->position());
}

UINT CAngleSlider::OnGetDlgCode()
{
    const UINT code = CWnd::OnGetDlgCode();
    return m_options->keyboard ? code | DLGC_WANTARROWS | DLGC_WANTCHARS : code;
}

void CAngleSlider::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const std::optional<AngleKey> meaning = m_options->keyboard ? angleKeyOf(key) : std::nullopt;
    if (!meaning || m_drag->dragging())
        CWnd::OnKeyDown(key, repeat, flags);
    else
        turnTo(angleAfter(*meaning, isHeld(VK_CONTROL), m_drag->position()));
}

void CAngleSlider::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (!m_options->keyboard || !beginsAngle(character) || m_drag->dragging()) {
        CWnd::OnChar(character, repeat, flags);
        return;
    }
    // Typed quickly, the next character was on its way here before the edit control got the focus.
    if (m_options->edit.m_hWnd) {
        m_options->edit.SendMessage(WM_CHAR, character, MAKELPARAM(repeat, flags));
        return;
    }
    m_options->edit.open(*this, static_cast<wchar_t>(character), [this](std::optional<double> typed) {
        const Lifeline::Watch watch(*this);
        if (::GetFocus() == nullptr)
            SetFocus(); // the edit control had it
        if (watch.alive() && typed && std::isfinite(*typed))
            turnTo(*typed);
    });
}

BOOL CAngleSlider::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!m_options->keyboard || m_drag->dragging())
        return CWnd::OnMouseWheel(flags, delta, point);
    const double step = angleAfter(AngleKey::More, isHeld(VK_CONTROL), 0);
    if (const int notches = m_options->wheel.turned(delta); notches != 0)
        turnTo(m_drag->position() + notches * step);
    return TRUE;
}

void CAngleSlider::OnSetFocus(CWnd* other)
{
    CWnd::OnSetFocus(other);
    if (m_options->keyboard)
        Invalidate(FALSE);
}

void CAngleSlider::OnKillFocus(CWnd* other)
{
    CWnd::OnKillFocus(other);
    if (m_options->keyboard)
        Invalidate(FALSE);
}

// Accessibility

LRESULT CAngleSlider::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!ovoui::frame::asksForContents(lParam))
        return Default();
    const auto name = [this] { return labelOrText(m_hWnd); };
    const auto value = [this] { return std::to_wstring(roundedAngle()); };
    return ovoui::frame::accessibleAnswer(wParam, std::make_shared<AccessibleSlider>(*this, name, value));
}

long CAngleSlider::roundedAngle() const
{
    return std::lround(m_drag->shown());
}

/// Tells accessibility when the value that it would read has changed since it was told last.
void CAngleSlider::announceValue()
{
    const long before = std::exchange(m_options->announced, roundedAngle());
    if (m_hWnd && m_options->announced != before)
        ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, m_hWnd);
}
