#include <ovoui/colour/core/ColourModes.h>

#include <ovoui/colour/core/Round.h>

#include <cmath>

namespace ovoui::colour
{

namespace
{

constexpr int kComponent = 255;
constexpr int kPercent = 100;
constexpr int kLastDegree = 359;

int shownHue(Angle hue)
{
    const int degrees = rounded(hue.degrees());
    return degrees < 0 ? degrees + 360 : degrees;
}

double part(int value, int whole)
{
    return static_cast<double>(value) / whole;
}

} // namespace

Values maxima(ColPickerModeType mode)
{
    switch (mode) {
    case ColPickerModeRGB:
        return {kComponent, kComponent, kComponent};
    case ColPickerModeHLS:
    case ColPickerModeHSV:
        return {kLastDegree, kPercent, kPercent};
    }
    return {};
}

Values valuesOf(const Colour& colour, ColPickerModeType mode)
{
    switch (mode) {
    case ColPickerModeRGB:
        return {rounded(colour.r() * kComponent), rounded(colour.g() * kComponent),
                rounded(colour.b() * kComponent)};
    case ColPickerModeHLS:
        return {shownHue(colour.h_hls()), rounded(colour.l_hls() * kPercent),
                rounded(colour.s_hls() * kPercent)};
    case ColPickerModeHSV:
        return {shownHue(colour.h_hsv()), rounded(colour.s_hsv() * kPercent),
                rounded(colour.v_hsv() * kPercent)};
    }
    return {};
}

int alphaOf(const Colour& colour)
{
    return rounded(colour.a() * kAlphaMaximum);
}

Colour colourOf(const Values& values, double alpha, ColPickerModeType mode)
{
    const auto [first, second, third] = values;
    switch (mode) {
    case ColPickerModeRGB:
        return Colour::rgba(part(first, kComponent), part(second, kComponent), part(third, kComponent),
                            alpha);
    case ColPickerModeHLS:
        return Colour::hlsa(Angle::degrees(first), part(second, kPercent), part(third, kPercent), alpha);
    case ColPickerModeHSV:
        return Colour::hsva(Angle::degrees(first), part(second, kPercent), part(third, kPercent), alpha);
    }
    return Colour::rgba(0, 0, 0, alpha);
}

bool differ(const Colour& one, const Colour& other, bool evenHue)
{
    const auto same = [](double a, double b) { return std::fabs(a - b) < 1.0 / 512; };
    const bool sameLook = same(one.r(), other.r()) && same(one.g(), other.g()) && same(one.b(), other.b()) &&
                          same(one.a(), other.a());
    return !sameLook || (evenHue && !same(one.h_hls().degrees(), other.h_hls().degrees()));
}

} // namespace ovoui::colour
