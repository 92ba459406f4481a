// Cutting texts, against the rule carried out step by step.
#include <ovoui/lists/core/ShortText.h>

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace ovoui::lists;

namespace
{

/// The rule with every step, for texts that do not fit.
ShortText reference(const std::vector<int>& extents, int dots, int width, int offset)
{
    const std::size_t length = extents.size();
    if (width < 1)
        return {0, false};
    std::size_t kept = length;
    for (std::size_t k = length - 1; k >= 1; --k) {
        kept = k;
        if (extents[k - 1] + offset + dots <= width || k - 1 < 1)
            break;
    }
    if (kept == 1 && length > 1 && extents[0] + offset > width)
        return {0, false};
    return {kept, kept < length};
}

std::vector<int> randomExtents(std::mt19937& random, int length)
{
    std::vector<int> extents;
    int sum = 0;
    for (int i = 0; i < length; ++i)
        extents.push_back(sum += static_cast<int>(random() % 12)); // 0 as combining marks have
    return extents;
}

} // namespace

TEST(ShortText, FollowsTheRuleForRandomTexts)
{
    std::mt19937 random(511);
    for (int round = 0; round < 20000; ++round) {
        const auto extents = randomExtents(random, 1 + static_cast<int>(random() % 60));
        const int dots = static_cast<int>(random() % 20);
        const int offset = static_cast<int>(random() % 14);
        const int width = static_cast<int>(random() % 400) - 4;
        if (fits(extents.back(), width, offset))
            continue;
        ASSERT_EQ(shorten(extents, dots, width, offset), reference(extents, dots, width, offset))
            << extents.size() << " characters, width " << width << ", offset " << offset << ", dots " << dots;
    }
}

TEST(ShortText, KeepsASingleCharacterWhole)
{
    const std::vector<int> extents{9};
    EXPECT_EQ(shorten(extents, 8, 5, 4), (ShortText{1, false}));
    EXPECT_EQ(shorten(extents, 8, 1, 400), (ShortText{1, false}));
}

TEST(ShortText, IsEmptyWithoutWidth)
{
    const std::vector<int> one{9};
    const std::vector<int> several{9, 18, 27};
    for (const int width : {0, -1, -1000}) {
        EXPECT_EQ(shorten(one, 8, width, 4), ShortText{});
        EXPECT_EQ(shorten(several, 8, width, 4), ShortText{});
    }
}

TEST(ShortText, IsEmptyWhenNotEvenTheFirstCharacterFits)
{
    const std::vector<int> extents{9, 18, 27};
    EXPECT_EQ(shorten(extents, 8, 12, 4), ShortText{});
    // The first character alone needs no room for the dots.
    EXPECT_EQ(shorten(extents, 8, 13, 4), (ShortText{1, true}));
    EXPECT_EQ(shorten(extents, 8, 29, 4), (ShortText{1, true}));
    EXPECT_EQ(shorten(extents, 8, 30, 4), (ShortText{2, true}));
}

TEST(ShortText, LeavesRoomForTheDotsInTheBuffer)
{
    for (const std::size_t length : {261u, 262u, 263u, 264u, 265u, 1000u, 100000u}) {
        std::vector<int> extents(length, 0); // everything would fit
        const ShortText result = shorten(extents, 0, 10, 0);
        EXPECT_EQ(result.length, std::min<std::size_t>(length - 1, 260)) << length;
        EXPECT_TRUE(result.dots);
        EXPECT_LE(result.length + kDots.size() + 1, kShortTextRoom);
    }
}
