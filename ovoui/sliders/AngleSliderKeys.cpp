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
    return snapFor(m_options->snap, ovoui::frame::heldKeysNow().shift);
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
    if (const std::optional<double> degrees = angleByKey(key, m_options->inputTo(*m_drag)))
        turnTo(*degrees);
    else
        CWnd::OnKeyDown(key, repeat, flags);
}

void CAngleSlider::OnChar(UINT character, UINT repeat, UINT flags)
{
    AngleEdit& edit = m_options->edit;
    switch (angleCharacter(character, m_options->inputTo(*m_drag), edit.m_hWnd != nullptr)) {
    case AngleCharacter::PassOn:
        CWnd::OnChar(character, repeat, flags);
        break;
    case AngleCharacter::ToEdit:
        edit.SendMessage(WM_CHAR, character, MAKELPARAM(repeat, flags));
        break;
    case AngleCharacter::Open:
        edit.open(*this, static_cast<wchar_t>(character), [this](std::optional<double> typed, bool byKey) {
            const Lifeline::Watch watch(*this);
            if (byKey && ::GetFocus() == nullptr)
                SetFocus(); // the edit control had it
            if (watch.alive() && typed)
                turnTo(*typed);
        });
        break;
    }
}

BOOL CAngleSlider::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    const AngleInput input = m_options->inputTo(*m_drag);
    if (!takesWheel(input))
        return CWnd::OnMouseWheel(flags, delta, point);
    if (const int notches = m_options->wheel.turned(delta); notches != 0)
        turnTo(angleByWheel(notches, input));
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
