#include <ovoui/colour/core/ColourModes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace ovoui::colour;

namespace
{

constexpr ColPickerModeType kModes[] = {ColPickerModeRGB, ColPickerModeHLS, ColPickerModeHSV};
constexpr auto kNoMode = static_cast<ColPickerModeType>(0);

} // namespace

TEST(ColourModes, NumbersOfTheModes)
{
    EXPECT_EQ(static_cast<int>(ColPickerModeRGB), 1);
    EXPECT_EQ(static_cast<int>(ColPickerModeHLS), 2);
    EXPECT_EQ(static_cast<int>(ColPickerModeHSV), 3);
    EXPECT_EQ(sizeof(ColPickerModeType), 4u);
}

TEST(ColourModes, Ranges)
{
    EXPECT_EQ(maxima(ColPickerModeRGB), (Values{255, 255, 255}));
    EXPECT_EQ(maxima(ColPickerModeHLS), (Values{359, 100, 100}));
    EXPECT_EQ(maxima(ColPickerModeHSV), (Values{359, 100, 100}));
    EXPECT_EQ(maxima(kNoMode), (Values{0, 0, 0}));
}

TEST(ColourModes, ShownNumbers)
{
    const Colour colour = Colour::rgba(1, 0.5, 0, 0.5);
    EXPECT_EQ(valuesOf(colour, ColPickerModeRGB), (Values{255, 128, 0})) << "127.5 goes away from zero";
    EXPECT_EQ(valuesOf(colour, ColPickerModeHLS), (Values{30, 50, 100}));
    EXPECT_EQ(valuesOf(colour, ColPickerModeHSV), (Values{30, 100, 100}));
    EXPECT_EQ(valuesOf(colour, kNoMode), (Values{0, 0, 0}));
    EXPECT_EQ(alphaOf(colour), 128);
    EXPECT_EQ(alphaOf(Colour::rgb(0, 0, 0)), -255) << "a colour without alpha";
}

TEST(ColourModes, AHueJustBelowTheFullTurnShowsAsTheFullTurn)
{
    EXPECT_EQ(valuesOf(Colour::hls(Angle::degrees(359.6), 0.5, 1), ColPickerModeHLS)[0], 360);
    EXPECT_EQ(valuesOf(Colour::hls(Angle::degrees(359.4), 0.5, 1), ColPickerModeHSV)[0], 359);
    EXPECT_EQ(valuesOf(Colour::hls(Angle::degrees(-20), 0.5, 1), ColPickerModeHLS)[0], 340);
}

TEST(ColourModes, ColoursOfNumbers)
{
    const Colour rgb = colourOf({255, 51, 0}, 0.25, ColPickerModeRGB);
    EXPECT_EQ(rgb.r(), 1);
    EXPECT_EQ(rgb.g(), 0.2);
    EXPECT_EQ(rgb.b(), 0);
    EXPECT_EQ(rgb.a(), 0.25);
    const Colour hls = colourOf({120, 25, 80}, 1, ColPickerModeHLS);
    EXPECT_NEAR(hls.h_hls().degrees(), 120, 1e-9);
    EXPECT_NEAR(hls.l_hls(), 0.25, 1e-9);
    EXPECT_NEAR(hls.s_hls(), 0.8, 1e-9);
    const Colour hsv = colourOf({240, 30, 70}, 0, ColPickerModeHSV);
    EXPECT_NEAR(hsv.h_hsv().degrees(), 240, 1e-9);
    EXPECT_NEAR(hsv.s_hsv(), 0.3, 1e-9);
    EXPECT_NEAR(hsv.v_hsv(), 0.7, 1e-9);
    EXPECT_EQ(hsv.a(), 0);
}

// Every combination of red, green and blue in steps; hue, lightness and so on of all that have one.
TEST(ColourModes, NumbersComeBackFromTheirColour)
{
    for (int first = 0; first <= 255; first += 5)
        for (int second = 0; second <= 255; second += 5)
            for (int third = 0; third <= 255; third += 15) {
                const Values values{first, second, third};
                ASSERT_EQ(valuesOf(colourOf(values, 1, ColPickerModeRGB), ColPickerModeRGB), values);
            }
    for (int hue = 0; hue < 360; ++hue)
        for (int second = 0; second <= 100; second += 4)
            for (int third = 0; third <= 100; third += 5) {
                const Values values{hue, second, third};
                const bool grey = second == 0 || second == 100 || third == 0;
                const Values hls = valuesOf(colourOf(values, 1, ColPickerModeHLS), ColPickerModeHLS);
                ASSERT_EQ(hls, (grey ? Values{hue, second, 0} : values))
                    << hue << ' ' << second << ' ' << third;
                const Values hsv = valuesOf(colourOf(values, 1, ColPickerModeHSV), ColPickerModeHSV);
                ASSERT_EQ(hsv, (third == 0 ? Values{hue, 0, 0} : values))
                    << hue << ' ' << second << ' ' << third;
            }
}

// What a colour loses when it is edited in a mode is at most half a step of the numbers shown there.
TEST(ColourModes, AColourThroughTheNumbersOfAModeLosesOnlyTheirRounding)
{
    for (int r = 0; r <= 255; r += 15)
        for (int g = 0; g <= 255; g += 15)
            for (int b = 0; b <= 255; b += 15) {
                const Colour colour = Colour::rgba(r / 255.0, g / 255.0, b / 255.0, 1);
                for (const ColPickerModeType mode : kModes) {
                    Values values = valuesOf(colour, mode);
                    values[0] = std::min(values[0], maxima(mode)[0]);
                    const Colour back = colourOf(values, 1, mode);
                    // Half a per cent of two numbers, half a degree of a sixth of the turn (or a whole one,
                    // when 360 had to become 359).
                    const double bound = mode == ColPickerModeRGB ? 1e-9 : 0.005 + 0.01 + 1.0 / 60;
                    ASSERT_LE(std::fabs(colour.r() - back.r()), bound)
                        << r << ' ' << g << ' ' << b << ' ' << mode;
                    ASSERT_LE(std::fabs(colour.g() - back.g()), bound)
                        << r << ' ' << g << ' ' << b << ' ' << mode;
                    ASSERT_LE(std::fabs(colour.b() - back.b()), bound)
                        << r << ' ' << g << ' ' << b << ' ' << mode;
                }
            }
}

// Comparing

TEST(ColourModes, ColoursDifferFromA512thOn)
{
    constexpr double kStep = 1.0 / 512;
    const Colour colour = Colour::rgba(0.5, 0.25, 0.75, 0.5);
    EXPECT_FALSE(differ(colour, colour, true));
    for (int component = 0; component < 4; ++component)
        for (const double sign : {-1.0, 1.0}) {
            const auto moved = [&](double by) {
                double parts[4] = {0.5, 0.25, 0.75, 0.5};
                parts[component] += sign * by;
                return Colour::rgba(parts[0], parts[1], parts[2], parts[3]);
            };
            EXPECT_TRUE(differ(colour, moved(kStep), false)) << component;
            EXPECT_FALSE(differ(colour, moved(kStep * 0.999), false)) << component;
        }
}

TEST(ColourModes, TheHueOfAGreyCountsOnlyWhereItIsAskedFor)
{
    const Colour grey = Colour::hlsa(Angle::degrees(40), 0.5, 0, 1);
    const Colour turned = Colour::hlsa(Angle::degrees(41), 0.5, 0, 1);
    EXPECT_FALSE(differ(grey, turned, false));
    EXPECT_TRUE(differ(grey, turned, true));
    EXPECT_FALSE(differ(grey, Colour::hlsa(Angle::degrees(40.001), 0.5, 0, 1), true));
    EXPECT_TRUE(differ(grey, Colour::hlsa(Angle::degrees(40.00196), 0.5, 0, 1), true));
}

TEST(ColourModes, HavingAlphaAtAllIsADifference)
{
    EXPECT_TRUE(differ(Colour::rgb(1, 0, 0), Colour::rgba(1, 0, 0, 1), false));
    EXPECT_TRUE(differ(Colour::rgb(1, 0, 0), Colour::rgba(1, 0, 0, 0), false));
}
