#include <ovosvg/core/Canvas.h>

#include <algorithm>
#include <cstddef>

namespace ovosvg
{

namespace
{

std::uint32_t byteOf(double share)
{
    return static_cast<std::uint32_t>(std::clamp(share, 0.0, 1.0) * 255 + 0.5);
}

std::uint32_t packed(double red, double green, double blue, std::uint32_t alpha)
{
    return alpha << 24 | byteOf(red) << 16 | byteOf(green) << 8 | byteOf(blue);
}

} // namespace

Canvas::Canvas(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_values(4 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
{
}

void Canvas::lay(std::size_t pixel, const Rgba& colour, double share)
{
    float* const values = &m_values[4 * pixel];
    const double alpha = colour[3] * share;
    for (std::size_t i = 0; i < 3; ++i)
        values[i] = static_cast<float>(colour[i] * alpha + static_cast<double>(values[i]) * (1 - alpha));
    values[3] = static_cast<float>(alpha + static_cast<double>(values[3]) * (1 - alpha));
}

void Canvas::lay(const Canvas& layer, double opacity)
{
    const auto share = static_cast<float>(opacity);
    for (std::size_t i = 0; i < m_values.size(); i += 4) {
        const float rest = 1 - layer.m_values[i + 3] * share;
        for (std::size_t k = 0; k < 4; ++k)
            m_values[i + k] = layer.m_values[i + k] * share + m_values[i + k] * rest;
    }
}

std::vector<std::uint32_t> Canvas::premultiplied() const
{
    std::vector<std::uint32_t> pixels;
    pixels.reserve(m_values.size() / 4);
    for (std::size_t i = 0; i < m_values.size(); i += 4) {
        const float* const v = &m_values[i];
        // No channel exceeds alpha: all are rounded the same way.
        pixels.push_back(packed(v[0], v[1], v[2], byteOf(v[3])));
    }
    return pixels;
}

std::vector<std::uint32_t> Canvas::straight() const
{
    std::vector<std::uint32_t> pixels;
    pixels.reserve(m_values.size() / 4);
    for (std::size_t i = 0; i < m_values.size(); i += 4) {
        const float* const v = &m_values[i];
        const std::uint32_t alpha = byteOf(v[3]);
        const double by = static_cast<double>(v[3]);
        pixels.push_back(alpha ? packed(v[0] / by, v[1] / by, v[2] / by, alpha) : 0);
    }
    return pixels;
}

} // namespace ovosvg
