#include <ovoui/colour/core/CellLayout.h>
#include <ovoui/frame/core/BoxParts.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

namespace
{

CellLayout grid(int count, int columns, const ovoui::frame::Box& area)
{
    return {.area = area, .count = count, .columns = columns};
}

bool inside(const ovoui::frame::Box& inner, const ovoui::frame::Box& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

} // namespace

TEST(CellLayout, NineCellsFillTheirRow)
{
    const CellLayout cells = grid(9, 9, {10, 20, 274, 34});
    EXPECT_EQ(cells.cell(0), (ovoui::frame::Box{10, 20, 34, 34}));
    EXPECT_EQ(cells.cell(1), (ovoui::frame::Box{40, 20, 64, 34}));
    EXPECT_EQ(cells.cell(8), (ovoui::frame::Box{250, 20, 274, 34}));
}

TEST(CellLayout, ARowThatIsNotFullKeepsItsColumns)
{
    const CellLayout full = grid(9, 9, {0, 0, 264, 14});
    const CellLayout two = grid(2, 9, {0, 0, 264, 14});
    EXPECT_EQ(two.cell(1), full.cell(1));
}

TEST(CellLayout, CellsAreFoundWhereTheyAreAndNowhereElse)
{
    for (const int columns : {1, 3, 9}) {
        const ovoui::frame::Box area{5, 7, 205, 107};
        const CellLayout cells = grid(9, columns, area);
        int found = 0;
        for (int y = 0; y < 120; ++y)
            for (int x = 0; x < 220; ++x) {
                const int at = cells.at(x, y);
                ASSERT_GE(at, -1);
                ASSERT_LT(at, 9);
                found += at >= 0;
                ASSERT_TRUE(at < 0 || contains(cells.cell(at), x, y));
            }
        int pixels = 0;
        for (int i = 0; i < 9; ++i) {
            EXPECT_TRUE(inside(cells.cell(i), area)) << i;
            pixels += cells.cell(i).width() * cells.cell(i).height();
        }
        EXPECT_EQ(found, pixels) << "none of them overlap";
    }
}

TEST(CellLayout, WithoutCellsThereIsNothing)
{
    EXPECT_EQ(grid(0, 9, {0, 0, 100, 20}).at(5, 5), -1);
}

// What a colour button drops

TEST(DropLayout, CellsAreSquareAndTheLineIsBelowThem)
{
    const DropLayout drop(40, 8, true, {.cell = 20, .margin = 6, .line = 22});
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(drop.place(i).width(), 20) << i;
        EXPECT_EQ(drop.place(i).height(), 20) << i;
        EXPECT_TRUE(inside(drop.place(i), {6, 6, drop.width - 6, drop.line.top - 6}));
        EXPECT_EQ(drop.at(drop.place(i).left, drop.place(i).top), i);
    }
    EXPECT_EQ(drop.last(), 40);
    EXPECT_EQ(drop.place(40), drop.line);
    EXPECT_EQ(drop.line.height(), 22);
    EXPECT_EQ(drop.line.bottom, drop.height - 6);
    EXPECT_EQ(drop.at(drop.line.left, drop.line.top), 40);
    EXPECT_EQ(drop.at(1, 1), -1);
}

TEST(DropLayout, IsWideEnoughForItsLine)
{
    for (const int columns : {1, 2, 8}) {
        const DropLayout::Lengths lengths{.cell = 20, .margin = 6, .line = 22, .lineWidth = 100};
        const DropLayout drop(16, columns, true, lengths);
        const DropLayout plain(16, columns, false, lengths);
        EXPECT_EQ(drop.line.width(), columns == 8 ? plain.cells.area.width() : 100) << columns;
        EXPECT_EQ(drop.width, drop.line.width() + 12) << columns;
        EXPECT_EQ(drop.cells.area, plain.cells.area) << "the colours stay where they are";
        EXPECT_EQ(plain.width, plain.cells.area.width() + 12) << "nothing needs more";
    }
    const DropLayout none(0, 1, true, {.cell = 20, .margin = 6, .line = 22, .lineWidth = 100});
    EXPECT_EQ(none.line.width(), 100);
}

TEST(DropLayout, WithoutADialogThereIsNoLine)
{
    const DropLayout drop(40, 8, false, {});
    EXPECT_EQ(drop.last(), 39);
    EXPECT_EQ(drop.after(39, WheelKey::Down), 39);
    EXPECT_EQ(drop.after(0, WheelKey::End), 39);
    EXPECT_EQ(drop.at(drop.width / 2, drop.height - 1), -1);
}

TEST(DropLayout, KeysGoToTheLineAndBack)
{
    const DropLayout drop(16, 8, true, {});
    EXPECT_EQ(drop.after(-1, WheelKey::Down), 0) << "nothing is marked at first";
    EXPECT_EQ(drop.after(-1, WheelKey::Up), 16);
    EXPECT_EQ(drop.after(3, WheelKey::Down), 11);
    EXPECT_EQ(drop.after(11, WheelKey::Down), 16);
    EXPECT_EQ(drop.after(15, WheelKey::Right), 16);
    EXPECT_EQ(drop.after(16, WheelKey::Up), 15);
    EXPECT_EQ(drop.after(16, WheelKey::Left), 15);
    EXPECT_EQ(drop.after(16, WheelKey::Down), 16);
    EXPECT_EQ(drop.after(16, WheelKey::Home), 0);
    EXPECT_EQ(drop.after(5, WheelKey::End), 16);
    EXPECT_EQ(drop.after(0, WheelKey::Up), 0);
}

TEST(DropLayout, KeysReachNothingThatIsNotThere)
{
    for (int count = 0; count <= 20; ++count)
        for (const bool line : {false, true})
            for (int columns = 1; columns <= 9; ++columns) {
                const DropLayout drop(count, columns, line, {});
                for (int from = -1; from <= drop.last(); ++from)
                    for (int key = 0; key < 8 && drop.last() >= 0; ++key) {
                        const int next = drop.after(from, static_cast<WheelKey>(key));
                        ASSERT_GE(next, 0) << count << ' ' << columns << ' ' << from << ' ' << key;
                        ASSERT_LE(next, drop.last());
                    }
            }
}

// Where it opens

TEST(DropPlace, BelowTheButtonWhereThereIsRoom)
{
    EXPECT_EQ(dropPlace({100, 100, 140, 120}, 200, 150, {0, 0, 1000, 700}),
              (ovoui::frame::Box{100, 120, 300, 270}));
}

TEST(DropPlace, AboveItAtTheLowerEdgeOfTheScreen)
{
    EXPECT_EQ(dropPlace({100, 600, 140, 620}, 200, 150, {0, 0, 1000, 700}),
              (ovoui::frame::Box{100, 450, 300, 600}));
}

TEST(DropPlace, WithoutRoomOnEitherSideWhereThereIsMore)
{
    EXPECT_EQ(dropPlace({100, 60, 140, 80}, 200, 150, {0, 0, 1000, 200}).top, 50) << "moved into the area";
    EXPECT_EQ(dropPlace({100, 130, 140, 150}, 200, 150, {0, 0, 1000, 200}).top, 0);
}

TEST(DropPlace, NeverBesideTheWorkArea)
{
    const ovoui::frame::Box area{-500, -300, 500, 300};
    for (int x = -600; x <= 600; x += 37)
        for (int y = -400; y <= 400; y += 23) {
            const ovoui::frame::Box place = dropPlace({x, y, x + 40, y + 20}, 200, 150, area);
            ASSERT_TRUE(inside(place, area)) << x << ' ' << y;
            ASSERT_EQ(place.width(), 200);
            ASSERT_EQ(place.height(), 150);
        }
}
