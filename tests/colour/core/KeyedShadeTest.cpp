#include <ovoui/colour/core/KeyedShade.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

namespace
{

Colour hls(double hue, double lightness, double saturation)
{
    return Colour::hlsa(Angle::degrees(hue), lightness, saturation, 0.5);
}

} // namespace

TEST(KeyedShade, HueAndShadeAreWholeNumbers)
{
    EXPECT_EQ(hueOf(hls(120, 0.5, 1)), 120);
    EXPECT_EQ(hueOf(hls(359.8, 0.5, 1)), 0) << "a full turn is none";
    EXPECT_EQ(shadeOf(hls(120, 0.25, 0.75)), (Shade{25, 75}));
    for (int hue = 0; hue < 360; ++hue) {
        const Colour turned = withHue(hls(10, 0.5, 1), hue);
        EXPECT_EQ(hueOf(turned), hue);
        EXPECT_EQ(shadeOf(turned), (Shade{50, 100}));
        EXPECT_EQ(turned.a(), 0.5);
    }
}

TEST(KeyedShade, TheSaturationComesBackFromBlackAndWhite)
{
    for (const WheelKey away : {WheelKey::Home, WheelKey::End}) {
        KeyedShade keyed;
        Colour colour = hls(40, 0.5, 0.8);
        colour = keyed.moved(colour, away, {});
        EXPECT_EQ(keyed.of(colour), (Shade{away == WheelKey::Home ? 0 : 100, 80}));
        colour = keyed.moved(colour, away == WheelKey::Home ? WheelKey::Right : WheelKey::Left, {});
        EXPECT_EQ(keyed.of(colour).saturation, 80);
        EXPECT_EQ(colour.a(), 0.5);
    }
}

TEST(KeyedShade, AColourFromElsewhereHasItsOwnShade)
{
    KeyedShade keyed;
    const Colour black = keyed.moved(hls(40, 0.5, 0.8), WheelKey::Home, {});
    const Colour other = hls(200, 0.3, 0.6);
    EXPECT_EQ(keyed.of(other), (Shade{30, 60}));
    EXPECT_EQ(shadeOf(keyed.moved(other, WheelKey::Right, {})), (Shade{31, 60}));
    EXPECT_EQ(keyed.of(black), shadeOf(black)) << "no longer where the keys are";
}

TEST(KeyedShade, EveryKeyLeadsWhereTheRuleOfShadesSays)
{
    for (const WheelKey key : {WheelKey::Left, WheelKey::Right, WheelKey::Up, WheelKey::Down,
                               WheelKey::PageUp, WheelKey::PageDown, WheelKey::Home, WheelKey::End})
        for (const bool shift : {false, true})
            for (const bool ctrl : {false, true}) {
                KeyedShade keyed;
                const ovoui::frame::HeldKeys held{.ctrl = ctrl, .shift = shift};
                const Colour colour = keyed.moved(hls(40, 0.5, 0.5), key, held);
                EXPECT_EQ(keyed.of(colour), shadeAfter({50, 50}, key, held));
            }
}

TEST(ToldColour, OnlyWhatIsNewIsTold)
{
    ToldColour told;
    using News = ToldColour::News;
    told.begin(hls(40, 0.5, 0.8));
    EXPECT_EQ(told.news(hls(40, 0.5, 0.8)), (News{false, false}));
    EXPECT_EQ(told.news(hls(41, 0.5, 0.8)), (News{true, false}));
    EXPECT_EQ(told.news(hls(41, 0.6, 0.8)), (News{false, true}));
    EXPECT_EQ(told.news(hls(41, 0.6, 0.7)), (News{false, true}));
    EXPECT_EQ(told.news(hls(80, 0.5, 0.8)), (News{true, true}));
    EXPECT_EQ(told.news(hls(80, 0.501, 0.8)), (News{false, false})) << "less than is told";
}
