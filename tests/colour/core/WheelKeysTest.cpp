#include <ovoui/colour/core/FocusMark.h>
#include <ovoui/colour/core/WheelGeometry.h>
#include <ovoui/colour/core/WheelKeys.h>
#include <ovoui/frame/core/BoxParts.h>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using namespace ovoui::colour;
using ovoui::frame::HeldKeys;

namespace
{

constexpr WheelKey kKeys[] = {WheelKey::Left,   WheelKey::Right,    WheelKey::Up,   WheelKey::Down,
                              WheelKey::PageUp, WheelKey::PageDown, WheelKey::Home, WheelKey::End};
constexpr HeldKeys kHeld[] = {{}, {.shift = true}, {.ctrl = true}, {.ctrl = true, .shift = true}};

/// What a key adds to the hue, or the place that it goes to.
int hueByHand(int hue, WheelKey key, bool shift)
{
    const int step = shift ? 10 : 1;
    switch (key) {
    case WheelKey::Right:
    case WheelKey::Up:
        return (hue + step) % 360;
    case WheelKey::Left:
    case WheelKey::Down:
        return (hue + 360 - step) % 360;
    case WheelKey::PageUp:
        return (hue + 10) % 360;
    case WheelKey::PageDown:
        return (hue + 350) % 360;
    case WheelKey::Home:
        return 0;
    case WheelKey::End:
        return 359;
    }
    return -1;
}

} // namespace

TEST(WheelKeys, EveryKeyAtEveryHue)
{
    for (int hue = 0; hue < 360; ++hue)
        for (const WheelKey key : kKeys)
            for (const HeldKeys held : kHeld)
                ASSERT_EQ(hueAfter(hue, key, held), hueByHand(hue, key, held.shift))
                    << hue << ' ' << static_cast<int>(key);
}

TEST(WheelKeys, EveryKeyAtEveryShade)
{
    const auto limited = [](int value) { return value < 0 ? 0 : value > 100 ? 100 : value; };
    for (int lightness = 0; lightness <= 100; ++lightness)
        for (int saturation = 0; saturation <= 100; ++saturation)
            for (const HeldKeys held : kHeld) {
                const Shade from{lightness, saturation};
                const int step = held.shift ? 10 : 1;
                const auto after = [&](WheelKey key) { return shadeAfter(from, key, held); };
                ASSERT_EQ(after(WheelKey::Left), (Shade{limited(lightness - step), saturation}));
                ASSERT_EQ(after(WheelKey::Right), (Shade{limited(lightness + step), saturation}));
                ASSERT_EQ(after(WheelKey::Up), (Shade{lightness, limited(saturation + step)}));
                ASSERT_EQ(after(WheelKey::Down), (Shade{lightness, limited(saturation - step)}));
                ASSERT_EQ(after(WheelKey::PageUp), (Shade{lightness, limited(saturation + 10)}));
                ASSERT_EQ(after(WheelKey::PageDown), (Shade{lightness, limited(saturation - 10)}));
                ASSERT_EQ(after(WheelKey::Home), held.ctrl ? (Shade{lightness, 0}) : (Shade{0, saturation}));
                ASSERT_EQ(after(WheelKey::End),
                          held.ctrl ? (Shade{lightness, 100}) : (Shade{100, saturation}));
            }
}

TEST(WheelKeys, CellsOfTwoFullRows)
{
    const auto after = [](int cell, WheelKey key) { return cellAfter(cell, 18, 9, key); };
    EXPECT_EQ(after(0, WheelKey::Left), 0);
    EXPECT_EQ(after(8, WheelKey::Right), 9) << "goes on in the next row";
    EXPECT_EQ(after(9, WheelKey::Left), 8);
    EXPECT_EQ(after(17, WheelKey::Right), 17);
    EXPECT_EQ(after(4, WheelKey::Down), 13);
    EXPECT_EQ(after(13, WheelKey::Down), 13);
    EXPECT_EQ(after(13, WheelKey::Up), 4);
    EXPECT_EQ(after(4, WheelKey::Up), 4);
    EXPECT_EQ(after(13, WheelKey::PageUp), 4);
    EXPECT_EQ(after(4, WheelKey::PageDown), 13);
    EXPECT_EQ(after(13, WheelKey::Home), 0);
    EXPECT_EQ(after(4, WheelKey::End), 17);
}

TEST(WheelKeys, ALastRowThatIsNotFull)
{
    const auto after = [](int cell, WheelKey key) { return cellAfter(cell, 7, 3, key); };
    EXPECT_EQ(after(4, WheelKey::Down), 4) << "nothing is below";
    EXPECT_EQ(after(3, WheelKey::Down), 6);
    EXPECT_EQ(after(1, WheelKey::PageDown), 4);
    EXPECT_EQ(after(0, WheelKey::PageDown), 6);
    EXPECT_EQ(after(6, WheelKey::PageUp), 0);
    EXPECT_EQ(after(5, WheelKey::End), 6);
}

TEST(WheelKeys, AKeyNeverLeavesTheCells)
{
    for (int count = 1; count <= 20; ++count)
        for (int columns = 1; columns <= 12; ++columns)
            for (int cell = 0; cell < count; ++cell)
                for (const WheelKey key : kKeys) {
                    const int next = cellAfter(cell, count, columns, key);
                    ASSERT_GE(next, 0);
                    ASSERT_LT(next, count) << count << ' ' << columns << ' ' << cell;
                }
}

TEST(WheelKeys, WithoutCellsNothingMoves)
{
    EXPECT_EQ(cellAfter(0, 0, 9, WheelKey::End), 0);
    EXPECT_EQ(cellAfter(3, 5, 0, WheelKey::Down), 3);
}

TEST(FocusMark, LiesAroundTheRingAndInsideOfTheWheel)
{
    for (const int size : {60, 101, 200, 400}) {
        const ovoui::frame::Box wheel{10, 20, 10 + size, 20 + size};
        const HueRing ring = ringIn(wheel);
        const auto mark = focusMark(ring);
        EXPECT_EQ(mark.front(), mark.back()) << "closed";
        for (const Vector<2> corner : mark)
            EXPECT_TRUE(contains(wheel, static_cast<int>(std::lround(corner.x())),
                                 static_cast<int>(std::lround(corner.y()))))
                << size << ' ' << corner.x() << ' ' << corner.y();
        for (int hue = 0; hue < 360; ++hue) {
            const Vector<2> point = ring.marker(Angle::degrees(hue));
            EXPECT_GT(point.x(), mark[0].x());
            EXPECT_LT(point.x(), mark[1].x());
            EXPECT_GT(point.y(), mark[0].y());
            EXPECT_LT(point.y(), mark[2].y());
        }
    }
}

TEST(FocusMark, LiesBetweenTriangleAndRing)
{
    const HueRing ring = ringIn({0, 0, 300, 300});
    const ShadeTriangle triangle = triangleIn(ring);
    const auto mark = focusMark(triangle);
    EXPECT_EQ(mark.front(), mark.back());
    for (std::size_t side = 0; side + 1 < mark.size(); ++side)
        for (int step = 1; step < 20; ++step) {
            const Vector<2> point = mark[side] + (mark[side + 1] - mark[side]) * (step / 20.0);
            EXPECT_FALSE(triangle.test(point, 1).inTriangle) << side << ' ' << step;
            EXPECT_TRUE(triangle.test(point, 3.5).inTriangle) << side << ' ' << step;
        }
}

TEST(WheelKeys, WhatEveryVirtualKeyMoves)
{
    const WheelKey known[] = {WheelKey::PageUp, WheelKey::PageDown, WheelKey::End,   WheelKey::Home,
                              WheelKey::Left,   WheelKey::Up,       WheelKey::Right, WheelKey::Down};
    for (unsigned key = 0; key <= 0xFF; ++key)
        EXPECT_EQ(wheelKeyOf(key),
                  key >= 0x21 && key <= 0x28 ? std::optional(known[key - 0x21]) : std::nullopt)
            << key;
}

TEST(WheelKeys, MirroredLeftAndRightChangePlaces)
{
    for (const WheelKey key : kKeys) {
        EXPECT_EQ(mirrored(mirrored(key)), key);
        EXPECT_EQ(mirrored(key) != key, key == WheelKey::Left || key == WheelKey::Right);
    }
}
