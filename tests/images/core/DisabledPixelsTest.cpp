// What disabled images look like.
#include <ovoui/images/core/DisabledPixels.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::images;

namespace
{

constexpr std::uint32_t kText = 0x00A000; // a green on black
constexpr std::uint32_t kGround = 0x000000;

std::vector<std::uint32_t> disabled(std::vector<std::uint32_t> pixels)
{
    disable({pixels.data(), static_cast<int>(pixels.size()), 1, static_cast<int>(pixels.size())});
    return pixels;
}

std::vector<std::uint32_t> contrasting(std::vector<std::uint32_t> pixels,
                                       const ContrastColours& colours = {kText, kGround})
{
    disable({pixels.data(), static_cast<int>(pixels.size()), 1, static_cast<int>(pixels.size())}, colours);
    return pixels;
}

using Pixels = std::vector<std::uint32_t>;

} // namespace

TEST(DisabledPixels, LightnessWeighsGreenMost)
{
    EXPECT_EQ(lightness(0xFF0000), 54u);  // 54.2
    EXPECT_EQ(lightness(0x00FF00), 182u); // 182.4
    EXPECT_EQ(lightness(0x0000FF), 18u);  // 18.4
    EXPECT_EQ(lightness(0x000000), 0u);
    EXPECT_EQ(lightness(0xFFFFFF), 255u);
    EXPECT_EQ(lightness(0x80808080), 128u) << "alpha does not count";
    EXPECT_EQ(lightness(0x000007), 1u) << "0.5054 is rounded up";
    for (std::uint32_t grey = 0; grey < 256; ++grey)
        EXPECT_EQ(lightness(grey * 0x010101), grey);
}

TEST(DisabledPixels, AreGreyAtHalfTheirAlpha)
{
    EXPECT_EQ(disabled({0xFFFF0000, 0x8000FF00, 0x01FFFFFF, 0x000000FF, 0xFF808080}),
              (Pixels{0x80363636, 0x40B6B6B6, 0x01FFFFFF, 0x00121212, 0x80808080}));
}

TEST(DisabledPixels, BesideTheBlockNothingChanges)
{
    Pixels pixels(4 * 3, 0xFFFF0000);
    disable({pixels.data() + 1, 2, 3, 4});
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const bool inside = i % 4 == 1 || i % 4 == 2;
        EXPECT_EQ(pixels[i], inside ? 0x80363636u : 0xFFFF0000u) << i;
    }
    disable({pixels.data() + 1, 2, 3, 4}, {kText, kGround});
    EXPECT_EQ(pixels[0], 0xFFFF0000u);
    EXPECT_EQ(pixels[1], 0x80000000u | kText);
}

TEST(DisabledPixels, UnderHighContrastTheDarkestIsTheTextsColour)
{
    // From black to white: the text's colour, then three fifths of the way to the ground.
    EXPECT_EQ(contrasting({0xFF000000, 0xFFFFFFFF, 0xFF808080}),
              (Pixels{0xFF00A000, 0xFF004000, 0xFF007000}));
    EXPECT_EQ(contrasting({0xFF000000, 0xFFFFFFFF}, {0x6D6D6D, 0xFFFFFF}), (Pixels{0xFF6D6D6D, 0xFFC5C5C5}));
}

TEST(DisabledPixels, UnderHighContrastTheRangeIsThatOfTheImage)
{
    EXPECT_EQ(contrasting({0xFF404040, 0xFF606060}), (Pixels{0xFF00A000, 0xFF004000}));
    EXPECT_EQ(contrasting({0xFFFFFFFF, 0x00000000, 0xFFFFFFFF}), (Pixels{0xFF00A000, 0x0000A000, 0xFF00A000}))
        << "one colour, however light, is the text's";
}

TEST(DisabledPixels, UnderHighContrastFaintPixelsDoNotSetTheRange)
{
    EXPECT_EQ(contrasting({0xFF404040, 0x7F000000, 0x7FFFFFFF, 0xFF606060}),
              (Pixels{0xFF00A000, 0x7F00A000, 0x7F004000, 0xFF004000}))
        << "what is darker or lighter than the range counts as its end";
    EXPECT_EQ(contrasting({0x10203040, 0x7FFFFFFF}), (Pixels{0x1000A000, 0x7F00A000})) << "faint as a whole";
}
