// How the positions of a slider button's slider stand for numbers, as a curve.
#pragma once

#include <ovoui/sliders/SliderButton.h>

#include <afxwin.h>

/// From the lowest position at the left to the highest at the right, with a mark at the number shown.
class CurvePlot : public CWnd
{
public:
    bool create(CWnd& parent);

    void show(CSliderButton::SliderType type, double low, double high, double value);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    double valueAt(double fraction) const;
    CPoint place(const CRect& area, double fraction, double value) const;

    CSliderButton::SliderType m_type = CSliderButton::SliderInteger;
    double m_low = 0;
    double m_high = 1;
    double m_value = 0;
};
