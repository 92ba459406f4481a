// What a frame gets when it asks a bar for its layout: every combination of what it can ask for.
#include <ovoui/toolbar/core/LayoutRules.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::toolbar;

namespace
{

constexpr Around kAround{6, 10};

std::vector<LayoutAsked> everyQuestion()
{
    std::vector<LayoutAsked> all;
    for (int bits = 0; bits < 128; ++bits)
        for (const int length : {kNoLength, 0, 200}) {
            const auto has = [bits](int bit) { return (bits & 1 << bit) != 0; };
            all.push_back({has(0), has(1), has(2), has(3), has(4), has(5), has(6), length});
        }
    return all;
}

std::vector<BarSettings> everyBar()
{
    std::vector<BarSettings> all;
    for (const bool fixed : {false, true})
        for (const bool dynamic : {false, true})
            for (const int height : {0, 40})
                all.push_back({fixed, dynamic, 150, height});
    return all;
}

} // namespace

TEST(LayoutRules, TheRowsOfAFixedBarStay)
{
    for (const LayoutAsked& asked : everyQuestion())
        for (const BarSettings& bar : everyBar())
            EXPECT_EQ(rowsFor(asked, bar, kAround).limit == RowLimit::AsTheyAre, bar.fixed);
}

TEST(LayoutRules, OnlyADynamicBarGoesByItsLastWidthOrALength)
{
    for (const LayoutAsked& asked : everyQuestion())
        for (const BarSettings& bar : everyBar()) {
            if (bar.fixed)
                continue;
            RowsAsked expected{RowLimit::Width, asked.horizontal ? kLong : 0}; // one row, or one column
            if (bar.dynamic && asked.length != kNoLength)
                expected = asked.byHeight ? RowsAsked{RowLimit::Height, asked.length - 10}
                                          : RowsAsked{RowLimit::Width, asked.length - 6};
            if (bar.dynamic && asked.asLast)
                expected = {RowLimit::Width, 150};
            EXPECT_EQ(rowsFor(asked, bar, kAround), expected);
        }
}

TEST(LayoutRules, ABarTakesALayoutOnForCertainOrWithoutALength)
{
    for (const LayoutAsked& asked : everyQuestion())
        EXPECT_EQ(takesLayout(asked), asked.forCertain || asked.length == kNoLength);
}

TEST(LayoutRules, TheSizeHasBordersTheHostsHeightAndTheEdgeOfAStretchedBar)
{
    for (const LayoutAsked& asked : everyQuestion())
        for (const BarSettings& bar : everyBar()) {
            const RowsSize size = barSize({100, 22}, asked, bar, kAround);
            const int height = asked.horizontal && bar.height == 40 ? 40 : 32;
            EXPECT_EQ(size.width, asked.stretched && asked.horizontal ? 32767 : 106);
            EXPECT_EQ(size.height, asked.stretched && !asked.horizontal ? 32767 : height);
        }
}

TEST(LayoutRules, TheUsualSizeIsThatOfABarThatNeitherFloatsNorDocks)
{
    for (const LayoutAsked& asked : everyQuestion()) {
        const bool docked = asked.atTop || asked.atSide;
        const bool other = asked.asLast || asked.forCertain || asked.length != kNoLength;
        EXPECT_EQ(asksForUsualSize(asked), docked && !other);
    }
}

TEST(LayoutRules, AControlThatAVerticalBarPutsAwayComesBack)
{
    for (const bool visible : {false, true})
        for (const bool putAway : {false, true}) {
            EXPECT_EQ(controlChange(false, visible, putAway),
                      visible ? ControlChange::PutAway : ControlChange::Hide);
            EXPECT_EQ(controlChange(true, visible, putAway),
                      putAway ? ControlChange::PlaceShow : ControlChange::Place);
        }
}
