/// A picture in the making. Plain values, no windows.
#pragma once

#include <ovosvg/core/Gradient.h>

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

    /// Lays a colour over all pixels, each as far as `coverage` says, which has a value for each of them.
    template <class ColourAt>
    void paint(const std::vector<float>& coverage, double opacity, const ColourAt& colourAt)
    {
        std::size_t i = 0;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x, ++i)
                if (coverage[i] > 0)
                    lay(i, colourAt(Point{x + 0.5, y + 0.5}), opacity * static_cast<double>(coverage[i]));
    }

    /// Lays another canvas of the same size over this one.
    void lay(const Canvas& layer, double opacity);

    /// 0xAARRGGBB, rows from the top, each channel rounded half up.
    std::vector<std::uint32_t> premultiplied() const;
    /// The same with colours that are not premultiplied; what is wholly transparent is 0.
    std::vector<std::uint32_t> straight() const;

private:
    void lay(std::size_t pixel, const Rgba& colour, double share);

    int m_width;
    int m_height;
    std::vector<float> m_values; ///< four a pixel
};

} // namespace ovosvg
