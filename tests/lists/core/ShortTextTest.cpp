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

ExtentOf measuring(const std::vector<int>& extents)
{
    return [&extents](std::size_t count) { return extents.at(count - 1); };
}

ShortText shortened(const std::vector<int>& extents, int dots, int width, int offset)
{
    return shorten(extents.size(), measuring(extents), dots, width, offset);
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
        const ShortText expected = reference(extents, dots, width, offset);
        ASSERT_EQ(shortened(extents, dots, width, offset), expected)
            << extents.size() << " characters, width " << width << ", offset " << offset << ", dots " << dots;
        const std::size_t guess = random() % 80;
        ASSERT_EQ(shortenNear(guess, extents.size(), measuring(extents), dots, width, offset), expected)
            << "from " << guess << " on";
    }
}

TEST(ShortText, KeepsASingleCharacterWhole)
{
    const std::vector<int> extents{9};
    EXPECT_EQ(shortened(extents, 8, 5, 4), (ShortText{1, false}));
    EXPECT_EQ(shortened(extents, 8, 1, 400), (ShortText{1, false}));
}

TEST(ShortText, IsEmptyWithoutWidth)
{
    const std::vector<int> one{9};
    const std::vector<int> several{9, 18, 27};
    for (const int width : {0, -1, -1000}) {
        EXPECT_EQ(shortened(one, 8, width, 4), ShortText{});
        EXPECT_EQ(shortened(several, 8, width, 4), ShortText{});
    }
}

TEST(ShortText, IsEmptyWhenNotEvenTheFirstCharacterFits)
{
    const std::vector<int> extents{9, 18, 27};
    EXPECT_EQ(shortened(extents, 8, 12, 4), ShortText{});
    // The first character alone needs no room for the dots.
    EXPECT_EQ(shortened(extents, 8, 13, 4), (ShortText{1, true}));
    EXPECT_EQ(shortened(extents, 8, 29, 4), (ShortText{1, true}));
    EXPECT_EQ(shortened(extents, 8, 30, 4), (ShortText{2, true}));
}

TEST(ShortText, LeavesRoomForTheDotsInTheBuffer)
{
    for (const std::size_t length : {261u, 262u, 263u, 264u, 265u, 1000u, 100000u}) {
        std::vector<int> extents(length, 0); // everything would fit
        const ShortText result = shortened(extents, 0, 10, 0);
        EXPECT_EQ(result.length, std::min<std::size_t>(length - 1, 260)) << length;
        EXPECT_TRUE(result.dots);
        EXPECT_LE(result.length + kDots.size() + 1, kShortTextRoom);
    }
}

TEST(ShortText, AGoodGuessNeedsFewMeasurements)
{
    std::vector<int> extents;
    for (int i = 1; i <= 200; ++i)
        extents.push_back(5 * i);
    int measured = 0;
    const ExtentOf counting = [&](std::size_t count) { return ++measured, extents[count - 1]; };
    const ShortText right = shortened(extents, 8, 400, 4);
    EXPECT_EQ(right, (ShortText{77, true}));
    for (const std::size_t guess : {75u, 76u, 77u, 78u, 79u}) {
        measured = 0;
        EXPECT_EQ(shortenNear(guess, extents.size(), counting, 8, 400, 4), right) << guess;
        EXPECT_LE(measured, 4) << guess;
    }
}

TEST(ShortText, KnowsWhichTextsChangeTheirShape)
{
    for (const wchar_t* const plain :
         {L"", L"plain", L"\x00FC\x0142\x02FF", L"\x0394\x0416\x0531", L"\x4E00\x9FFF\x3042\x30AB",
          L"\xAC00\xFF21", L"10 \x20AC \x2026 \x2013 \x2212"})
        EXPECT_FALSE(changesShape(plain));
    for (const wchar_t* const shaped :
         {L"e\x0301", L"\x05D0", L"\x0627\x0644", L"\x0E33", L"\x0915\x094D\x0937", L"a\xD83D\xDE00",
          L"\x200Dx", L"\x202E", L"\x304B\x3099", L"\xFB01", L"\xFE8E", L"\x1100\x1161", L"\xFEFF"})
        EXPECT_TRUE(changesShape(shaped));
}
