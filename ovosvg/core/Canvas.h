/// A picture in the making. Plain values, no windows.
#pragma once

#include <ovosvg/core/Coverage.h>
#include <ovosvg/core/Gradient.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ovosvg
{

/// Pixels as red, green, blue and alpha from 0 to 1, premultiplied: nothing is rounded until the end.
class Canvas
{
public:
    /// All transparent.
    Canvas(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Lays a colour over all pixels, each as far as it is covered.
    template <class ColourAt>
    void paint(const Covered& covered, double opacity, const ColourAt& colourAt)
    {
        const Part& part = covered.part;
        std::size_t i = 0;
        for (int y = part.top; y < part.top + part.height; ++y)
            for (int x = part.left; x < part.left + part.width; ++x, ++i)
                if (covered.values[i] > 0)
                    lay(pixelAt(x, y), colourAt(Point{x + 0.5, y + 0.5}),
                        opacity * static_cast<double>(covered.values[i]));
    }

    /// Lays another canvas of the same size over this one.
    void lay(const Canvas& layer, double opacity);

    /// 0xAARRGGBB, rows from the top, each channel rounded half up.
    std::vector<std::uint32_t> premultiplied() const;
    /// The same with colours that are not premultiplied; what is wholly transparent is 0.
    std::vector<std::uint32_t> straight() const;

private:
    std::size_t pixelAt(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }
    void lay(std::size_t pixel, const Rgba& colour, double share);

    int m_width;
    int m_height;
    std::vector<float> m_values; ///< four a pixel
};

} // namespace ovosvg
