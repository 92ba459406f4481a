/// A cylinder with an upright axis that the user turns sideways, without end. It shows its angle as a number.
///
///     m_heading.Create(WS_CHILD | WS_VISIBLE, rect, this, IDC_HEADING);
///     // in OnHScroll: m_heading.SetPos(static_cast<short>(position));
#pragma once

#include <ovoui/sliders/AngleSlider.h>

/// Tells its parent by WM_HSCROLL; see CAngleSlider.
class OVOUI_API CRoundSlider : public CAngleSlider
{
public:
    /// `reversed`: turning to the right makes the angle greater.
    explicit CRoundSlider(bool reversed);

    /// Makes the window as a child of `parent` with the number `id`, at `rect` in its client coordinates.
    /// `style` has WS_ bits. FALSE when the system refuses.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Three inches on `dc` in pixels, the greatest width that is useful; 288 without a DC.
    static int MaxWidth(CDC* dc);

protected:
    void drawOnCylinder(CDC& dc, const CRect& cylinder, double shown) override;
};
