#include <ovocor/Colour.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace
{

constexpr double kExact = 1e-12;

void expectSame(const Colour& actual, const Colour& expected)
{
    EXPECT_NEAR(actual.r(), expected.r(), kExact);
    EXPECT_NEAR(actual.g(), expected.g(), kExact);
    EXPECT_NEAR(actual.b(), expected.b(), kExact);
    EXPECT_EQ(actual.a(), expected.a());
}

Colour throughHls(const Colour& colour)
{
    return Colour::hlsa(colour.h_hls(), colour.l_hls(), colour.s_hls(), colour.a());
}

Colour throughHsv(const Colour& colour)
{
    return Colour::hsva(colour.h_hsv(), colour.s_hsv(), colour.v_hsv(), colour.a());
}

/// A lattice with the corners and the greys, and colours in no order.
std::vector<Colour> manyColours()
{
    std::vector<Colour> colours;
    for (int r = 0; r <= 16; ++r)
        for (int g = 0; g <= 16; ++g)
            for (int b = 0; b <= 16; ++b)
                colours.push_back(Colour::rgba(r / 16.0, g / 16.0, b / 16.0, (r + g + b) / 48.0));
    std::mt19937 random(7);
    std::uniform_real_distribution<double> component(0, 1);
    for (int i = 0; i < 20'000; ++i) {
        const double r = component(random);
        const double g = component(random);
        colours.push_back(Colour::rgb(r, g, component(random)));
    }
    return colours;
}

} // namespace

TEST(Colour, IsBlackWithoutAlphaAtFirst)
{
    expectSame(Colour(), Colour::rgb(0, 0, 0));
    EXPECT_LT(Colour().a(), 0);
}

TEST(Colour, HasNoAlphaUnlessItIsGivenOne)
{
    EXPECT_LT(Colour::rgb(1, 0, 0).a(), 0);
    EXPECT_LT(Colour::hls(Angle::degrees(10), 0.5, 1).a(), 0);
    EXPECT_LT(Colour::colorref(0xFF123456).a(), 0);
    EXPECT_EQ(Colour::rgba(1, 0, 0, 0.25).a(), 0.25);
    EXPECT_EQ(Colour::hlsa(Angle::degrees(10), 0.5, 1, 0.25).a(), 0.25);
    EXPECT_EQ(Colour::hsva(Angle::degrees(10), 0.5, 1, 0).a(), 0);
}

TEST(Colour, ConvertsTheKnownOnes)
{
    struct Row
    {
        double r, g, b, hue, lightness, hlsSaturation, hsvSaturation;
    };
    const Row rows[] = {
        {1, 0, 0, 0, 0.5, 1, 1},
        {1, 1, 0, 60, 0.5, 1, 1},
        {0, 1, 0, 120, 0.5, 1, 1},
        {0, 1, 1, 180, 0.5, 1, 1},
        {0, 0, 1, 240, 0.5, 1, 1},
        {1, 0, 1, 300, 0.5, 1, 1},
        {1, 0, 0.5, 330, 0.5, 1, 1},
        {1, 0.5, 0, 30, 0.5, 1, 1},
        {0.5, 0.25, 0.25, 0, 0.375, 1 / 3.0, 0.5},
        {0.75, 1, 0.75, 120, 0.875, 1, 0.25},
        {0.5, 0.5, 0.5, 0, 0.5, 0, 0},
        {1, 1, 1, 0, 1, 0, 0},
        {0, 0, 0, 0, 0, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.r << " " << row.g << " " << row.b);
        const Colour colour = Colour::rgb(row.r, row.g, row.b);
        EXPECT_NEAR(colour.h_hls().degrees(), row.hue, kExact);
        EXPECT_NEAR(colour.h_hsv().degrees(), row.hue, kExact);
        EXPECT_NEAR(colour.l_hls(), row.lightness, kExact);
        EXPECT_NEAR(colour.s_hls(), row.hlsSaturation, kExact);
        EXPECT_NEAR(colour.s_hsv(), row.hsvSaturation, kExact);
        EXPECT_EQ(colour.v_hsv(), std::max({row.r, row.g, row.b}));
        expectSame(Colour::hls(Angle::degrees(row.hue), row.lightness, row.hlsSaturation), colour);
        expectSame(Colour::hsva(Angle::degrees(row.hue), row.hsvSaturation, colour.v_hsv(), -1), colour);
    }
}

TEST(Colour, ComesBackFromHueLightnessSaturation)
{
    for (const Colour& colour : manyColours())
        expectSame(throughHls(colour), colour);
}

TEST(Colour, ComesBackFromHueSaturationValue)
{
    for (const Colour& colour : manyColours())
        expectSame(throughHsv(colour), colour);
}

TEST(Colour, GivesBackTheHueLightnessAndSaturationThatItWasMadeOf)
{
    for (int hue = 0; hue < 360; ++hue)
        for (int lightness = 1; lightness < 100; ++lightness)
            for (const double saturation : {0.01, 0.3, 0.99, 1.0}) {
                const Colour colour = Colour::hls(Angle::degrees(hue), lightness / 100.0, saturation);
                ASSERT_EQ(colour.h_hls().degrees(), hue);
                ASSERT_NEAR(colour.l_hls(), lightness / 100.0, kExact);
                ASSERT_NEAR(colour.s_hls(), saturation, kExact);
            }
}

TEST(Colour, GivesBackTheHueSaturationAndValueThatItWasMadeOf)
{
    for (int hue = 0; hue < 360; ++hue)
        for (int value = 1; value <= 100; ++value)
            for (const double saturation : {0.01, 0.3, 0.99, 1.0}) {
                const Colour colour = Colour::hsva(Angle::degrees(hue), saturation, value / 100.0, 1);
                ASSERT_EQ(colour.h_hsv().degrees(), hue);
                ASSERT_NEAR(colour.s_hsv(), saturation, kExact);
                ASSERT_NEAR(colour.v_hsv(), value / 100.0, kExact);
            }
}

TEST(Colour, ShowsItsComponentsHueWithoutBeingTold)
{
    // The hue is remembered, so it is compared here with one worked out from the components alone.
    for (double hue = 0; hue < 360; hue += 0.7) {
        const Colour made = Colour::hls(Angle::degrees(hue), 0.4, 0.8);
        EXPECT_NEAR(Colour::rgb(made.r(), made.g(), made.b()).h_hls().degrees(), hue, kExact);
    }
}

TEST(Colour, OfAGreyKeepsTheHueThatItWasMadeWith)
{
    for (const double lightness : {0.0, 0.4, 1.0}) {
        const Colour grey = Colour::hls(Angle::degrees(210), lightness, 0);
        EXPECT_EQ(grey.h_hls().degrees(), 210);
        EXPECT_EQ(grey.h_hsv().degrees(), 210);
        EXPECT_EQ(grey.s_hls(), 0);
        EXPECT_EQ(grey.r(), grey.g());
        EXPECT_EQ(grey.g(), grey.b());
    }
    EXPECT_EQ(Colour::hls(Angle::degrees(33), 0, 1).h_hls().degrees(), 33) << "black";
    EXPECT_EQ(Colour::hls(Angle::degrees(33), 1, 1).h_hls().degrees(), 33) << "white";
    EXPECT_EQ(Colour::hsva(Angle::degrees(75), 0, 0.5, 1).h_hsv().degrees(), 75);
    EXPECT_EQ(Colour::hsva(Angle::degrees(75), 1, 0, 1).h_hls().degrees(), 75);
}

TEST(Colour, KeepsTheHueOfAGreyWhenItIsCopiedAndGoesThroughTheModels)
{
    const Colour grey = Colour::hls(Angle::degrees(210), 0.4, 0);
    Colour copy;
    copy = grey;
    EXPECT_EQ(copy.h_hls().degrees(), 210);
    EXPECT_EQ(throughHsv(throughHls(grey)).h_hls().degrees(), 210);
    EXPECT_EQ(Colour::hls(grey.h_hls(), 0.4, 1).h_hls().degrees(), 210);
}

TEST(Colour, OfAGreyMadeFromComponentsHasHueZero)
{
    EXPECT_EQ(Colour::rgb(0.3, 0.3, 0.3).h_hls().degrees(), 0);
    EXPECT_EQ(Colour::rgba(1, 1, 1, 1).h_hsv().degrees(), 0);
    EXPECT_EQ(Colour::colorref(0x808080).h_hls().degrees(), 0);
    Colour colour = Colour::hls(Angle::degrees(210), 0.4, 0);
    colour = Colour::rgb(0.4, 0.4, 0.4);
    EXPECT_EQ(colour.h_hls().degrees(), 0);
}

TEST(Colour, TakesHuesOfAnyTurn)
{
    expectSame(Colour::hls(Angle::degrees(-120), 0.5, 1), Colour::rgb(0, 0, 1));
    expectSame(Colour::hls(Angle::degrees(-360), 0.5, 1), Colour::rgb(1, 0, 0));
    expectSame(Colour::hsva(Angle::degrees(480), 1, 1, -1), Colour::rgb(0, 1, 0));
    EXPECT_EQ(Colour::hls(Angle::degrees(-60), 0.5, 0).h_hls().degrees(), 300);
    EXPECT_NEAR(Colour::rgb(1, 0, 0.001).h_hls().degrees(), 359.94, kExact) << "never negative";
}

TEST(Colour, HasTheHueThatItShowsWhenTheSaturationIsNegative)
{
    const Colour colour = Colour::hls(Angle::degrees(60), 0.5, -1);
    expectSame(colour, Colour::rgb(0, 0, 1));
    EXPECT_NEAR(colour.h_hls().degrees(), 240, kExact);
}

TEST(Colour, MakesPureHuesExactly)
{
    const Colour yellow = Colour::hls(Angle::degrees(60), 0.5, 1);
    EXPECT_EQ(yellow.r(), 1);
    EXPECT_EQ(yellow.g(), 1);
    EXPECT_EQ(yellow.b(), 0);
    for (int lightness = 0; lightness <= 100; ++lightness) {
        const Colour colour = Colour::hls(Angle::degrees(0), lightness / 100.0, 1);
        EXPECT_GE(colour.g(), 0) << lightness;
        EXPECT_LE(colour.r(), 1) << lightness;
    }
}

TEST(Colour, KeepsComponentsOutsideTheRange)
{
    const Colour colour = Colour::rgba(1.5, -0.25, 0.5, 2);
    EXPECT_EQ(colour.r(), 1.5);
    EXPECT_EQ(colour.g(), -0.25);
    EXPECT_EQ(colour.a(), 2);
    expectSame(throughHls(colour), colour);
    expectSame(throughHsv(colour), colour);
}

TEST(Colour, ClampsIntegersOnly)
{
    EXPECT_EQ(Colour::rgb(1.5, -0.25, 0.5).colorref(), 0x8000FFul);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Colour::rgb(nan, infinite, -infinite).colorref(), 0x00FF00ul);
}

TEST(Colour, RoundsIntegersHalfAwayFromZero)
{
    struct Row
    {
        double component;
        unsigned long byte;
    };
    // 0.1 · 255 and 0.5 · 255 are exactly in the middle.
    for (const Row& row : {Row{0.1, 26},
                           {0.5, 128},
                           {0.49999 / 255, 0},
                           {0.5 / 255, 1},
                           {254.49 / 255, 254},
                           {254.5 / 255, 255}})
        EXPECT_EQ(Colour::rgb(row.component, 0, 0).colorref(), row.byte) << row.component;
}

TEST(Colour, TakesColorrefsApartAndPutsThemTogether)
{
    const Colour colour = Colour::colorref(0x00336699);
    EXPECT_DOUBLE_EQ(colour.r(), 0x99 / 255.0);
    EXPECT_DOUBLE_EQ(colour.g(), 0x66 / 255.0);
    EXPECT_DOUBLE_EQ(colour.b(), 0x33 / 255.0);
    for (unsigned long byte = 0; byte < 256; ++byte) {
        const unsigned long value = byte | (255 - byte) << 8 | (byte ^ 0x55) << 16;
        EXPECT_EQ(Colour::colorref(value).colorref(), value);
    }
    EXPECT_EQ(Colour::colorref(0xFF000000).colorref(), 0ul);
}

TEST(Colour, LeavesAlphaOutOfColorrefs)
{
    EXPECT_EQ(Colour::rgba(1, 0, 0, 0).colorref(), 0xFFul);
}

TEST(Colour, WritesItsDibBytesBlueFirst)
{
    std::array<unsigned char, 4> bytes{1, 1, 1, 77};
    Colour::rgba(1, 0.5, -3, 0.5).getDib24(bytes.data());
    EXPECT_EQ(bytes, (std::array<unsigned char, 4>{0, 128, 255, 77}));
}
