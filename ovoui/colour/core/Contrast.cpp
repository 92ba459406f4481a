#include <ovoui/colour/Contrast.h>

#include <algorithm>
#include <cmath>

namespace ovoui::colour
{

namespace
{

double linear(double component)
{
    const double inside = std::clamp(component, 0.0, 1.0);
    return inside <= 0.04045 ? inside / 12.92 : std::pow((inside + 0.055) / 1.055, 2.4);
}

double luminance(const Colour& colour)
{
    return 0.2126 * linear(colour.r()) + 0.7152 * linear(colour.g()) + 0.0722 * linear(colour.b());
}

} // namespace

double contrast(const Colour& one, const Colour& other)
{
    constexpr double kFlare = 0.05;
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + kFlare) / (dark + kFlare);
}

std::wstring_view gradeOf(double contrast)
{
    if (contrast >= 7)
        return L"AAA";
    if (contrast >= 4.5)
        return L"AA";
    return contrast >= 3 ? kGradeOfLargeText : L"-";
}

} // namespace ovoui::colour
