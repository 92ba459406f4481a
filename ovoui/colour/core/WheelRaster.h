/// Ring and triangle as pixels. Plain values, no windows.
#pragma once

#include <ovoui/colour/core/WheelGeometry.h>

#include <ovocor/Angle.h>

#include <cstdint>
#include <vector>

namespace ovoui::colour
{

/// Gives every pixel exactly the colour that asking the tests of ring and triangle (without tolerance) and
/// making a Colour of the answer would give, in a fraction of the time: along a row what is looked for
/// changes evenly, and where rounding could make a difference the pixel is asked for after all.
class WheelRaster
{
public:
    explicit WheelRaster(const frame::Box& wheel);

    const HueRing& ring() const { return m_ring; }
    const ShadeTriangle& triangle() const { return m_triangle; }

    /// Writes the pixels of the ring, 0xFFrrggbb, rows from the top, and leaves all others. `pixels` has room
    /// for the whole wheel.
    void drawRing(std::uint32_t* pixels) const;
    /// The same for the triangle of a hue.
    void drawTriangle(std::uint32_t* pixels, Angle hue) const;

private:
    struct Run;

    void drawRingRow(std::uint32_t* row, int y) const;
    void drawRun(std::uint32_t* row, const Run& run) const;
    void askRing(std::uint32_t& pixel, int x, int y) const;
    void askTriangle(std::uint32_t& pixel, int x, int y, Angle hue) const;
    int firstInTriangle(double side, int y) const;
    int endOfTriangle(double side, int y) const;
    bool isInTriangle(int column, int y) const;

    frame::Box m_wheel;
    HueRing m_ring;
    ShadeTriangle m_triangle;
    std::vector<std::int32_t> m_lightness; // of each column of the triangle, in steps of the raster
};

} // namespace ovoui::colour
