#include <ovoui/colour/core/TypedColour.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

TEST(TypedColour, LeavingAFieldCountsOnceThePickerIsThere)
{
    for (const bool initialised : {false, true})
        for (const bool onlyTyped : {false, true})
            for (const bool typed : {false, true})
                EXPECT_EQ(countsWhenLeft(initialised, onlyTyped, typed),
                          initialised && !(onlyTyped && !typed));
}

TEST(TypedColour, HuesOfGreysCountInTheModesThatHaveAHue)
{
    EXPECT_FALSE(evenHueCounts(ColPickerModeRGB));
    EXPECT_TRUE(evenHueCounts(ColPickerModeHLS));
    EXPECT_TRUE(evenHueCounts(ColPickerModeHSV));
    const Colour grey = Colour::hlsa(Angle::degrees(10), 0.5, 0, 1);
    const Colour turned = Colour::hlsa(Angle::degrees(90), 0.5, 0, 1);
    EXPECT_FALSE(changesColour(grey, turned, true, ColPickerModeRGB));
    EXPECT_TRUE(changesColour(grey, turned, true, ColPickerModeHLS));
}

TEST(TypedColour, WithoutAnEditForItAlphaIsNoChange)
{
    const Colour before = Colour::rgb(1, 0.5, 0); // without alpha
    const Colour opaque = Colour::rgba(1, 0.5, 0, 1);
    const Colour half = Colour::rgba(1, 0.5, 0, 0.5);
    EXPECT_FALSE(changesColour(before, opaque, false, ColPickerModeRGB));
    EXPECT_TRUE(changesColour(opaque, half, true, ColPickerModeRGB));
    EXPECT_FALSE(changesColour(half, half, true, ColPickerModeRGB));
    EXPECT_TRUE(changesColour(before, Colour::rgba(1, 0.6, 0, 1), false, ColPickerModeRGB));
}

TEST(TypedColour, AlphaGoesFromOneColourToAnother)
{
    const Colour taken = withAlphaOf(Colour::rgb(0, 1, 0), Colour::rgba(1, 0, 0, 0.25));
    EXPECT_EQ(taken.colorref(), Colour::rgb(0, 1, 0).colorref());
    EXPECT_EQ(taken.a(), 0.25);
    EXPECT_LT(withAlphaOf(taken, Colour::rgb(1, 0, 0)).a(), 0) << "none from one that has none";
}

TEST(TypedColour, OverAGroundAlphaMixesTheTwo)
{
    for (const double ground : {0.0, 1.0}) {
        EXPECT_EQ(overGround(Colour::rgba(1, 0.5, 0, 1), ground).colorref(),
                  Colour::rgb(1, 0.5, 0).colorref());
        EXPECT_EQ(overGround(Colour::rgba(1, 0.5, 0, 0), ground).colorref(),
                  Colour::rgb(ground, ground, ground).colorref());
    }
    EXPECT_EQ(overGround(Colour::rgba(1, 0, 0, 0.5), 1).colorref(), Colour::rgb(1, 0.5, 0.5).colorref());
    EXPECT_EQ(overGround(Colour::rgba(1, 0, 0, 0.5), 0).colorref(), Colour::rgb(0.5, 0, 0).colorref());
}
