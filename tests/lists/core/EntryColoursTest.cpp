#include <ovoui/lists/core/EntryColours.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

constexpr ColourEntry entry(unsigned red, unsigned green, unsigned blue, unsigned alpha)
{
    return red | green << 8 | blue << 16 | alpha << 24;
}

constexpr std::uint32_t relative(unsigned red, unsigned green, unsigned blue)
{
    return 0x02000000u | red | green << 8 | blue << 16;
}

constexpr std::uint32_t kBlack = 0x02000000;
constexpr std::uint32_t kWhite = 0x02FFFFFF;

} // namespace

TEST(EntryColours, AnOpaqueColourHasNothingBehindIt)
{
    const auto solid = relative(10, 200, 30);
    EXPECT_EQ(coloursOf(entry(10, 200, 30, 255)), (EntryColours{solid, solid, solid, kWhite}));
}

TEST(EntryColours, APlainColorrefIsFullyTransparent)
{
    EXPECT_EQ(coloursOf(entry(10, 200, 30, 0)),
              (EntryColours{relative(10, 200, 30), kBlack, kWhite, kWhite}));
}

TEST(EntryColours, BlendsWithBlackAndWhiteInWholeNumbers)
{
    const EntryColours half = coloursOf(entry(100, 1, 255, 128));
    EXPECT_EQ(half.overBlack, relative(50, 0, 128));    // 12800 / 255, 128 / 255
    EXPECT_EQ(half.overWhite, relative(178, 128, 255)); // 255 - 155 * 128 / 255, 255 - 254 * 128 / 255
}

TEST(EntryColours, BlendsEveryChannelWithEveryAlphaByItself)
{
    for (unsigned alpha = 0; alpha < 255; ++alpha)
        for (unsigned channel = 0; channel < 256; ++channel) {
            const EntryColours colours = coloursOf(entry(channel, 255 - channel, channel ^ 0x55, alpha));
            const auto black = [alpha](unsigned c) { return c * alpha / 255; };
            const auto white = [alpha](unsigned c) { return 255 - (255 - c) * alpha / 255; };
            ASSERT_EQ(colours.overBlack,
                      relative(black(channel), black(255 - channel), black(channel ^ 0x55)));
            ASSERT_EQ(colours.overWhite,
                      relative(white(channel), white(255 - channel), white(channel ^ 0x55)));
        }
}

TEST(EntryColours, TextIsWhiteOnDarkAndBlackOnBrightColours)
{
    // Blue counts once, green five times, red three times; black from 1189 on.
    EXPECT_EQ(coloursOf(entry(0, 237, 3, 255)).text, kWhite); // 1188
    EXPECT_EQ(coloursOf(entry(0, 237, 4, 255)).text, kBlack); // 1189
    EXPECT_EQ(coloursOf(entry(255, 84, 3, 0)).text, kWhite);  // 1188
    EXPECT_EQ(coloursOf(entry(255, 84, 4, 0)).text, kBlack);  // 1189
    EXPECT_EQ(coloursOf(entry(0, 0, 255, 255)).text, kWhite);
    EXPECT_EQ(coloursOf(entry(0, 255, 0, 255)).text, kBlack);
}
