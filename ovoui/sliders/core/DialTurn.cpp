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

} // namespace ovoui::sliders
