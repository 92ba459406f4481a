#include <ovoui/colour/core/WheelRaster.h>

#include <ovocor/Colour.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace ovoui::colour
{

namespace
{

constexpr std::uint32_t kOpaque = 0xFF000000;

/// Further from a boundary than this, the sums made here and those of the tests are on the same side of it.
constexpr double kDoubt = 1e-6;

std::uint32_t pixelOf(const Colour& colour)
{
    unsigned char bytes[3];
    colour.getDib24(bytes);
    return kOpaque | static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[1]) << 8 |
           bytes[0];
}

/// Along each edge of the hexagon one component rises or falls while the others stay.
struct EdgeColours
{
    std::uint32_t fixed; ///< the pixel without the changing component
    int shift;           ///< where that goes
    bool rising;
};

constexpr std::array<EdgeColours, 6> kEdges{{{0xFFFF0000, 0, true},
                                             {0xFF0000FF, 16, false},
                                             {0xFF0000FF, 8, true},
                                             {0xFF00FF00, 0, false},
                                             {0xFF00FF00, 16, true},
                                             {0xFFFF0000, 8, false}}};

/// Bytes with a fraction, as whole numbers: fast, and exact enough to tell when they are in doubt.
constexpr int kFractionBits = 20;
constexpr std::int32_t kOne = 1 << kFractionBits;
/// The sums made of them are off by less than a step; these many steps from the next byte they are in doubt.
constexpr std::int32_t kDoubtfulSteps = 4;

std::int32_t fixedPoint(double value)
{
    return static_cast<std::int32_t>(value * kOne + (value < 0 ? -0.5 : 0.5));
}

struct Components
{
    std::int32_t red;
    std::int32_t green;
    std::int32_t blue;
};

/// The pixels of a row from the lightness of each column, which is kDoubtfulSteps too high, so that what is
/// in doubt has the smallest fractions. True when one is.
inline bool shade(std::uint32_t* pixels, const std::int32_t* lightness, int count, const Components& add)
{
    constexpr std::int32_t kFraction = kOne - 1;
    std::int32_t doubt = 0; // becomes negative
    for (int i = 0; i < count; ++i) {
        const std::int32_t red = lightness[i] + add.red;
        const std::int32_t green = lightness[i] + add.green;
        const std::int32_t blue = lightness[i] + add.blue;
        pixels[i] = kOpaque | static_cast<std::uint32_t>((red >> (kFractionBits - 16) & 0xFF0000) |
                                                         (green >> (kFractionBits - 8) & 0xFF00) |
                                                         blue >> kFractionBits);
        doubt |= (red & kFraction) - 2 * kDoubtfulSteps;
        doubt |= (green & kFraction) - 2 * kDoubtfulSteps;
        doubt |= (blue & kFraction) - 2 * kDoubtfulSteps;
    }
    return doubt < 0;
}

} // namespace

WheelRaster::WheelRaster(const frame::Box& wheel)
    : m_wheel(wheel)
    , m_ring(ringIn(wheel))
    , m_triangle(triangleIn(m_ring))
{
    const int columns = std::max(0, m_triangle.rect().width());
    m_lightness.reserve(static_cast<std::size_t>(columns));
    for (int i = 0; i < columns; ++i)
        m_lightness.push_back(fixedPoint(255.0 * i / columns) + kDoubtfulSteps);
}

// The ring

/// Part of a row in one sector.
struct WheelRaster::Run
{
    int y;
    int sector;
    int from;
    int to;
};

void WheelRaster::drawRing(std::uint32_t* pixels) const
{
    if (m_wheel.width() <= 0)
        return;
    for (int y = m_wheel.top; y < m_wheel.bottom; ++y) {
        drawRingRow(pixels, y);
        pixels += m_wheel.width();
    }
}

/// The lines that part the sectors go through the centre, 60 degrees apart, one of them upright. A pixel on
/// such a line has the colour of the vertex in either sector.
void WheelRaster::drawRingRow(std::uint32_t* row, int y) const
{
    const double cx = m_ring.centre().x();
    const double dy = y - m_ring.centre().y();
    const double slanted = std::fabs(dy) * 2 * Angle::degrees(30).cos();
    const std::array<double, 3> borders{cx - slanted, cx, cx + slanted};
    const std::array<int, 4> sectors = dy < 0 ? std::array{4, 5, 0, 1} : std::array{4, 3, 2, 1};

    int from = m_wheel.left;
    for (std::size_t i = 0; i < sectors.size(); ++i) {
        const double border = i < borders.size() ? std::ceil(borders[i]) : m_wheel.right;
        const int to = static_cast<int>(std::clamp<double>(border, from, m_wheel.right));
        drawRun(row, {y, sectors[i], from, to});
        from = to;
    }
}

void WheelRaster::drawRun(std::uint32_t* row, const Run& run) const
{
    const EdgeColours& colours = kEdges[static_cast<std::size_t>(run.sector)];
    const Vector<2> from = m_ring.vertex(run.sector);
    const Vector<2> along = (m_ring.vertex(run.sector + 1) - from).unit();
    const double length = m_ring.inner();
    const double band = m_ring.outer() - m_ring.inner();
    const double furthest = band * band;
    const double doubt = kDoubt * (2 * band + 1);

    for (int x = run.from; x < run.to; ++x) {
        const Vector<2> offset = Vector<2>(x, run.y) - from;
        const double outside = offset.cross(along);
        if (outside < -kDoubt || outside > band + kDoubt)
            continue;
        const double position = offset.dot(along);
        const double nearest = std::clamp(position, 0.0, length);
        const double beyond = position - nearest;
        const double distance = outside * outside + beyond * beyond;
        if (distance > furthest + doubt)
            continue;
        const double part = length > 0 ? nearest / length : 0;
        const double level = 255 * (colours.rising ? part : 1 - part) + 0.5;
        const auto byte = static_cast<std::uint32_t>(level);
        const double fraction = level - byte;
        std::uint32_t& pixel = row[x - m_wheel.left];
        if (outside < kDoubt || distance > furthest - doubt || fraction < kDoubt || fraction > 1 - kDoubt)
            askRing(pixel, x, run.y);
        else
            pixel = colours.fixed | byte << colours.shift;
    }
}

/// Says for certain what a pixel is.
void WheelRaster::askRing(std::uint32_t& pixel, int x, int y) const
{
    const HueRing::Hit hit = m_ring.test({x, y}, 0);
    if (hit.onRing)
        pixel = pixelOf(Colour::hls(hit.hue, 0.5, 1));
}

// The triangle

void WheelRaster::drawTriangle(std::uint32_t* pixels, Angle hue) const
{
    const frame::Box& rect = m_triangle.rect();
    if (rect.width() <= 0 || rect.height() <= 0)
        return;
    const Colour pure = Colour::hls(hue, 0.5, 1);
    for (int y = rect.top; y < rect.bottom; ++y) {
        // A component is the lightness and, the more the higher up, what the hue has of it more than a grey.
        const double chroma = static_cast<double>(rect.bottom - y) / rect.height();
        const auto add = [=](double share) { return fixedPoint(255 * chroma * (share - 0.5) + 0.5); };
        const Components components{add(pure.r()), add(pure.g()), add(pure.b())};
        const double leftSide = rect.width() / 2.0 * chroma;
        const int end = endOfTriangle(rect.width() - leftSide, y);
        std::uint32_t* const row = pixels + static_cast<std::ptrdiff_t>(y - m_wheel.top) * m_wheel.width() +
                                   (rect.left - m_wheel.left);
        constexpr int kBlock = 16;
        for (int i = firstInTriangle(leftSide, y); i < end; i += kBlock) {
            const int count = std::min(kBlock, end - i);
            const std::int32_t* const lightness = m_lightness.data() + i;
            // The usual count as a constant makes the loop one of machine vectors.
            const bool doubt = count == kBlock ? shade(row + i, lightness, kBlock, components)
                                               : shade(row + i, lightness, count, components);
            for (int j = i; doubt && j < i + count; ++j)
                askTriangle(row[j], rect.left + j, y, hue);
        }
    }
}

/// `column` counts from the left of the triangle's rectangle, as all columns below.
bool WheelRaster::isInTriangle(int column, int y) const
{
    return m_triangle.test({m_triangle.rect().left + column, y}, 0).inTriangle;
}

/// The first column at or right of the left side.
int WheelRaster::firstInTriangle(double side, int y) const
{
    const int nearest = static_cast<int>(side + 0.5);
    if (std::fabs(nearest - side) < kDoubt)
        return isInTriangle(nearest, y) ? nearest : nearest + 1;
    return nearest + (nearest < side);
}

/// The first column right of the right side.
int WheelRaster::endOfTriangle(double side, int y) const
{
    const int nearest = static_cast<int>(side + 0.5);
    int end = nearest + (nearest < side);
    if (std::fabs(nearest - side) < kDoubt)
        end = isInTriangle(nearest, y) ? nearest + 1 : nearest;
    return std::min(end, m_triangle.rect().width());
}

void WheelRaster::askTriangle(std::uint32_t& pixel, int x, int y, Angle hue) const
{
    const ShadeTriangle::Hit hit = m_triangle.test({x, y}, 0);
    pixel = pixelOf(Colour::hls(hue, hit.lightness, hit.saturation));
}

} // namespace ovoui::colour
