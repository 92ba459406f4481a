// Rendering ring and triangle against asking for each pixel, and against writing the same pixels.
#include "PlainWheel.h"

#include <ovoui/colour/core/WheelRaster.h>

#include "support/InTurns.h"

#include <catch2/catch.hpp>

#include <cstring>
#include <vector>

using namespace ovoui::colour;

namespace
{

constexpr ovoui::frame::Box kWheel{0, 0, 400, 400};

std::vector<std::uint32_t> blank()
{
    return std::vector<std::uint32_t>(static_cast<std::size_t>(kWheel.width() * kWheel.height()), 0);
}

/// The columns of each row that the triangle fills.
struct Span
{
    std::size_t from;
    std::size_t count;
};

std::vector<Span> triangleSpans()
{
    const ShadeTriangle triangle = triangleIn(ringIn(kWheel));
    std::vector<Span> spans;
    for (int y = triangle.rect().top; y < triangle.rect().bottom; ++y) {
        Span span{0, 0};
        for (int x = triangle.rect().left; x < triangle.rect().right; ++x)
            if (triangle.test({x, y}, 0).inTriangle && span.count++ == 0)
                span.from = static_cast<std::size_t>(y * kWheel.width() + x);
        spans.push_back(span);
    }
    return spans;
}

} // namespace

TEST_CASE("ring and triangle of a wheel of 400 by 400 pixels")
{
    std::vector<std::uint32_t> plain = blank();
    std::vector<std::uint32_t> fast = blank();
    double degrees = 0;

    double raster = 0;
    InTurns turns;
    turns.add("asking for each pixel, -O2 [baseline]",
              [&] { drawPlainWheel(plain.data(), kWheel, Angle::degrees(degrees += 1.7)); });
    turns.add("the raster [at most 0.125]", [&] {
        const WheelRaster whole(kWheel);
        whole.drawRing(fast.data());
        whole.drawTriangle(fast.data(), Angle::degrees(raster += 1.7));
    });
    turns.run("ring and triangle of a wheel of 400 by 400 pixels", 21);
    drawPlainWheel(plain.data(), kWheel, Angle::degrees(50));
    WheelRaster(kWheel).drawTriangle(fast.data(), Angle::degrees(50));
    REQUIRE(plain == fast);
}

TEST_CASE("the triangle of another hue in a wheel of 400 by 400 pixels")
{
    std::vector<std::uint32_t> pixels = blank();
    const std::vector<Span> spans = triangleSpans();
    const WheelRaster raster(kWheel);
    int step = 0;

    constexpr int kTimes = 5; // once is too short for the clock, and often is interrupted
    InTurns turns;
    turns.add("memset of the same pixels [baseline]", [&] {
        for (int i = 0; i < kTimes; ++i) {
            ++step;
            for (const Span& span : spans)
                std::memset(pixels.data() + span.from, step & 0xFF, span.count * sizeof pixels[0]);
        }
    });
    turns.add("the raster [at most 12]", [&] {
        for (int i = 0; i < kTimes; ++i)
            raster.drawTriangle(pixels.data(), Angle::degrees(++step * 1.7));
    });
    turns.run("the triangle of another hue in a wheel of 400 by 400 pixels, 5 times", 2001);
}
