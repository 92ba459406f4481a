// Where flyouts go: docked on every side and floating, in and at the edges of a work area.
#include <ovoui/toolbar/core/FlyoutPlacement.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::toolbar;
using ovoui::frame::Box;

namespace
{

constexpr Box kArea{0, 0, 1000, 800};
constexpr int kWidth = 120;
constexpr int kHeight = 30;

Box buttonAt(int left, int top)
{
    return {left, top, left + 24, top + 22};
}

} // namespace

TEST(FlyoutPlacement, ADockedBarIsHorizontalUnlessItLiesAtTheSide)
{
    for (const int rows : {1, 2, 7}) {
        EXPECT_TRUE(isHorizontal({false, rows, false}));
        EXPECT_FALSE(isHorizontal({false, rows, true}));
    }
}

TEST(FlyoutPlacement, AFloatingBarIsHorizontalWithOneRow)
{
    for (const bool atTheSide : {false, true}) {
        EXPECT_TRUE(isHorizontal({true, 1, atTheSide}));
        EXPECT_FALSE(isHorizontal({true, 2, atTheSide}));
        EXPECT_FALSE(isHorizontal({true, 0, atTheSide}));
    }
}

TEST(FlyoutPlacement, BelowTheButtonOrBesideIt)
{
    const Box button = buttonAt(100, 50);
    EXPECT_EQ(flyoutPlace(button, kWidth, kHeight, true), (Box{100, 72, 220, 102}));
    EXPECT_EQ(flyoutPlace(button, kWidth, kHeight, false), (Box{124, 50, 244, 80}));
}

TEST(FlyoutPlacement, InAMirroredBarOnTheOtherSide)
{
    const Box button = buttonAt(500, 50);
    EXPECT_EQ(flyoutPlace(button, kWidth, kHeight, true, true), (Box{404, 72, 524, 102}));
    EXPECT_EQ(flyoutPlace(button, kWidth, kHeight, false, true), (Box{380, 50, 500, 80}));
}

TEST(FlyoutPlacement, PulledIntoTheWorkAreaWithItsSize)
{
    for (int left = -60; left <= 1040; left += 20)
        for (int top = -40; top <= 820; top += 20)
            for (const bool horizontal : {true, false}) {
                const Box wanted = flyoutPlace(buttonAt(left, top), kWidth, kHeight, horizontal);
                const Box place = ovoui::frame::movedInto(wanted, kArea);
                EXPECT_EQ(place.width(), kWidth);
                EXPECT_EQ(place.height(), kHeight);
                EXPECT_GE(place.left, kArea.left);
                EXPECT_GE(place.top, kArea.top);
                EXPECT_LE(place.right, kArea.right);
                EXPECT_LE(place.bottom, kArea.bottom);
            }
}

TEST(CornerMarks, LieInsideTheButtonAtEverySize)
{
    for (int size = 16; size < 120; ++size) {
        const Box button{10, 20, 10 + size + 8, 20 + size};
        const CornerMark mark = cornerMark(button);
        EXPECT_GE(mark.size, 3) << size;
        EXPECT_LE(mark.size, size / 4) << size;
        EXPECT_LT(mark.right, button.right) << size;
        EXPECT_LT(mark.bottom, button.bottom) << size;
        EXPECT_GT(mark.right - mark.size, button.right - size / 2) << size;
    }
    EXPECT_GT(cornerMark({0, 0, 48, 48}).size, cornerMark({0, 0, 24, 24}).size);
}

namespace
{

/// Buttons of 20 pixels, and separators of 8 where a bit is set.
std::vector<RowItem> entriesOf(int count, unsigned separators)
{
    std::vector<RowItem> entries;
    for (int i = 0; i < count; ++i) {
        RowItem entry;
        entry.separator = (separators >> i & 1) != 0;
        entry.width = entry.separator ? 8 : 20;
        entries.push_back(entry);
    }
    return entries;
}

int widthOf(const std::vector<RowItem>& entries)
{
    int width = 0;
    for (const RowItem& entry : entries)
        width += entry.width;
    return width;
}

} // namespace

TEST(FlyoutRows, AFlyoutBelowItsButtonHasOneRowWhereItFitsElseSeveral)
{
    for (int count = 1; count < 8; ++count)
        for (unsigned separators = 0; separators < (1u << count); ++separators)
            for (int room = 20; room < 170; room += 7) {
                std::vector<RowItem> entries = entriesOf(count, separators);
                const std::vector<RowItem> before = entries;
                const int width = widthOf(entries);
                breakFlyout(entries, {.horizontal = true, .width = width, .rowHeight = 22}, {room, 100});
                if (width <= room) {
                    EXPECT_EQ(entries, before) << count << ' ' << separators << ' ' << room;
                    continue;
                }
                std::vector<RowItem> split = before;
                splitRows(split, room);
                EXPECT_EQ(entries, split) << count << ' ' << separators << ' ' << room;
            }
}

TEST(FlyoutRows, AFlyoutBesideItsButtonIsAColumnAndSeveralWhereThatIsTooHigh)
{
    for (int count = 1; count < 8; ++count)
        for (unsigned separators = 0; separators < (1u << count); ++separators)
            for (int room = 22; room < 200; room += 11) {
                std::vector<RowItem> entries = entriesOf(count, separators);
                std::vector<RowItem> column = entries;
                splitRows(column, 0);
                const bool fits = sizeOfRows(column, 22).height <= room;
                breakFlyout(entries, {.horizontal = false, .width = widthOf(entries), .rowHeight = 22},
                            {1000, room});
                EXPECT_TRUE(!fits || entries == column) << count << ' ' << separators << ' ' << room;
                EXPECT_TRUE(fits || sizeOfRows(entries, 22).height < sizeOfRows(column, 22).height)
                    << count << ' ' << separators << ' ' << room;
            }
}
