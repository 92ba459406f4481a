// How the positions of a slider button's slider stand for numbers, as a curve.
#pragma once

#include <afxwin.h>

#include <functional>

/// From the lowest position at the left to the highest at the right, with a mark at the number shown.
class CurvePlot : public CWnd
{
public:
    bool create(CWnd& parent);

    /// `numberAt` gives the number at a share of the way, from 0 to 1; it rises throughout.
    using Curve = std::function<double(double share)>;
    void show(Curve numberAt, double value);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CPoint place(const CRect& area, double share, double value) const;

    Curve m_numberAt = [](double share) { return share; };
    double m_value = 0;
};
