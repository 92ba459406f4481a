#include <ovoui/colour/core/ButtonFaceLayout.h>
#include <ovoui/frame/core/BoxParts.h>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace ovoui::colour;
using ovoui::frame::Box;
using ovoui::frame::Point;

namespace
{

/// Calls `check` for buttons of every size that a host may give one, at every resolution.
template <class Check>
void eachButton(const Check& check)
{
    for (const int dotsPerInch : {96, 120, 144, 192, 288})
        for (int width = 0; width < 130; ++width)
            for (int height = 0; height < 70; ++height) {
                SCOPED_TRACE(testing::Message()
                             << width << " by " << height << " at " << dotsPerInch << " dots per inch");
                check(Box{7, 3, 7 + width, 3 + height}, dotsPerInch);
                if (testing::Test::HasFatalFailure())
                    return;
            }
}

bool inside(const Box& inner, const Box& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

} // namespace

TEST(ButtonFaceLayout, AUsualButton)
{
    const ButtonFaceLayout layout = layOutButtonFace({0, 0, 60, 24}, 96);
    EXPECT_EQ(layout.swatch, (Box{4, 4, 44, 20}));
    EXPECT_EQ(layout.light, (Box{24, 4, 44, 12}));
    EXPECT_EQ(layout.dark, (Box{24, 12, 44, 20}));
    EXPECT_EQ(layout.arrow, (std::array<Point, 3>{{{48, 10}, {56, 10}, {52, 14}}}));
    EXPECT_EQ(layout.focus, (Box{2, 2, 58, 22}));
    EXPECT_TRUE(layout.showsSwatch());
}

TEST(ButtonFaceLayout, LengthsGrowWithTheResolution)
{
    const ButtonFaceLayout layout = layOutButtonFace({0, 0, 90, 36}, 144);
    EXPECT_EQ(layout.swatch, (Box{6, 6, 66, 30}));
    EXPECT_EQ(layout.arrow, (std::array<Point, 3>{{{72, 15}, {84, 15}, {78, 21}}}));
    EXPECT_EQ(layout.focus, (Box{4, 4, 86, 32})) << "two pixels around the swatch";
}

TEST(ButtonFaceLayout, AShownSwatchIsInsideBesideTheArrow)
{
    int shown = 0;
    eachButton([&shown](const Box& button, int dotsPerInch) {
        const ButtonFaceLayout layout = layOutButtonFace(button, dotsPerInch);
        const int margin = 4 * dotsPerInch / 96;
        const bool hasRoom =
            button.width() - 2 * margin - 2 * margin - margin > 2 && button.height() - 2 * margin > 2;
        ASSERT_EQ(layout.showsSwatch(), hasRoom);
        if (!hasRoom)
            return;
        ++shown;
        ASSERT_TRUE(inside(layout.swatch, button));
        ASSERT_TRUE(inside(layout.swatch, layout.focus));
        for (const Point& corner : layout.arrow)
            ASSERT_GT(corner.x, layout.swatch.right);
    });
    EXPECT_GT(shown, 10000);
}

TEST(ButtonFaceLayout, TheRightHalfOfTheSwatchIsLightAboveAndDarkBelow)
{
    eachButton([](const Box& button, int dotsPerInch) {
        const ButtonFaceLayout layout = layOutButtonFace(button, dotsPerInch);
        if (!layout.showsSwatch())
            return;
        ASSERT_TRUE(inside(layout.light, layout.swatch));
        ASSERT_TRUE(inside(layout.dark, layout.swatch));
        ASSERT_EQ(layout.light.bottom, layout.dark.top);
        ASSERT_EQ(layout.light.top, layout.swatch.top);
        ASSERT_EQ(layout.dark.bottom, layout.swatch.bottom);
        ASSERT_EQ(layout.light.left, layout.dark.left);
        const int left = layout.light.left - layout.swatch.left;
        ASSERT_LE(std::abs(layout.light.width() - left), 1) << "the opaque half is as wide";
    });
}

TEST(ButtonFaceLayout, TheArrowPointsDownAndStaysInTheButtonWhileThereIsRoomForItsMargins)
{
    eachButton([](const Box& button, int dotsPerInch) {
        const auto& [left, right, tip] = layOutButtonFace(button, dotsPerInch).arrow;
        const int margin = 4 * dotsPerInch / 96;
        if (button.width() < 2 * margin || button.height() < 4 * margin)
            return;
        ASSERT_EQ(left.y, right.y);
        ASSERT_EQ(tip.x - left.x, right.x - tip.x);
        ASSERT_EQ(tip.y - left.y, tip.x - left.x) << "half as high as wide";
        ASSERT_LE(tip.x - left.x, margin);
        ASSERT_TRUE(left.x >= button.left && right.x <= button.right);
        ASSERT_TRUE(left.y >= button.top && tip.y <= button.bottom);
        const int above = left.y - button.top;
        ASSERT_LE(std::abs(above - (button.bottom - tip.y)), 2) << "in the middle";
    });
}
