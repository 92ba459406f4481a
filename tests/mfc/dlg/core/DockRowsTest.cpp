// Rows of docked bars: who lies where, who pushes whom, where a dropped bar goes.
#include "mfc/src/frame/core/dockrows.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

using namespace afxdetail;

namespace
{

char s_names[8];
void* const A = &s_names[0];
void* const B = &s_names[1];
void* const C = &s_names[2];
void* const D = &s_names[3];

DockedBar bar(void* name, int start, int length, int depth = 20)
{
    return {name, start, length, depth, true};
}

DockedBar hidden(void* name, int start, int length, int depth = 20)
{
    return {name, start, length, depth, false};
}

std::vector<std::vector<void*>> names(const DockRows& rows)
{
    std::vector<std::vector<void*>> found;
    for (const DockRow& row : rows.rows) {
        found.emplace_back();
        for (const DockedBar& one : row)
            found.back().push_back(one.bar);
    }
    return found;
}

using Names = std::vector<std::vector<void*>>;
using Spans = std::vector<Span>;

} // namespace

TEST(DockRow, BarsLieWhereTheyWantTo)
{
    EXPECT_EQ(placeRow({bar(A, 10, 50), bar(B, 100, 60)}, 500), (Spans{{10, 50}, {100, 60}}));
}

TEST(DockRow, ABarPushesTheOneBehindIt)
{
    EXPECT_EQ(placeRow({bar(A, 10, 50), bar(B, 30, 60), bar(C, 40, 20)}, 500),
              (Spans{{10, 50}, {60, 60}, {120, 20}}));
}

TEST(DockRow, TheEndPushesBack)
{
    EXPECT_EQ(placeRow({bar(A, 300, 100), bar(B, 480, 60)}, 500), (Spans{{300, 100}, {440, 60}}));
    EXPECT_EQ(placeRow({bar(A, 420, 100), bar(B, 480, 60)}, 500), (Spans{{340, 100}, {440, 60}}));
    EXPECT_EQ(placeRow({bar(A, -40, 100)}, 500), (Spans{{0, 100}}));
}

TEST(DockRow, ABarThatWantsToBeginAtTheEndOfAllNumbersPushesTheOthersAllTheSame)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(placeRow({bar(A, kMost, 50), bar(B, 100, 50)}, 300), (Spans{{200, 50}, {250, 50}}));
    EXPECT_EQ(placeRow({bar(A, 0, 50), bar(B, kMost, 50), bar(C, kMost, 50)}, 300),
              (Spans{{0, 50}, {200, 50}, {250, 50}}));
}

TEST(DockRow, WhereThereIsNoRoomOrABarIsHiddenItKeepsItsBeginning)
{
    EXPECT_EQ(placeRow({bar(A, 40, 30), bar(B, 90, 30)}, 0), (Spans{{40, 0}, {90, 0}}));
    EXPECT_EQ(placeRow({hidden(A, 400, 30), bar(B, 90, 30)}, 200), (Spans{{400, 0}, {90, 30}}));
}

TEST(DockRow, WhatIsTooLongIsCutNotLost)
{
    EXPECT_EQ(placeRow({bar(A, 0, 900)}, 500), (Spans{{0, 500}}));
    EXPECT_EQ(placeRow({bar(A, 0, 300), bar(B, 0, 300)}, 500), (Spans{{0, 300}, {300, 200}}))
        << "the last one";
    EXPECT_EQ(placeRow({bar(A, 0, 490), bar(B, 0, 300), bar(C, 0, 300)}, 500),
              (Spans{{0, 468}, {468, 16}, {484, 16}}))
        << "a bit is left of each";
    EXPECT_EQ(placeRow({bar(A, 0, 30), bar(B, 0, 30)}, 20), (Spans{{0, 16}, {16, 4}}));
    EXPECT_EQ(placeRow({bar(A, 0, 30), bar(B, 0, 30)}, 0), (Spans{{0, 0}, {0, 0}}));
    EXPECT_EQ(placeRow({bar(A, 0, 30)}, -5), (Spans{{0, 0}}));
}

TEST(DockRow, HiddenBarsTakeNoRoom)
{
    EXPECT_EQ(placeRow({bar(A, 0, 50), hidden(B, 20, 200), bar(C, 60, 40)}, 500),
              (Spans{{0, 50}, {20, 0}, {60, 40}}));
    EXPECT_EQ(depthOf({bar(A, 0, 50, 20), hidden(B, 0, 50, 90)}), 20);
    EXPECT_EQ(depthOf({hidden(B, 0, 50, 90)}), 0);
}

TEST(DockRow, NeverOverlapsNorLeavesItsRoom)
{
    for (int room = 0; room <= 200; room += 7)
        for (int first = -20; first <= 220; first += 24)
            for (int second = -20; second <= 220; second += 24)
                for (int length = 1; length <= 121; length += 40) {
                    const auto spans =
                        placeRow({bar(A, first, length), hidden(B, 5, 50), bar(C, second, 60)}, room);
                    ASSERT_GE(spans[0].start, 0);
                    ASSERT_LE(spans[0].end(), std::max(spans[2].start, spans[0].start + spans[0].length));
                    ASSERT_TRUE(spans[2].length == 0 || spans[0].end() <= spans[2].start);
                    ASSERT_LE(spans[2].end(), std::max(room, spans[2].start));
                    ASSERT_LE(spans[0].length + spans[2].length, room);
                    if (length + 60 <= room) {
                        ASSERT_EQ(spans[0].length, length);
                        ASSERT_EQ(spans[2].length, 60);
                    }
                }
}

TEST(DockRows, LieBelowEachOther)
{
    const DockRows rows{
        {{bar(A, 0, 50, 20), bar(B, 60, 50, 30)}, {hidden(C, 0, 50, 40)}, {bar(D, 5, 70, 10)}}};
    EXPECT_EQ(depthOf(rows), 40);
    EXPECT_EQ(lengthOf(rows), 100);
    EXPECT_EQ(
        placeRows(rows, 500),
        (std::vector<PlacedBar>{{A, {0, 50}, {0, 20}}, {B, {60, 50}, {0, 30}}, {D, {5, 70}, {30, 10}}}));
}

TEST(DockRows, ABarIsDroppedIntoTheRowUnderItsMiddle)
{
    const DockRows rows{{{bar(A, 0, 100), bar(B, 200, 100)}, {bar(C, 0, 100)}}};
    EXPECT_EQ(findPlace(rows, 500, 50, 10), (DockPlace{0, false, 1}))
        << "behind the one that begins before it";
    EXPECT_EQ(findPlace(rows, 500, 201, 10), (DockPlace{0, false, 2}));
    EXPECT_EQ(findPlace(rows, 500, -5, 10), (DockPlace{0, false, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 10), (DockPlace{0, false, 0}))
        << "as far left as another: in front of it";
    EXPECT_EQ(findPlace(rows, 500, 1, 30), (DockPlace{1, false, 1}));
}

TEST(DockRows, ABarIsDroppedBetweenRowsIntoARowOfItsOwn)
{
    const DockRows rows{{{bar(A, 0, 100)}, {hidden(B, 0, 100)}, {bar(C, 0, 100)}}};
    EXPECT_EQ(findPlace(rows, 500, 0, -10), (DockPlace{0, true, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 4), (DockPlace{0, true, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 5), (DockPlace{0, false, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 14), (DockPlace{0, false, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 15), (DockPlace{2, true, 0}))
        << "in front of the next row that can be seen";
    EXPECT_EQ(findPlace(rows, 500, 0, 24), (DockPlace{2, true, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 30), (DockPlace{2, false, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 35), (DockPlace{3, true, 0}));
    EXPECT_EQ(findPlace(rows, 500, 0, 900), (DockPlace{3, true, 0}));
    EXPECT_EQ(findPlace({}, 500, 0, 0), (DockPlace{0, true, 0}));
}

TEST(DockRows, TheOrderIsThatOfWhatIsSeenNotOfWhatWasWanted)
{
    const DockRows rows{{{bar(A, 0, 100), bar(B, 10, 100)}}}; // B lies at 100
    EXPECT_EQ(findPlace(rows, 500, 50, 10), (DockPlace{0, false, 1}));
    EXPECT_EQ(findPlace(rows, 500, 101, 10), (DockPlace{0, false, 2}));
}

TEST(DockRows, InsertingMakesRowsAndOrder)
{
    DockRows rows;
    insertBar(rows, {0, true, 0}, bar(A, 0, 10));
    insertBar(rows, {0, false, 1}, bar(B, 0, 10));
    insertBar(rows, {0, true, 0}, bar(C, 0, 10));
    EXPECT_EQ(names(rows), (Names{{C}, {A, B}}));
    insertBar(rows, lastPlace(rows), bar(D, 0, 10));
    EXPECT_EQ(names(rows), (Names{{C}, {A, B}, {D}}));
    insertBar(rows, {77, false, 99}, bar(&s_names[4], 0, 10));
    EXPECT_EQ(rows.rows.size(), 4u) << "behind all: a row of its own";
}

TEST(DockRows, ABarThatMovesLeavesItsOldPlace)
{
    const DockRows start{{{bar(A, 0, 10), bar(B, 0, 10), bar(C, 0, 10)}, {bar(D, 0, 10)}}};
    struct Case
    {
        void* moved;
        DockPlace to;
        Names result;
    };
    const Case cases[] = {
        {A, {0, false, 2}, {{B, A, C}, {D}}},  {A, {0, false, 3}, {{B, C, A}, {D}}},
        {C, {0, false, 0}, {{C, A, B}, {D}}},  {A, {0, true, 0}, {{A}, {B, C}, {D}}},
        {A, {1, true, 0}, {{B, C}, {A}, {D}}}, {A, {1, false, 1}, {{B, C}, {D, A}}},
        {D, {0, false, 1}, {{A, D, B, C}}},    {D, {1, false, 0}, {{A, B, C}, {D}}},
        {D, {1, false, 1}, {{A, B, C}, {D}}},  {D, {1, true, 0}, {{A, B, C}, {D}}},
        {D, {2, true, 0}, {{A, B, C}, {D}}},   {D, {0, true, 0}, {{D}, {A, B, C}}},
    };
    for (const Case& one : cases) {
        DockRows rows = start;
        insertBar(rows, one.to, bar(one.moved, 3, 10));
        EXPECT_EQ(names(rows), one.result) << one.to.row << one.to.newRow << one.to.position;
        const DockPlace place = placeOf(rows, one.moved);
        EXPECT_EQ(rows.rows[place.row][place.position].start, 3);
    }
}

TEST(DockRows, ARowWithoutBarsGoes)
{
    DockRows rows{{{bar(A, 0, 10)}, {bar(B, 0, 10), bar(C, 0, 10)}}};
    EXPECT_EQ(placeOf(rows, A), (DockPlace{0, true, 0}));
    EXPECT_EQ(placeOf(rows, C), (DockPlace{1, false, 1}));
    EXPECT_EQ(placeOf(rows, D).row, 2u);
    removeBar(rows, A);
    EXPECT_EQ(names(rows), (Names{{B, C}}));
    removeBar(rows, A);
    removeBar(rows, B);
    removeBar(rows, C);
    EXPECT_TRUE(rows.rows.empty());
}

TEST(DockRows, ASettledRowStaysWhenOneOfItGoes)
{
    DockRows rows{
        {{bar(A, 0, 50), bar(B, 10, 50), hidden(C, 7, 50), bar(D, 20, 50)}, {bar(&s_names[4], 30, 50)}}};
    settleRow(rows, B, 500);
    removeBar(rows, B);
    EXPECT_EQ(placeRow(rows.rows[0], 500), (Spans{{0, 50}, {7, 0}, {100, 50}}));
    EXPECT_EQ(rows.rows[1][0].start, 30);
    settleRow(rows, B, 500); // it is not there
    EXPECT_EQ(rows.rows[0].size(), 3u);
}
