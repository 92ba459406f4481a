#include <ovoui/sliders/core/SliderPlaces.h>

#include <gtest/gtest.h>

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
