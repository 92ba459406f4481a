#include <ovosvg/SvgStrip.h>

#include <ovosvg/DrawingState.h>
#include <ovosvg/PixelBitmap.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace ovosvg
{

struct SvgStrip::State
{
    std::vector<SvgDrawing> drawings;
    COLORREF currentColour;
};

SvgStrip::SvgStrip(std::vector<SvgDrawing> drawings, COLORREF currentColour)
    : m_state(std::make_shared<State>(State{std::move(drawings), currentColour}))
{
}

SvgStrip::~SvgStrip() = default;
SvgStrip::SvgStrip(const SvgStrip&) = default;
SvgStrip& SvgStrip::operator=(const SvgStrip&) = default;

HBITMAP SvgStrip::operator()(int size) const
{
    constexpr std::int64_t kMostPixels = std::numeric_limits<std::int32_t>::max() / 4; // of a bitmap
    const auto count = static_cast<std::int64_t>(m_state->drawings.size());
    if (size < 1 || count < 1 || size > kMostPixels / size / count)
        return nullptr;
    const auto width = static_cast<std::ptrdiff_t>(size * count);
    PixelBitmap bitmap(static_cast<int>(width), size);
    if (!bitmap.pixels())
        return nullptr;
    std::uint32_t* left = bitmap.pixels();
    for (const SvgDrawing& drawing : m_state->drawings) {
        std::vector<SvgNote> notes;
        const auto image = drawing.m_state->canvas(size, size, m_state->currentColour, notes).straight();
        for (std::ptrdiff_t y = 0; y < size; ++y)
            std::copy_n(image.begin() + y * size, size, left + y * width);
        left += size;
    }
    return bitmap.release();
}

HBITMAP svgStrip(const std::vector<SvgDrawing>& drawings, int size, COLORREF currentColour)
{
    return SvgStrip(drawings, currentColour)(size);
}

} // namespace ovosvg
