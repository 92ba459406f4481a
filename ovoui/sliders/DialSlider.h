/// A knob with a pointer that the user turns, with stops or without end.
///
///     m_volume.SetStops(-135, 135);
///     m_volume.SetTicks(15);
///     m_volume.Create(WS_CHILD | WS_VISIBLE, rect, this, IDC_VOLUME);
///     // in OnHScroll: m_volume.SetPos(static_cast<short>(position));
#pragma once

#include <ovoui/sliders/AngleSlider.h>

#include <vector>

/// The pointer is at the top at 0 degrees and goes clockwise as the angle grows. Tells its parent by
/// WM_HSCROLL, as CRoundSlider does; a drag turns the knob by the angle that the pointer goes round its
/// middle, any number of turns. A click without a movement turns nothing. It looks and turns the same in a
/// window that is laid out from right to left.
class OVOUI_API CDialSlider : public CAngleSlider
{
public:
    CDialSlider();
    ~CDialSlider() override;

    /// Makes the window as a child of `parent` with the number `id`, at `rect` in its client coordinates.
    /// `style` has WS_ bits. FALSE when the system refuses.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// The user cannot turn it beyond the angles `low` and `high`, in degrees; SetPos takes any. Without
    /// stops at first.
    void SetStops(double low, double high);
    /// The user can turn it without end.
    void RemoveStops();

    /// A tick every so many degrees, between the stops or all round; 0 for none, as at first.
    void SetTicks(double degrees);

protected:
    double angleAt(CPoint point, bool pressed) override;
    double limited(double degrees) const override;
    void paintBody(CDC& dc, const CRect& client, double shown) override;

private:
    struct Turning;
    std::unique_ptr<Turning> m_turning;
};
