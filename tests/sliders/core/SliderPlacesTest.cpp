#include <ovoui/sliders/core/SliderPlaces.h>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace ovoui::sliders;
using ovoui::frame::Box;

TEST(SliderPlaces, TheBubbleIsAboveTheMiddleOfTheThumb)
{
    EXPECT_EQ(bubblePlace({100, 50, 111, 70}, 31, 20), (Box{90, 28, 121, 48}));
    EXPECT_EQ(bubblePlace({0, 5, 10, 25}, 40, 20), (Box{-15, -17, 25, 3})) << "beyond the screen";
}

TEST(SliderPlaces, ThePopupsThumbIsUnderThePointer)
{
    for (int thumb = 0; thumb < 200; thumb += 7) {
        const Box place = popupPlace(500, thumb, 40, 210, 30);
        EXPECT_EQ(place.left + thumb, 500);
        EXPECT_EQ(place.top, 40);
        EXPECT_EQ(place.width(), 210);
        EXPECT_EQ(place.height(), 30);
    }
}

TEST(SliderPlaces, AnAngleIsTypedInTheMiddleAndNeverBesideTheSlider)
{
    EXPECT_EQ(editPlace({0, 0, 200, 40}, 7, 8, 16), (Box{72, 10, 128, 30}));
    EXPECT_EQ(editPlace({0, 0, 30, 10}, 7, 8, 16), (Box{0, 0, 30, 10})) << "a small slider";
}

TEST(SliderPlaces, ADialIsTheLargestSquareInTheMiddle)
{
    EXPECT_EQ(dialPlace({0, 0, 60, 40}), (Box{10, 0, 50, 40}));
    EXPECT_EQ(dialPlace({0, 0, 40, 61}), (Box{0, 10, 40, 50}));
    EXPECT_EQ(dialPlace({0, 0, 40, 40}), (Box{0, 0, 40, 40}));
    EXPECT_TRUE(dialPlace({0, 0, 0, 40}).empty());
}

TEST(SliderPlaces, TheDirectionGrowsClockwiseHoweverTheWindowIsLaidOut)
{
    const Box client{0, 0, 41, 41};
    EXPECT_DOUBLE_EQ(dialDirection(client, 20, 0, false), 0);
    EXPECT_DOUBLE_EQ(dialDirection(client, 40, 20, false), 90);
    EXPECT_DOUBLE_EQ(dialDirection(client, 0, 20, false), -90);
    EXPECT_DOUBLE_EQ(dialDirection(client, 0, 20, true), 90) << "column 0 is the rightmost one";
    for (int x = 0; x < 41; ++x)
        for (int y = 0; y < 41; ++y)
            EXPECT_TRUE(x == 20 ||
                        dialDirection(client, x, y, true) == dialDirection(client, 40 - x, y, false))
                << x << ' ' << y;
}

TEST(SliderPlaces, TheArrowFitsIntoItsButtonOrIsLeftOut)
{
    for (int width = 0; width < 40; ++width)
        for (int height = 0; height < 40; ++height) {
            const auto corners = arrowCorners(width, height);
            EXPECT_EQ(corners.has_value(), width > 5 && height / 2 > 2) << width << ' ' << height;
            if (!corners)
                continue;
            for (const Corner& corner : *corners) {
                EXPECT_TRUE(corner.x >= 2 && corner.x <= width - 3) << width << ' ' << height;
                EXPECT_TRUE(corner.y >= 2 && corner.y <= height - 2) << width << ' ' << height;
            }
            EXPECT_EQ((*corners)[0].y, height / 2);
            EXPECT_EQ((*corners)[1].x, (*corners)[2].x);
            EXPECT_LT((*corners)[1].x, (*corners)[0].x) << "it points to the right";
        }
    EXPECT_EQ(arrowCorners(16, 22), (std::array<Corner, 3>{{{13, 11}, {4, 2}, {4, 20}}}));
}

TEST(SliderPlaces, ANumberIsInTheMiddleOfItsCylinderAndItsBackgroundAPixelWiderOnBothSides)
{
    EXPECT_EQ(numberPlace({2, 2, 102, 22}, 18, 13), (NumberPlace{{43, 5}, {42, 5, 62, 18}}));
    for (int width = 0; width < 40; ++width)
        for (int height = 0; height < 30; ++height)
            for (const int textWidth : {0, 6, 18})
                for (const int textHeight : {0, 13}) {
                    const Box cylinder{2, 3, 2 + width, 3 + height};
                    const auto [text, background] = numberPlace(cylinder, textWidth, textHeight);
                    const bool fits = width >= textWidth + 2 && height >= textHeight && textHeight > 0;
                    const Box around{text.x - 1, text.y, text.x + textWidth + 1, text.y + textHeight};
                    EXPECT_TRUE(!fits || background == around) << width << ' ' << height;
                    EXPECT_TRUE(background.empty() ||
                                (background.left >= 2 && background.right <= 2 + width &&
                                 background.top >= 3 && background.bottom <= 3 + height))
                        << width << ' ' << height;
                    const int beside = (cylinder.right - text.x - textWidth) - (text.x - cylinder.left);
                    EXPECT_LE(std::abs(beside), 1) << width << ' ' << height;
                    const int below = (cylinder.bottom - text.y - textHeight) - (text.y - cylinder.top);
                    EXPECT_LE(std::abs(below), 1) << width << ' ' << height;
                }
}

TEST(SliderPlaces, StripsOfACylinderStandSideBySideWhicheverWayItTurns)
{
    const Box cylinder{2, 4, 52, 24};
    for (const bool sideways : {false, true}) {
        const int begin = sideways ? cylinder.left : cylinder.top;
        const int end = sideways ? cylinder.right : cylinder.bottom;
        EXPECT_EQ(stripPlace(cylinder, sideways, begin, end), cylinder);
        for (int from = begin; from < end; ++from)
            for (int to = from; to <= end; ++to) {
                const Box strip = stripPlace(cylinder, sideways, from, to);
                EXPECT_EQ(sideways ? strip.width() : strip.height(), to - from);
                EXPECT_EQ(sideways ? strip.height() : strip.width(), sideways ? 20 : 50);
                EXPECT_EQ(sideways ? strip.left : strip.top, from);
            }
    }
}

TEST(SliderPlaces, ACylinderLeavesItsEdgeFree)
{
    EXPECT_EQ(cylinderPlace({0, 0, 100, 20}), (Box{2, 2, 98, 18}));
    EXPECT_EQ(usefulLength(96), 288);
    EXPECT_EQ(usefulLength(144), 432);
}

TEST(SliderPlaces, TickMarksGetHalfOfTheSlidersHeightAndTheThumbDoesNotGrow)
{
    for (int height = 0; height < 100; ++height) {
        const TickRoom room = roomForTicks(height);
        EXPECT_EQ(room.added, height / 2);
        EXPECT_LE(room.thumb, height);
        EXPECT_LE(5 * room.thumb, 4 * height);
        EXPECT_GT(5 * (room.thumb + 1), 4 * height);
    }
}
