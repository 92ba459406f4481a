#include <ovoui/sliders/core/DialTurn.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ovoui::sliders
{

double directionOf(double right, double down)
{
    return std::atan2(right, -down) * 180.0 / std::numbers::pi;
}

double DialTurn::follow(double direction)
{
    m_total += std::remainder(direction - m_last, 360.0);
    m_last = direction;
    return m_total;
}

double DialRange::accepted(double degrees) const
{
    return stops ? std::clamp(degrees, std::min(low, high), std::max(low, high)) : degrees;
}

std::vector<double> dialTicks(const DialRange& range, double step)
{
    constexpr double kWholeTurn = 360;
    constexpr double kLeastStep = 0.5;
    std::vector<double> ticks;
    if (!(step >= kLeastStep) || std::isinf(step))
        return ticks;
    const double low = range.stops ? std::min(range.low, range.high) : 0;
    const double high =
        range.stops ? std::min(std::max(range.low, range.high), low + kWholeTurn) : kWholeTurn - step / 2;
    constexpr double kRounding = 1e-9;
    const double last = std::floor((high - low) / step + kRounding); // NaN when there is nothing to begin at
    for (int i = 0; i <= last; ++i)
        ticks.push_back(low + i * step);
    return ticks;
}

} // namespace ovoui::sliders
