// The sharpening filter against its plain form, and against copying the same bytes.
#include "PlainSharpen.h"

#include <catch2/catch.hpp>

#include <cstring>
#include <random>
#include <vector>

using namespace ovoui::images;

namespace
{

std::vector<std::uint32_t> noise(int size)
{
    std::mt19937 random(1);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (std::uint32_t& pixel : pixels)
        pixel = static_cast<std::uint32_t>(random());
    return pixels;
}

} // namespace

TEST_CASE("sharpening a block of 32 by 32 pixels")
{
    std::vector<std::uint32_t> pixels = noise(32);
    const PixelBlock block{pixels.data(), 32, 32, 32};
    BENCHMARK("the plain form")
    {
        sharpenPlainly(block);
        return pixels[5];
    };
    BENCHMARK("sharpen [at most 0.1]")
    {
        sharpen(block);
        return pixels[5];
    };
    BENCHMARK("sharpen with what every processor has")
    {
        sharpen(block, SharpenCode::Sse2);
        return pixels[5];
    };
}

TEST_CASE("sharpening a block of 1024 by 1024 pixels")
{
    std::vector<std::uint32_t> pixels = noise(1024);
    const PixelBlock block{pixels.data(), 1024, 1024, 1024};
    BENCHMARK("the plain form")
    {
        sharpenPlainly(block);
        return pixels[5];
    };
    BENCHMARK("sharpen [at most 0.1]")
    {
        sharpen(block);
        return pixels[5];
    };
    BENCHMARK("sharpen with what every processor has")
    {
        sharpen(block, SharpenCode::Sse2);
        return pixels[5];
    };
}

TEST_CASE("sharpening beside copying 1024 by 1024 pixels")
{
    std::vector<std::uint32_t> pixels = noise(1024);
    std::vector<std::uint32_t> copy(pixels.size());
    const PixelBlock block{pixels.data(), 1024, 1024, 1024};
    BENCHMARK("copying")
    {
        std::memcpy(copy.data(), pixels.data(), pixels.size() * sizeof pixels[0]);
        return copy[copy.size() / 2];
    };
    BENCHMARK("sharpen [at most 4]")
    {
        sharpen(block);
        return pixels[5];
    };
}
