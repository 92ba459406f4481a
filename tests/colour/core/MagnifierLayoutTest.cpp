#include <ovoui/colour/core/MagnifierLayout.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;
using ovoui::frame::Box;

namespace
{

/// Calls `check` with the layout and the size of an enlarged pixel, for every resolution and font.
template <class Check>
void eachLayout(const Check& check)
{
    for (int dotsPerInch = 72; dotsPerInch <= 480; ++dotsPerInch)
        for (int fontHeight = 6; fontHeight < 60; ++fontHeight) {
            SCOPED_TRACE(testing::Message() << dotsPerInch << " dots per inch, font of " << fontHeight);
            const int zoom = (8 * dotsPerInch + 48) / 96;
            check(layOutMagnifier(dotsPerInch, fontHeight), zoom, fontHeight);
            if (testing::Test::HasFatalFailure())
                return;
        }
}

} // namespace

TEST(MagnifierLayout, AtTheUsualResolution)
{
    const MagnifierLayout layout = layOutMagnifier(96, 13);
    EXPECT_EQ(layout.window, (Box{0, 0, 122, 141}));
    EXPECT_EQ(layout.pixels, (Box{1, 1, 121, 121}));
    EXPECT_EQ(layout.mark, (Box{55, 55, 67, 67}));
    EXPECT_EQ(layout.swatch, (Box{3, 124, 22, 138}));
    EXPECT_EQ(layout.code, (Box{25, 121, 119, 141}));
}

TEST(MagnifierLayout, EveryPixelIsEnlargedByAWholeNumber)
{
    eachLayout([](const MagnifierLayout& layout, int zoom, int) {
        ASSERT_EQ(layout.pixels.width(), kMagnified * zoom);
        ASSERT_EQ(layout.pixels.height(), kMagnified * zoom);
    });
}

TEST(MagnifierLayout, TheMarkStandsAroundThePixelOfThePoint)
{
    eachLayout([](const MagnifierLayout& layout, int zoom, int) {
        const int column = 200 - firstMagnified(200); // that of a point at 200
        ASSERT_EQ(layout.mark.left + 2, layout.pixels.left + column * zoom);
        ASSERT_EQ(layout.mark.right - 2, layout.pixels.left + (column + 1) * zoom);
        ASSERT_EQ(layout.mark.top, layout.mark.left);
        ASSERT_EQ(layout.mark.bottom, layout.mark.right);
    });
}

TEST(MagnifierLayout, ThePointHasAsManyPixelsOnEachSide)
{
    for (int point = -100; point <= 100; ++point) {
        const int last = firstMagnified(point) + kMagnified - 1;
        EXPECT_EQ(point - firstMagnified(point), last - point) << point;
    }
}

TEST(MagnifierLayout, TheColourIsBelowThePixelsWithItsCodeBesideIt)
{
    eachLayout([](const MagnifierLayout& layout, int, int fontHeight) {
        const Box& window = layout.window;
        ASSERT_EQ(window.width(), layout.pixels.width() + 2) << "an edge of a pixel on each side";
        ASSERT_GT(layout.swatch.top, layout.pixels.bottom);
        ASSERT_LT(layout.swatch.bottom, window.bottom);
        ASSERT_GT(layout.code.left, layout.swatch.right);
        ASSERT_LT(layout.code.right, window.right);
        ASSERT_EQ(layout.code.top, layout.pixels.bottom);
        ASSERT_EQ(layout.code.bottom, window.bottom);
        ASSERT_GE(layout.code.height(), fontHeight + 6);
    });
}
