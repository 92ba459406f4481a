#include <ovoui/sliders/core/CylinderDrag.h>

#include <ovoui/sliders/core/AngleKeys.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

namespace ovoui::sliders
{
namespace
{

constexpr double kRightAngle = 90.0;
constexpr int kFullTurn = 360;
constexpr double kNudge = 3.0; // a click turns by this part of the clicked angle

/// Rounded half away from zero; 0 for what the type cannot hold.
template <typename Integer>
Integer rounded(double number)
{
    const double whole = std::round(number);
    if (!(whole >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          whole < -static_cast<double>(std::numeric_limits<Integer>::min())))
        return 0;
    return static_cast<Integer>(whole);
}

} // namespace

double angleUnder(int coordinate, int first, int second)
{
    if (coordinate <= first)
        return kRightAngle;
    if (coordinate >= second)
        return -kRightAngle;
    const int middle = (first + second) / 2;
    const double sine = (middle - coordinate) * 2.0 / (second - first);
    return std::asin(std::clamp(sine, -1.0, 1.0)) * 180.0 / std::numbers::pi;
}

void CylinderDrag::press(double under)
{
    m_dragging = true;
    m_dragPosition = m_position;
    m_moved = false;
    m_grabOffset = under - m_position;
}

std::optional<double> CylinderDrag::move(double under, double snap)
{
    if (!m_dragging)
        return std::nullopt;
    const double angle = accepted(snapped(under - m_grabOffset, snap));
    if (angle == m_dragPosition)
        return std::nullopt;
    m_moved = true;
    return angle;
}

double CylinderDrag::release(double under, double snap)
{
    m_dragging = false;
    const double nudge = m_moved || !m_nudges ? 0.0 : under / kNudge;
    m_position = accepted(snapped(under - m_grabOffset + nudge, snap));
    return m_position;
}

double CylinderDrag::accepted(double degrees) const
{
    const double free = m_limit ? m_limit(degrees) : degrees;
    return m_turn == Turn::Half ? std::clamp(free, -kRightAngle, kRightAngle) : free;
}

int printedAngle(double degrees)
{
    const int angle = rounded<int>(degrees);
    if (angle < 0)
        return angle + kFullTurn;
    return angle >= kFullTurn ? angle - kFullTurn : angle;
}

unsigned short messageAngle(double degrees)
{
    return static_cast<unsigned short>(rounded<std::int64_t>(degrees));
}

} // namespace ovoui::sliders
