// The filter against its definition, bit by bit.
#include <ovoui/images/core/SharpenFilter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

using namespace ovoui::images;

namespace
{

using Pixels = std::vector<std::uint32_t>;

/// The definition, one channel of one pixel: weights of single precision, half up, limited to a byte.
std::uint32_t channelOf(std::uint32_t centre, const std::array<std::uint32_t, 8>& neighbours, int shift)
{
    const auto byte = [shift](std::uint32_t pixel) { return static_cast<int>((pixel >> shift) & 0xFF); };
    int sum = 0;
    for (const std::uint32_t neighbour : neighbours)
        sum += byte(neighbour);
    float value = static_cast<float>(byte(centre)) + 0.075f * static_cast<float>(8 * byte(centre) - sum);
    value = value < 0 ? 0 : value > 255 ? 255 : value;
    return static_cast<std::uint32_t>(value + 0.5f) << shift;
}

std::array<std::uint32_t, 8> neighboursOf(const Pixels& pixels, int width, int height, int x, int y)
{
    const auto row = [&](int at) {
        return &pixels[static_cast<std::size_t>(at) * static_cast<std::size_t>(width)];
    };
    const std::uint32_t* above = row(y > 0 ? y - 1 : 0);
    const std::uint32_t* centre = row(y);
    const std::uint32_t* below = row(y + 1 < height ? y + 1 : y);
    const int left = x > 0 ? x - 1 : 0;
    if (width == 1) // that column on either side
        return {*above, *above, *above, *centre, *centre, *below, *below, *below};
    if (x + 1 < width)
        return {above[left],   above[x],    above[x + 1], centre[left],
                centre[x + 1], below[left], below[x],     below[x + 1]};
    // The last column: what should come from the left of it and from below left comes from above left.
    return {above[left], above[x], above[x], above[left], centre[x], above[left], below[x], below[x]};
}

Pixels reference(const Pixels& pixels, int width, int height)
{
    Pixels result(pixels.size());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::size_t at =
                static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
            const auto neighbours = neighboursOf(pixels, width, height, x, y);
            for (int shift = 0; shift < 32; shift += 8)
                result[at] |= channelOf(pixels[at], neighbours, shift);
        }
    return result;
}

/// The forms that this processor has, each of which is put through every test.
std::vector<SharpenCode> codes()
{
    std::vector<SharpenCode> all{SharpenCode::OnePixel, SharpenCode::Sse2};
    if (fastestSharpenCode() == SharpenCode::Avx2)
        all.push_back(SharpenCode::Avx2);
    return all;
}

void expectReference(const Pixels& pixels, int width, int height)
{
    const Pixels expected = reference(pixels, width, height);
    for (const SharpenCode code : codes()) {
        Pixels result = pixels;
        sharpen({result.data(), width, height, width}, code);
        ASSERT_EQ(result, expected) << width << " x " << height << ", code " << static_cast<int>(code);
    }
}

/// Kinds of pictures: noise, noise of the extremes, noise of a few dark or bright values.
Pixels picture(std::mt19937& random, int width, int height, int kind)
{
    Pixels pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::uint32_t& pixel : pixels) {
        const auto noise = static_cast<std::uint32_t>(random());
        switch (kind) {
        case 0:
            pixel = noise;
            break;
        case 1:
            for (int shift = 0; shift < 32; shift += 8)
                pixel |= ((noise >> shift) & 1u ? 0xFFu : 0u) << shift;
            break;
        case 2:
            pixel = noise & 0x07070707u;
            break;
        default:
            pixel = noise | 0xF8F8F8F8u;
            break;
        }
    }
    return pixels;
}

} // namespace

TEST(SharpenFilter, IsExactForEverySizeUpTo70)
{
    std::mt19937 random(70);
    for (int width = 1; width <= 70; ++width)
        for (int height = 1; height <= 70; ++height)
            expectReference(picture(random, width, height, (width + height) % 4), width, height);
}

TEST(SharpenFilter, IsExactForEveryCentreAndSumOfNeighbours)
{
    // Five columns to a sum, the middle one of which has all eight neighbours: four channels and two code
    // paths at once would hide nothing, so each channel takes another centre.
    for (int sum = 0; sum <= 8 * 255; ++sum) {
        constexpr int kCentres = 64; // times four channels
        constexpr int kWidth = 3 * kCentres;
        Pixels pixels(3 * kWidth);
        int left = sum;
        const auto share = [&] {
            const int part = std::min(left, 255);
            left -= part;
            return static_cast<std::uint32_t>(part) * 0x01010101u;
        };
        std::array<std::uint32_t, 8> neighbours{};
        for (std::uint32_t& neighbour : neighbours)
            neighbour = share();
        for (int i = 0; i < kCentres; ++i) {
            const std::size_t x = static_cast<std::size_t>(3 * i);
            const auto first = static_cast<std::uint32_t>(4 * i);
            const std::uint32_t centre = first | (first + 1) << 8 | (first + 2) << 16 | (first + 3) << 24;
            const std::uint32_t rows[3][3] = {{neighbours[0], neighbours[1], neighbours[2]},
                                              {neighbours[3], centre, neighbours[4]},
                                              {neighbours[5], neighbours[6], neighbours[7]}};
            for (std::size_t y = 0; y < 3; ++y)
                for (std::size_t k = 0; k < 3; ++k)
                    pixels[y * kWidth + x + k] = rows[y][k];
        }
        expectReference(pixels, kWidth, 3);
    }
}

TEST(SharpenFilter, LeavesWhatIsBesideTheBlockAlone)
{
    std::mt19937 random(5);
    constexpr std::uint32_t kBeside = 0xDEADBEEF;
    for (const int width : {1, 2, 3, 4, 5, 9, 16, 17, 33})
        for (const int extra : {1, 3, 30}) {
            constexpr int kHeight = 7;
            const Pixels block = picture(random, width, kHeight, 0);
            const Pixels expected = reference(block, width, kHeight);
            const int stride = width + extra;
            for (const SharpenCode code : codes()) {
                Pixels wide(static_cast<std::size_t>(stride * kHeight), kBeside);
                const auto at = [&](int x, int y) -> std::uint32_t& {
                    return wide[static_cast<std::size_t>(y * stride + x)];
                };
                for (int y = 0; y < kHeight; ++y)
                    for (int x = 0; x < width; ++x)
                        at(x, y) = block[static_cast<std::size_t>(y * width + x)];
                sharpen({wide.data(), width, kHeight, stride}, code);
                for (int y = 0; y < kHeight; ++y)
                    for (int x = 0; x < stride; ++x)
                        ASSERT_EQ(at(x, y),
                                  x < width ? expected[static_cast<std::size_t>(y * width + x)] : kBeside)
                            << x << ", " << y << " of width " << width;
            }
        }
}

TEST(SharpenFilter, ChangesAllFourChannels)
{
    Pixels pixels(25, 0x40404040);
    pixels[12] = 0x80808080;
    sharpen({pixels.data(), 5, 5, 5});
    EXPECT_EQ(pixels[12], 0xA6A6A6A6u); // 128 + 0.075 * 8 * 64 = 166.4
    EXPECT_EQ(pixels[11], 0x3B3B3B3Bu); // 64 - 0.075 * 64 = 59.2
    EXPECT_EQ(pixels[0], 0x40404040u);
}

TEST(SharpenFilter, TakesTheLastColumnsLeftNeighboursFromTheRowAbove)
{
    // Only the pixel left of the last one differs: in the last column it counts in its own row not at all,
    // and in the row below three times.
    Pixels pixels(4 * 4, 0);
    pixels[1 * 4 + 2] = 0x64646464;                     // 100
    pixels[1 * 4 + 3] = pixels[2 * 4 + 3] = 0xC8C8C8C8; // 200
    Pixels result = pixels;
    sharpen({result.data(), 4, 4, 4});
    // Row 1: above left 0 three times, above 0 twice, itself once, below 200 twice: 200 + 0.075 (1600 - 600)
    // = 275.
    EXPECT_EQ(result[1 * 4 + 3], 0xFFFFFFFFu);
    // Row 2: above left 100 three times, above 200 twice, itself once, below 0: 200 + 0.075 (1600 - 900) =
    // 252.5.
    EXPECT_EQ(result[2 * 4 + 3], 0xFDFDFDFDu);
}

TEST(SharpenFilter, AnEmptyBlockIsNothing)
{
    std::uint32_t pixel = 0x12345678;
    sharpen({&pixel, 0, 5, 1});
    sharpen({&pixel, 5, 0, 1});
    EXPECT_EQ(pixel, 0x12345678u);
}

TEST(SharpenFilter, LargeBlocksAreExactToo)
{
    std::mt19937 random(11);
    expectReference(picture(random, 1001, 37, 0), 1001, 37);
    expectReference(picture(random, 257, 300, 1), 257, 300);
}
