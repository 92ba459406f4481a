#include <ovocor/Colour.h>

#include <algorithm>
#include <cmath>

namespace
{

/// A component as a byte; what is not a number counts as 0.
unsigned char toByte(double component)
{
    const double inside = component > 0 ? std::min(component, 1.0) : 0;
    return static_cast<unsigned char>(std::lround(inside * 255));
}

double fromByte(unsigned long byte)
{
    return static_cast<double>(byte & 0xFF) / 255;
}

} // namespace

Colour::Colour(double r, double g, double b, double a)
    : m_r(r)
    , m_g(g)
    , m_b(b)
    , m_a(a)
{
}

Colour Colour::rgb(double r, double g, double b)
{
    return {r, g, b, -1};
}

Colour Colour::rgba(double r, double g, double b, double a)
{
    return {r, g, b, a};
}

Colour Colour::hls(Angle hue, double lightness, double saturation)
{
    return hlsa(hue, lightness, saturation, -1);
}

Colour Colour::hlsa(Angle hue, double lightness, double saturation, double a)
{
    const double chroma = (lightness <= 0.5 ? 2 * lightness : 2 - 2 * lightness) * saturation;
    return polar(hue, lightness - chroma / 2, chroma, a);
}

Colour Colour::hsva(Angle hue, double saturation, double value, double a)
{
    const double chroma = value * saturation;
    return polar(hue, value - chroma, chroma, a);
}

Colour Colour::colorref(unsigned long value)
{
    return rgb(fromByte(value), fromByte(value >> 8), fromByte(value >> 16));
}

/// The colour whose components lie from `smallest` to `smallest + chroma`, in the order that the hue asks
/// for.
Colour Colour::polar(Angle hue, double smallest, double chroma, double a)
{
    const double degrees = hue.normalised().degrees();
    // How much of the chroma a component gets, by its distance from its own hue: all of it up to 60 degrees,
    // none from 120 on.
    const auto component = [=](double own) {
        const double apart = std::fabs(degrees - own);
        const double distance = std::min(apart, 360 - apart);
        return smallest + chroma * std::clamp(2 - distance / 60, 0.0, 1.0);
    };
    Colour colour(component(0), component(120), component(240), a);
    // A negative chroma, out of components outside 0 to 1, gives the opposite hue.
    if (chroma >= 0)
        colour.m_madeHue = degrees;
    return colour;
}

double Colour::largest() const
{
    return std::max({m_r, m_g, m_b});
}

double Colour::smallest() const
{
    return std::min({m_r, m_g, m_b});
}

Angle Colour::h_hls() const
{
    return Angle::degrees(m_madeHue != kNoHue ? m_madeHue : hueFromComponents());
}

Angle Colour::h_hsv() const
{
    return h_hls();
}

double Colour::hueFromComponents() const
{
    const double chroma = largest() - smallest();
    if (!(chroma > 0))
        return 0;
    double sixths = 4 + (m_r - m_g) / chroma;
    if (m_r == largest())
        sixths = (m_g - m_b) / chroma;
    else if (m_g == largest())
        sixths = 2 + (m_b - m_r) / chroma;
    return Angle::degrees(sixths * 60).normalised().degrees();
}

double Colour::l_hls() const
{
    return (largest() + smallest()) / 2;
}

double Colour::s_hls() const
{
    const double sum = largest() + smallest();
    // The chroma that full saturation would have at this lightness.
    const double full = sum <= 1 ? sum : 2 - sum;
    return full != 0 ? (largest() - smallest()) / full : 0;
}

double Colour::s_hsv() const
{
    return largest() != 0 ? (largest() - smallest()) / largest() : 0;
}

double Colour::v_hsv() const
{
    return largest();
}

unsigned long Colour::colorref() const
{
    const unsigned long r = toByte(m_r);
    const unsigned long g = toByte(m_g);
    const unsigned long b = toByte(m_b);
    return r | g << 8 | b << 16;
}

void Colour::getDib24(unsigned char* bytes) const
{
    bytes[0] = toByte(m_b);
    bytes[1] = toByte(m_g);
    bytes[2] = toByte(m_r);
}
