#include <ovoui/colour/core/WheelRaster.h>
#include <ovoui/frame/core/BoxParts.h>

#include <ovocor/Colour.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

using namespace ovoui::colour;

namespace
{

using Pixels = std::vector<std::uint32_t>;

std::uint32_t pixelOf(const Colour& colour)
{
    const unsigned long value = colour.colorref();
    return 0xFF000000u | static_cast<std::uint32_t>((value & 0xFF) << 16 | (value & 0xFF00) | value >> 16);
}

std::size_t count(const ovoui::frame::Box& wheel)
{
    return static_cast<std::size_t>(wheel.width()) * static_cast<std::size_t>(wheel.height());
}

/// What the tests of ring and triangle say of each pixel.
Pixels plain(const ovoui::frame::Box& wheel, Angle hue)
{
    const HueRing ring = ringIn(wheel);
    const ShadeTriangle triangle = triangleIn(ring);
    Pixels pixels;
    pixels.reserve(count(wheel));
    for (int y = wheel.top; y < wheel.bottom; ++y)
        for (int x = wheel.left; x < wheel.right; ++x) {
            std::uint32_t pixel = 0;
            const HueRing::Hit onRing = ring.test({x, y}, 0);
            if (onRing.onRing)
                pixel = pixelOf(Colour::hls(onRing.hue, 0.5, 1.0));
            if (contains(triangle.rect(), x, y)) {
                const ShadeTriangle::Hit hit = triangle.test({x, y}, 0);
                if (hit.inTriangle)
                    pixel = pixelOf(Colour::hls(hue, hit.lightness, hit.saturation));
            }
            pixels.push_back(pixel);
        }
    return pixels;
}

Pixels drawn(const ovoui::frame::Box& wheel, Angle hue)
{
    Pixels pixels(count(wheel), 0);
    const WheelRaster raster(wheel);
    raster.drawRing(pixels.data());
    raster.drawTriangle(pixels.data(), hue);
    return pixels;
}

void expectSame(const ovoui::frame::Box& wheel, Angle hue)
{
    const Pixels expected = plain(wheel, hue);
    const Pixels actual = drawn(wheel, hue);
    int shown = 0;
    for (std::size_t i = 0; i < expected.size() && shown < 5; ++i) {
        if (expected[i] == actual[i])
            continue;
        ++shown;
        const auto width = static_cast<std::size_t>(wheel.width());
        ADD_FAILURE() << wheel.width() << " by " << wheel.height() << ", hue " << hue.degrees() << ", pixel "
                      << i % width << ", " << i / width << ": " << std::hex << actual[i] << " for "
                      << expected[i];
    }
}

} // namespace

TEST(WheelRaster, EveryHeightIsAsPixelByPixel)
{
    for (int height = 0; height <= 200; ++height)
        expectSame({0, 0, height + height % 3, height}, Angle::degrees(height * 1.7));
}

// Sizes up to 300 by 200, a part of them unless all are asked for: each height with widths in steps, which
// begin elsewhere from height to height.
TEST(WheelRaster, WidthsAndHeightsAreAsPixelByPixel)
{
    const int step = std::getenv("OVO_ALL_WHEELS") ? 1 : 43;
    for (int height = 0; height <= 200; ++height)
        for (int width = height * 17 % step; width <= 300; width += step)
            expectSame({-7, 11, width - 7, height + 11}, Angle::degrees(width + 2 * height));
    expectSame({0, 0, 300, 200}, Angle::degrees(211));
}

TEST(WheelRaster, EveryHueOfTheTriangleIsAsPixelByPixel)
{
    const ovoui::frame::Box wheel{0, 0, 61, 60};
    for (int degrees = -30; degrees < 400; ++degrees)
        expectSame(wheel, Angle::degrees(degrees));
    for (int step = 0; step < 100; ++step)
        expectSame(wheel, Angle::degrees(step * 3.6543));
}

// A base of 85 or 255 pixels puts many components just between two bytes.
TEST(WheelRaster, ComponentsBetweenTwoBytesRoundAsPixelByPixel)
{
    for (int size = 100; size < 400; size += 1) {
        const int base = triangleIn(ringIn({0, 0, size, size})).rect().width();
        if (255 % base == 0 || base % 51 == 0)
            for (const double degrees : {0.0, 30.0, 60.0, 90.0, 217.5})
                expectSame({0, 0, size, size}, Angle::degrees(degrees));
    }
}

TEST(WheelRaster, ALaterHueReplacesTheWholeTriangle)
{
    const ovoui::frame::Box wheel{0, 0, 90, 80};
    Pixels pixels(count(wheel), 0);
    const WheelRaster raster(wheel);
    raster.drawRing(pixels.data());
    raster.drawTriangle(pixels.data(), Angle::degrees(10));
    raster.drawTriangle(pixels.data(), Angle::degrees(200));
    EXPECT_EQ(pixels, plain(wheel, Angle::degrees(200)));
}

TEST(WheelRaster, TheRingLeavesWhatIsNotOfIt)
{
    const ovoui::frame::Box wheel{0, 0, 50, 50};
    Pixels pixels(count(wheel), 0x12345678);
    const WheelRaster raster(wheel);
    raster.drawRing(pixels.data());
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 50; ++x)
            EXPECT_EQ(pixels[static_cast<std::size_t>(y * 50 + x)] == 0x12345678,
                      !raster.ring().test({x, y}, 0).onRing);
}
