// Images at another size, against the definition in floating point and at places that can be counted by hand.
#include <ovoui/images/core/StripScaling.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace ovoui::images;

namespace
{

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kBlack = 0xFF000000;

StripPixels strip(ImageSize size, int count, std::vector<std::uint32_t> pixels)
{
    StripPixels result(size, count);
    EXPECT_EQ(result.pixels.size(), pixels.size());
    result.pixels = std::move(pixels);
    return result;
}

StripPixels noise(std::mt19937& random, ImageSize size, int count)
{
    StripPixels result(size, count);
    for (std::uint32_t& pixel : result.pixels) {
        pixel = static_cast<std::uint32_t>(random());
        if (random() % 3 == 0)
            pixel &= 0x00FFFFFF; // transparent, with a colour that must not be seen
        else if (random() % 3 == 0)
            pixel |= 0xFF000000;
    }
    return result;
}

/// Shares of the pixels along one side, as the header has them.
std::vector<double> shares(int from, int to, int i)
{
    std::vector<double> result(static_cast<std::size_t>(from));
    if (to > from) {
        const double centre = (i + 0.5) * from / to - 0.5;
        for (int j = 0; j < from; ++j)
            result[static_cast<std::size_t>(j)] =
                std::max(0.0, 1 - std::abs(std::clamp(centre, 0.0, from - 1.0) - j));
        return result;
    }
    const double begin = 1.0 * i * from / to;
    const double end = 1.0 * (i + 1) * from / to;
    for (int j = 0; j < from; ++j)
        result[static_cast<std::size_t>(j)] =
            std::max(0.0, std::min(end, j + 1.0) - std::max(begin, 1.0 * j)) / (end - begin);
    return result;
}

/// Alpha, red, green, blue.
std::array<double, 4> expected(const StripPixels& from, const ImageSize& to, int image, int x, int y)
{
    std::array<double, 4> sums{};
    const std::vector<double> columns = shares(from.image.width, to.width, x);
    const std::vector<double> rows = shares(from.image.height, to.height, y);
    for (int v = 0; v < from.image.height; ++v)
        for (int u = 0; u < from.image.width; ++u) {
            const std::uint32_t pixel =
                from.pixels[static_cast<std::size_t>(v * from.width() + image * from.image.width + u)];
            const double alpha = pixel >> 24;
            const double share = rows[static_cast<std::size_t>(v)] * columns[static_cast<std::size_t>(u)];
            sums[0] += share * alpha;
            for (std::size_t channel = 1; channel < 4; ++channel)
                sums[channel] += share * alpha * ((pixel >> (24 - 8 * channel)) & 0xFF);
        }
    for (std::size_t channel = 1; channel < 4; ++channel)
        sums[channel] = sums[0] > 0 ? sums[channel] / sums[0] : 0;
    return sums;
}

} // namespace

TEST(StripScaling, HalfTheSizeIsTheMeanOfFour)
{
    const StripPixels small =
        scaledStrip(strip({4, 2}, 1, {kBlack, kWhite, kRed, kRed, kWhite, kBlack, kRed, kRed}), {2, 1});
    EXPECT_EQ(small.pixels, (std::vector<std::uint32_t>{0xFF808080, kRed}));
}

TEST(StripScaling, PartsOfPixelsCountByTheirShare)
{
    // Three become two: each of them is two thirds of the outer and one third of the middle one.
    const StripPixels small = scaledStrip(strip({3, 1}, 1, {0xFF000000, 0xFF000030, 0xFF0000C0}), {2, 1});
    EXPECT_EQ(small.pixels, (std::vector<std::uint32_t>{0xFF000010, 0xFF000090}));
}

TEST(StripScaling, TwiceTheSizeLiesBetweenTheCentres)
{
    const StripPixels large = scaledStrip(strip({2, 1}, 1, {0xFF000000, 0xFF000080}), {4, 1});
    EXPECT_EQ(large.pixels, (std::vector<std::uint32_t>{0xFF000000, 0xFF000020, 0xFF000060, 0xFF000080}));
}

TEST(StripScaling, TransparencyGivesNoColourToItsNeighbours)
{
    const StripPixels small = scaledStrip(strip({2, 1}, 1, {kRed, 0x0000FF00}), {1, 1});
    EXPECT_EQ(small.pixels.front(), 0x80FF0000u);
    const StripPixels large = scaledStrip(strip({2, 1}, 1, {kRed, 0x0000FF00}), {5, 1});
    for (const std::uint32_t pixel : large.pixels)
        EXPECT_TRUE(pixel == 0 || (pixel & 0xFFFFFF) == 0xFF0000) << std::hex << pixel;
}

TEST(StripScaling, NoImageGetsPixelsOfItsNeighbours)
{
    StripPixels two({3, 3}, 2);
    for (std::size_t i = 0; i < two.pixels.size(); ++i)
        two.pixels[i] = i % 6 < 3 ? kRed : kBlue;
    for (const int size : {1, 2, 4, 5, 7, 16}) {
        const StripPixels scaled = scaledStrip(two, {size, size});
        ASSERT_EQ(scaled.width(), 2 * size);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < 2 * size; ++x)
                EXPECT_EQ(scaled.pixels[static_cast<std::size_t>(y * 2 * size + x)], x < size ? kRed : kBlue);
    }
}

TEST(StripScaling, AnImageThatKeepsItsSizeKeepsItsBits)
{
    std::mt19937 random(1);
    const StripPixels pixels = noise(random, {16, 16}, 3);
    const StripPixels same = scaledStrip(pixels, {16, 16});
    for (std::size_t i = 0; i < pixels.pixels.size(); ++i)
        EXPECT_EQ(same.pixels[i], pixels.pixels[i] >> 24 ? pixels.pixels[i] : 0u);
}

TEST(StripScaling, FollowsTheDefinitionAtEverySize)
{
    std::mt19937 random(7);
    for (int from = 1; from <= 12; ++from)
        for (int to = 1; to <= 20; ++to) {
            const ImageSize source{from, 1 + from / 2};
            const ImageSize target{to, 1 + (2 * to) / 3};
            const StripPixels pixels = noise(random, source, 2);
            const StripPixels scaled = scaledStrip(pixels, target);
            ASSERT_EQ(scaled.image, target);
            ASSERT_EQ(scaled.count, 2);
            for (int y = 0; y < target.height; ++y)
                for (int x = 0; x < scaled.width(); ++x) {
                    const std::array<double, 4> right =
                        expected(pixels, target, x / target.width, x % target.width, y);
                    const std::uint32_t pixel =
                        scaled.pixels[static_cast<std::size_t>(y * scaled.width() + x)];
                    ASSERT_NEAR(pixel >> 24, right[0], 0.5001) << from << " to " << to;
                    for (std::size_t channel = 1; channel < 4 && pixel >> 24; ++channel)
                        ASSERT_NEAR((pixel >> (24 - 8 * channel)) & 0xFF, right[channel], 0.5001)
                            << from << " to " << to;
                }
        }
}
