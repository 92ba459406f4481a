/// Colours as numbers, and their conversions between red, green and blue; hue, lightness and saturation; hue,
/// saturation and value; and the platform's integers.
///
///     const Colour warm = Colour::hls(Angle::degrees(30), 0.5, 1.0);
///     dc.SetTextColor(warm.colorref());
#pragma once

#include <ovocor/Angle.h>
#include <ovocor/export.h>

/// Red, green, blue and alpha, each from 0 to 1. A negative alpha means that the colour has none.
///
/// Components outside 0 to 1 are kept as they are given and clamped only where integers are made from them.
class OVOCOR_API Colour
{
public:
    /// Black without alpha.
    Colour() = default;

    /// From red `r`, green `g` and blue `b`, without alpha.
    static Colour rgb(double r, double g, double b);
    /// The same with alpha `a`.
    static Colour rgba(double r, double g, double b, double a);

    /// From a hue, and a lightness and saturation from 0 to 1. The colour has no alpha.
    static Colour hls(Angle hue, double lightness, double saturation);
    /// The same with alpha `a`.
    static Colour hlsa(Angle hue, double lightness, double saturation, double a);

    /// From a hue, and a saturation and value from 0 to 1, with alpha `a`.
    static Colour hsva(Angle hue, double saturation, double value, double a);

    /// From a COLORREF, `value`, 0x00bbggrr. The colour has no alpha; the highest byte is ignored.
    static Colour colorref(unsigned long value);

    /// Red.
    double r() const { return m_r; }
    /// Green.
    double g() const { return m_g; }
    /// Blue.
    double b() const { return m_b; }
    /// Alpha; negative when the colour has none.
    double a() const { return m_a; }

    /// The hue, from 0 (inclusive) to 360 degrees (exclusive); it is the same for both models. A grey keeps
    /// the hue that it was made with, so that a saturation taken down to 0 and up again returns to the same
    /// hue; a grey made from red, green and blue has hue 0.
    Angle h_hls() const;
    /// The same for hue, saturation and value.
    Angle h_hsv() const;

    /// The lightness, from 0 for black to 1 for white.
    double l_hls() const;
    /// 0 for greys, black and white included.
    double s_hls() const;

    /// 0 for greys, black and white included.
    double s_hsv() const;
    /// The value: the greatest of red, green and blue.
    double v_hsv() const;

    /// As a COLORREF, each component clamped and rounded half away from zero; alpha is left out.
    unsigned long colorref() const;

    /// Writes three bytes, blue, green and red, clamped and rounded in the same way.
    void getDib24(unsigned char* bytes) const;

private:
    Colour(double r, double g, double b, double a);

    static Colour polar(Angle hue, double smallest, double chroma, double a);

    double largest() const;
    double smallest() const;
    double hueFromComponents() const;

    double m_r = 0;
    double m_g = 0;
    double m_b = 0;
    double m_a = -1;
    double m_madeHue = kNoHue; // degrees

    static constexpr double kNoHue = -1;
};
