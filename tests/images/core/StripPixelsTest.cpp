// Strips in memory.
#include <ovoui/images/core/StripPixels.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::images;

namespace
{

std::uint32_t pixelAt(int x, int y)
{
    return 0x80000000u + static_cast<std::uint32_t>(y) * 0x1000 + static_cast<std::uint32_t>(x);
}

/// Every pixel says where it is.
std::vector<std::uint32_t> pictureOf(int width, int height)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(pixelAt(x, y));
    return pixels;
}

} // namespace

TEST(StripPixels, AreTakenFromTheUpperLeftCornerOfAPicture)
{
    for (const ImageSize image : {ImageSize{1, 1}, ImageSize{3, 3}, ImageSize{2, 4}})
        for (int images = 1; images < 4; ++images)
            for (int beside = 0; beside < 3; ++beside)
                for (int below = 0; below < 3; ++below) {
                    const int width = image.width * images + beside;
                    const StripPixels strip =
                        upperLeftOf(pictureOf(width, image.height + below), width, image, images);
                    EXPECT_EQ(strip.image, image);
                    EXPECT_EQ(strip.count, images);
                    EXPECT_EQ(strip.pixels, pictureOf(image.width * images, image.height));
                }
}

TEST(StripPixels, ABlockIsOneImageToBeChangedInPlace)
{
    constexpr ImageSize kImage{2, 3};
    constexpr int kImages = 3;
    StripPixels strip = upperLeftOf(pictureOf(6, 3), 6, kImage, kImages);
    for (int index = 0; index < kImages; ++index) {
        const PixelBlock block = strip.block(index);
        EXPECT_EQ(block.width, kImage.width);
        EXPECT_EQ(block.height, kImage.height);
        for (int y = 0; y < block.height; ++y)
            for (int x = 0; x < block.width; ++x)
                EXPECT_EQ(block.pixels[y * block.stride + x], pixelAt(index * kImage.width + x, y));
    }
    *strip.block(1).pixels = 7;
    EXPECT_EQ(strip.pixels[2], 7u);
}
