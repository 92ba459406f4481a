#include "PlainSharpen.h"

#include <algorithm>
#include <vector>

namespace
{

using ovoui::images::PixelBlock;

std::uint32_t channelOf(const std::uint32_t (&window)[9], int shift)
{
    const auto byte = [shift](std::uint32_t pixel) { return static_cast<float>((pixel >> shift) & 0xFF); };
    float sum = 0;
    for (int i = 0; i < 9; ++i)
        if (i != 4)
            sum += byte(window[i]);
    const float centre = byte(window[4]);
    const float value = std::clamp(centre + 0.075f * (8 * centre - sum), 0.0f, 255.0f);
    return static_cast<std::uint32_t>(value + 0.5f) << shift;
}

std::uint32_t pixelOf(const PixelBlock& block, int x, int y)
{
    const auto row = [&](int at) {
        return block.pixels + std::clamp(at, 0, block.height - 1) * block.stride;
    };
    const std::uint32_t* rows[] = {row(y - 1), row(y), row(y + 1)};
    const int left = std::max(x - 1, 0);
    const int right = std::min(x + 1, block.width - 1);
    std::uint32_t window[9];
    for (int i = 0; i < 3; ++i) {
        window[3 * i] = rows[i][left];
        window[3 * i + 1] = rows[i][x];
        window[3 * i + 2] = rows[i][right];
    }
    if (x + 1 == block.width)
        window[3] = window[6] = rows[0][left];
    std::uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8)
        pixel |= channelOf(window, shift);
    return pixel;
}

} // namespace

void sharpenPlainly(const PixelBlock& block)
{
    std::vector<std::uint32_t> result;
    result.reserve(static_cast<std::size_t>(block.width) * static_cast<std::size_t>(block.height));
    for (int y = 0; y < block.height; ++y)
        for (int x = 0; x < block.width; ++x)
            result.push_back(pixelOf(block, x, y));
    for (int y = 0; y < block.height; ++y)
        std::copy_n(result.begin() + static_cast<std::ptrdiff_t>(y) * block.width, block.width,
                    block.pixels + y * block.stride);
}
