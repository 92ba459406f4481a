#include <ovoui/tree/core/BandFrame.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;
using ovoui::frame::Box;

TEST(BandFrame, LiesBetweenBothPointsWhicheverComesFirst)
{
    for (const int x : {-3, 0, 7, 20})
        for (const int y : {-8, 0, 5, 30}) {
            const Box frame = bandFrame({7, 5}, {x, y}, {});
            EXPECT_EQ(frame, bandFrame({x, y}, {7, 5}, {}));
            EXPECT_EQ(frame.left, std::min(x, 7));
            EXPECT_EQ(frame.bottom, std::max(y, 5) + 1);
            EXPECT_FALSE(frame.empty());
        }
}

TEST(BandFrame, MovesAlongWhenTheTreeScrolls)
{
    EXPECT_EQ(bandFrame({10, 20}, {30, 60}, {0, 0}), (Box{10, 20, 31, 61}));
    EXPECT_EQ(bandFrame({10, 20}, {30, 60}, {4, 16}), (Box{6, 4, 27, 45}));
}

TEST(BandFrame, ScrollsFasterTheFartherThePointerIs)
{
    constexpr int kHeight = 100;
    constexpr int kRow = 16;
    for (int y = 0; y < kHeight; ++y)
        EXPECT_EQ(rowsToScroll(y, kHeight, kRow), 0) << y;
    EXPECT_EQ(rowsToScroll(-1, kHeight, kRow), -1);
    EXPECT_EQ(rowsToScroll(-kRow, kHeight, kRow), -2);
    EXPECT_EQ(rowsToScroll(kHeight, kHeight, kRow), 1);
    EXPECT_EQ(rowsToScroll(kHeight + kRow, kHeight, kRow), 2);
    for (int y = -200; y < 300; ++y)
        EXPECT_LE(rowsToScroll(y, kHeight, kRow), rowsToScroll(y + 1, kHeight, kRow)) << y;
    EXPECT_EQ(rowsToScroll(-5, kHeight, 0), -6); // rows without a height
}

TEST(BandFrame, ReplacesTheSelectionOrWithCtrlChangesItOver)
{
    for (const bool before : {false, true})
        for (const bool in : {false, true}) {
            EXPECT_EQ(selectedByBand(before, in, false), in);
            EXPECT_EQ(selectedByBand(before, in, true), before != in);
        }
}
