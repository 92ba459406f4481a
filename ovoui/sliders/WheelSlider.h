/// A wheel with a level axis that the user turns up and down, from -90 to 90 degrees.
///
///     m_tilt.Create(WS_CHILD | WS_VISIBLE, rect, this, IDC_TILT);
///     // in OnVScroll: m_tilt.SetPos(static_cast<short>(position));
#pragma once

#include <ovoui/sliders/AngleSlider.h>

/// Tells its parent by WM_VSCROLL; see CAngleSlider. Only what the user does is limited: SetPos takes any
/// angle.
class OVOUI_API CWheelSlider : public CAngleSlider
{
public:
    /// `reversed`: turning downwards makes the angle greater.
    explicit CWheelSlider(bool reversed);

    /// Makes the window as a child of `parent` with the number `id`, at `rect` in its client coordinates.
    /// `style` has WS_ bits. FALSE when the system refuses.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Three inches on `dc` in pixels, the greatest height that is useful; 288 without a DC.
    static int MaxHeight(CDC* dc);
};
