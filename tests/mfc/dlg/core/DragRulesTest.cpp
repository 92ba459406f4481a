// A bar that is dragged: its outline, and the side that it docks to.
#include "mfc/src/frame/core/dragrules.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace afxdetail;

namespace afxdetail
{

static std::ostream& operator<<(std::ostream& out, const Area& area)
{
    return out << area.left << "," << area.top << " " << area.right << "," << area.bottom;
}

} // namespace afxdetail

namespace
{

// A frame at 100,100 with 600 by 400 pixels; a row of bars is docked at the top.
const DockStrip kStrips[] = {
    {Side::Top, {100, 100, 700, 126}},
    {Side::Bottom, {100, 500, 700, 500}},
    {Side::Left, {100, 126, 100, 500}},
    {Side::Right, {700, 126, 700, 500}},
};
constexpr std::size_t Top = 0, Bottom = 1, Left = 2, Right = 3;

/// A toolbar that lies at the top, taken hold of by its gripper.
DraggedBar bar()
{
    DraggedBar bar;
    bar.from = {300, 100, 420, 126};
    bar.grab = {304, 113};
    bar.horizontal = {120, 26};
    bar.vertical = {26, 120};
    bar.floating = {130, 50};
    bar.floatingOther = {36, 144};
    return bar;
}

std::optional<std::size_t> stripAt(Place pointer, DragKeys keys = {})
{
    return outlineAt(bar(), kStrips, pointer, keys).strip;
}

} // namespace

TEST(DragRules, TheOutlineIsHeldWhereTheBarIsHeld)
{
    EXPECT_EQ(heldAt({10, 20, 110, 50}, {15, 28}, {100, 30}, {215, 128}), (Area{210, 120, 310, 150}));
    EXPECT_EQ(heldAt({10, 20, 110, 50}, {95, 28}, {30, 100}, {200, 200}), (Area{185, 192, 215, 292}))
        << "near its right end it is held there";
    EXPECT_EQ(heldAt({10, 20, 110, 50}, {55, 28}, {20, 30}, {200, 200}), (Area{181, 192, 201, 222}))
        << "a shape that is too narrow for that is held at its edge";
}

TEST(DragRules, DocksToTheSideItReaches)
{
    EXPECT_EQ(stripAt({304, 113}), Top);
    EXPECT_EQ(stripAt({304, 138}), Top) << "its upper edge still lies in the row";
    EXPECT_EQ(stripAt({304, 139}), std::nullopt);
    EXPECT_EQ(stripAt({304, 88}), Top);
    EXPECT_EQ(stripAt({304, 86}), std::nullopt) << "above the frame";
    EXPECT_EQ(stripAt({400, 490}), Bottom);
    EXPECT_EQ(stripAt({400, 480}), std::nullopt);
    EXPECT_EQ(stripAt({104, 300}), Left);
    EXPECT_EQ(stripAt({105, 300}), std::nullopt);
    EXPECT_EQ(stripAt({80, 300}), Left) << "it may reach over the edge";
    EXPECT_EQ(stripAt({77, 300}), std::nullopt);
    EXPECT_EQ(stripAt({690, 300}), Right);
    EXPECT_EQ(stripAt({400, 300}), std::nullopt);
}

TEST(DragRules, LiesAsItWouldAtThatSide)
{
    EXPECT_EQ(outlineAt(bar(), kStrips, {350, 110}, {}).area, (Area{346, 97, 466, 123}));
    EXPECT_EQ(outlineAt(bar(), kStrips, {102, 300}, {}).area, (Area{98, 287, 124, 407}));
    EXPECT_EQ(outlineAt(bar(), kStrips, {400, 300}, {}).area, (Area{396, 287, 526, 337})) << "with a caption";
}

TEST(DragRules, TheNearerOfTwoSidesCounts)
{
    EXPECT_EQ(stripAt({101, 130}), Left) << "near the corner";
    EXPECT_EQ(stripAt({101, 125}), Top);
    EXPECT_EQ(stripAt({101, 495}), Left);
}

TEST(DragRules, ControlKeepsItFloating)
{
    EXPECT_EQ(stripAt({304, 113}, {.control = true}), std::nullopt);
    const DragTarget outline = outlineAt(bar(), kStrips, {304, 113}, {.control = true});
    EXPECT_EQ(outline.area, (Area{300, 100, 430, 150}));
    EXPECT_FALSE(outline.turned);
}

TEST(DragRules, ShiftTurnsIt)
{
    const DragTarget outline = outlineAt(bar(), kStrips, {400, 300}, {.shift = true});
    EXPECT_EQ(outline.area, (Area{396, 287, 432, 431}));
    EXPECT_TRUE(outline.turned);
    EXPECT_FALSE(outlineAt(bar(), kStrips, {304, 113}, {.shift = true}).turned)
        << "docked, it lies as the side does";
}

TEST(DragRules, WithoutSidesItFloats)
{
    EXPECT_EQ(outlineAt(bar(), {}, {304, 113}, {}).strip, std::nullopt);
}

TEST(DragRules, APressThatHardlyMovesIsNoDrag)
{
    EXPECT_FALSE(isDrag({10, 10}, {13, 7}, {4, 4}));
    EXPECT_TRUE(isDrag({10, 10}, {14, 10}, {4, 4}));
    EXPECT_TRUE(isDrag({10, 10}, {10, 6}, {4, 4}));
}
