/// A knob turned by the mouse: angles round its middle, counted over any number of turns. In degrees, 0 at
/// the top, growing clockwise. Plain values, no windows.
#pragma once

#include <vector>

namespace ovoui::sliders
{

/// The direction of a point from the middle of the knob, from -180 to 180; 0 in the middle itself.
double directionOf(double right, double down);

/// Adds up how far the pointer has gone round since the press.
class DialTurn
{
public:
    void begin(double direction) { m_last = m_total = direction; }

    /// The pointer is in this direction now, having gone the shorter way. Gives the angle with all turns.
    double follow(double direction);

private:
    double m_last = 0;
    double m_total = 0;
};

/// The ends of what a dial can be turned to; without stops any angle will do.
struct DialRange
{
    double low = 0;
    double high = 0;
    bool stops = false;

    double accepted(double degrees) const;
};

/// The ticks of a dial, `step` apart: from stop to stop, no more than once round, or all round without stops.
/// None when they are too close to be seen, or the lower stop is infinitely far.
std::vector<double> dialTicks(const DialRange& range, double step);

} // namespace ovoui::sliders
