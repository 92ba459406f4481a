// What is typed, and where the swatches go.
#include <ovoui/colour/core/Round.h>
#include <ovoui/colour/core/SwatchLayout.h>
#include <ovoui/colour/core/ValueText.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ovoui::colour;

TEST(ValueText, WholeNumbersAreRead)
{
    const struct
    {
        const wchar_t* text;
        int value;
    } cases[] = {
        {L"0", 0},
        {L"7", 7},
        {L"007", 7},
        {L"255", 255},
        {L"+12", 12},
        {L"  12", 12},
        {L"\t\n12", 12},
        {L"12abc", 12},
        {L"12 34", 12},
        {L"1.9", 1},
        {L"256", 255},
        {L"999", 255},
        {L"99999999999999999999", 255},
        {L"-1", 0},
        {L"-99", 0},
        {L"-0", 0},
        {L"", 0},
        {L"   ", 0},
        {L"abc", 0},
        {L"-", 0},
        {L"+", 0},
        {L"+-5", 0},
        {L"- 5", 0},
        {L"0x1F", 0},
        {L"\u0663", 0},
    };
    for (const auto& row : cases)
        EXPECT_EQ(valueFromText(row.text, 255), row.value) << row.text;
    EXPECT_EQ(valueFromText(L"360", 359), 359);
    EXPECT_EQ(valueFromText(L"101", 100), 100);
    EXPECT_EQ(valueFromText(L"5", 0), 0);
}

TEST(Round, HalvesGoAwayFromZero)
{
    EXPECT_EQ(rounded(2.5), 3);
    EXPECT_EQ(rounded(-2.5), -3);
    EXPECT_EQ(rounded(2.4999), 2);
    EXPECT_EQ(rounded(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(rounded(1e300), 1000000000);
    EXPECT_EQ(rounded(-std::numeric_limits<double>::infinity()), -1000000000);
}

namespace
{

/// Edits of 31 by 21 whose rows are 30 apart, so swatches are 30 by 20.
SwatchPlaces places(int areaWidth)
{
    const ovoui::frame::Box area{10, 200, 10 + areaWidth, 260};
    return {area, {area.right - 31, 100, area.right, 121}, {area.right - 31, 130, area.right, 151}, 1, 1};
}

} // namespace

TEST(SwatchLayout, TwoRowsOfNineFillAWideArea)
{
    const auto swatches = swatchRects(places(9 * 30 + 8 * 7));
    EXPECT_EQ(swatches[0], (ovoui::frame::Box{10, 200, 40, 220}));
    EXPECT_EQ(swatches[1], (ovoui::frame::Box{47, 200, 77, 220}));
    EXPECT_EQ(swatches[8].right, 10 + 9 * 30 + 8 * 7) << "ends where the third edit does";
    EXPECT_EQ(swatches[9], (ovoui::frame::Box{10, 230, 40, 250})) << "the edits' rows";
    EXPECT_EQ(swatches[17].bottom, 250);
}

TEST(SwatchLayout, TheGapIsThatOfTheAreaAndThePlaceThatOfTheThirdEdit)
{
    SwatchPlaces moved = places(9 * 30 + 8 * 7);
    moved.secondEdit.left += 13;
    moved.secondEdit.right += 13;
    moved.thirdEdit.left += 13;
    moved.thirdEdit.right += 13;
    const auto swatches = swatchRects(moved);
    EXPECT_EQ(swatches[8].right, moved.thirdEdit.right);
    EXPECT_EQ(swatches[1].left - swatches[0].right, 7);
    EXPECT_EQ(swatches[0].top, 200) << "the area's";
}

TEST(SwatchLayout, WhatIsLeftOfTheGapsStaysAtTheLeft)
{
    const auto swatches = swatchRects(places(9 * 30 + 8 * 7 + 5));
    EXPECT_EQ(swatches[0].left, 15);
    EXPECT_EQ(swatches[1].left - swatches[0].right, 7);
}

TEST(SwatchLayout, AGapOfOnePixelIsTheLeast)
{
    const auto atLeast = swatchRects(places(9 * 30 + 8));
    EXPECT_EQ(atLeast[0], (ovoui::frame::Box{10, 200, 40, 220}));
    EXPECT_EQ(atLeast[1].left, 41);

    const auto narrower = swatchRects(places(9 * 30 + 7));
    EXPECT_EQ(narrower[8].width(), 29) << "(277 - 8) / 9";
    EXPECT_EQ(narrower[1].left - narrower[0].right, 1);
    EXPECT_EQ(narrower[8].right, 10 + 277);

    const auto narrow = swatchRects(places(100));
    EXPECT_EQ(narrow[0].width(), 10);
    EXPECT_EQ(narrow[1].left - narrow[0].right, 1);
}

TEST(SwatchLayout, SwatchesNeverOverlap)
{
    for (int width = 40; width < 500; ++width) {
        const auto swatches = swatchRects(places(width));
        for (std::size_t i = 1; i < 9; ++i) {
            EXPECT_GT(swatches[i].left, swatches[i - 1].right) << width;
            EXPECT_EQ(swatches[i + 9].left, swatches[i].left);
        }
        EXPECT_GE(swatches[0].left, 10) << width;
    }
}
