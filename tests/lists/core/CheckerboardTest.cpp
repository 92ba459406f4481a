// The squares of a swatch, pixel by pixel against their definition.
#include <ovoui/lists/core/Checkerboard.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace ovoui::lists;

namespace
{

constexpr int kSide = 52;
constexpr int kMargin = 2; // beside the area, where nothing may be drawn

using Canvas = std::vector<std::string>;

Canvas blank()
{
    return Canvas(kSide, std::string(kSide, ' '));
}

void fill(Canvas& canvas, const Box& box, char with)
{
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x)
            canvas.at(static_cast<std::size_t>(y + kMargin)).at(static_cast<std::size_t>(x + kMargin)) = with;
}

Canvas drawn(const Box& area)
{
    Canvas canvas = blank();
    const Checkerboard squares(area);
    fill(canvas, squares.plain(), '#');
    fill(canvas, squares.board(), 'A');
    squares.eachSecond([&](const Box& square) {
        EXPECT_FALSE(square.empty());
        fill(canvas, square, 'B');
    });
    return canvas;
}

/// The definition: each square of both colours in its turn, cut to the area.
Canvas reference(const Box& area)
{
    Canvas canvas = blank();
    const int w = area.width();
    const int h = area.height();
    fill(canvas, {area.left, area.top, area.left + w / 2, area.bottom}, '#');
    const int cell = std::min((h + 1) / 4, (w + 1) / 3);
    if (cell == 0)
        return canvas;
    for (int y = area.top / cell * cell; y < (area.bottom + cell - 1) / cell * cell; y += cell)
        for (int c = 0, x = w / 2; x < w; ++c, x += cell)
            fill(canvas,
                 {area.left + x, std::max(y, area.top), std::min(area.left + x + cell, area.right),
                  std::min(y + cell, area.bottom)},
                 (c + y / cell) % 2 == 0 ? 'A' : 'B');
    return canvas;
}

} // namespace

TEST(Checkerboard, IsExactForEverySizeUpTo40AtEveryOffsetUpTo7)
{
    for (int width = 0; width <= 40; ++width)
        for (int height = 0; height <= 40; ++height)
            for (int left = 0; left <= 7; ++left)
                for (int top = 0; top <= 7; ++top) {
                    const Box area{left, top, left + width, top + height};
                    ASSERT_EQ(drawn(area), reference(area))
                        << width << " x " << height << " at " << left << ", " << top;
                }
}

TEST(Checkerboard, AboveTheDrawingSurfaceBeginsWithAWholeRow)
{
    const auto firstRow = [](int top) { return Checkerboard({0, top, 30, top + 15}).board().top; };
    ASSERT_EQ(Checkerboard({0, -5, 30, 10}).cell(), 4);
    EXPECT_EQ(firstRow(-5), -4);
    EXPECT_EQ(firstRow(-4), -4);
    EXPECT_EQ(firstRow(-3), 0);
    EXPECT_EQ(firstRow(1), 1);
    Checkerboard({0, -5, 30, 10}).eachSecond([](const Box& square) { EXPECT_GE(square.top, -4); });
}

TEST(Checkerboard, HasNoSquaresInAnAreaTooSmallForThem)
{
    for (const Box& area :
         {Box{0, 0, 40, 2}, Box{0, 0, 1, 40}, Box{3, 3, 3, 3}, Box{5, 5, 1, 1} /* inside out */}) {
        const Checkerboard squares(area);
        EXPECT_EQ(squares.cell(), 0);
        EXPECT_TRUE(squares.board().empty());
        squares.eachSecond([](const Box&) { ADD_FAILURE() << "a square"; });
    }
    EXPECT_EQ(Checkerboard({0, 0, 2, 3}).cell(), 1);
}

TEST(Checkerboard, ContinuesThePatternOfTheRowAbove)
{
    // Two areas on top of each other show what one of both heights shows with the same cells.
    const Box upper{0, 3, 30, 18};
    const Box lower{0, 18, 30, 33};
    Canvas both = drawn(upper);
    const Canvas below = drawn(lower);
    for (std::size_t y = 18 + kMargin; y < both.size(); ++y)
        both[y] = below[y];
    const int cell = Checkerboard(upper).cell();
    for (int y = 3; y < 33; ++y)
        for (int x = 15; x < 30; ++x)
            EXPECT_EQ(both[static_cast<std::size_t>(y + kMargin)][static_cast<std::size_t>(x + kMargin)],
                      ((x - 15) / cell + y / cell) % 2 == 0 ? 'A' : 'B')
                << x << ", " << y;
}
