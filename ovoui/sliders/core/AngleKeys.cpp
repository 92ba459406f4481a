#include <ovoui/sliders/core/AngleKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>

#include <cmath>

namespace ovoui::sliders
{

using namespace keys;

namespace
{

constexpr double kStep = 1;
constexpr double kLargeStep = 5;
constexpr double kPage = 15;

} // namespace

std::optional<AngleKey> angleKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkLeft:
    case kVkDown:
        return AngleKey::Less;
    case kVkRight:
    case kVkUp:
        return AngleKey::More;
    case kVkPageDown:
        return AngleKey::PageLess;
    case kVkPageUp:
        return AngleKey::PageMore;
    case kVkHome:
        return AngleKey::Zero;
    default:
        return std::nullopt;
    }
}

bool beginsAngle(unsigned character)
{
    return (character >= L'0' && character <= L'9') || character == L'-' || character == L'.';
}

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
