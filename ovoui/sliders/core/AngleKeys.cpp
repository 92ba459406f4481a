#include <ovoui/sliders/core/AngleKeys.h>

#include <cmath>

namespace ovoui::sliders
{
namespace
{

constexpr double kStep = 1;
constexpr double kLargeStep = 5;
constexpr double kPage = 15;

} // namespace

double angleAfter(AngleKey key, bool ctrl, double degrees)
{
    const double step = ctrl ? kLargeStep : kStep;
    switch (key) {
    case AngleKey::Less:
        return degrees - step;
    case AngleKey::More:
        return degrees + step;
    case AngleKey::PageLess:
        return degrees - kPage;
    case AngleKey::PageMore:
        return degrees + kPage;
    case AngleKey::Zero:
        return 0;
    }
    return degrees;
}

double snapped(double degrees, double snap)
{
    return snap > 0 ? std::round(degrees / snap) * snap : degrees;
}

} // namespace ovoui::sliders
