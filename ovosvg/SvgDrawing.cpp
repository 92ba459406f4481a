#include <ovosvg/SvgDrawing.h>

#include <ovosvg/DrawingSource.h>
#include <ovosvg/DrawingState.h>
#include <ovosvg/PixelBitmap.h>
#include <ovosvg/SvgError.h>

#include <algorithm>

namespace ovosvg
{

namespace
{

constexpr int kTrialSize = 16;

/// 0xAARRGGBB.
std::uint32_t argbOf(COLORREF colour)
{
    if (colour == CLR_DEFAULT)
        colour = ::GetSysColor(COLOR_BTNTEXT);
    return 0xFF000000 | static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
           static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
}

/// Makes a call into the core, whose failures hosts get as SvgError.
template <class Call>
auto raising(const Call& call)
{
    try {
        return call();
    } catch (const SvgFailure& failure) {
        throw SvgError(failure.note);
    }
}

} // namespace

SvgDrawing::State::State(std::string_view utf8)
    : drawing(raising([&] { return Drawing(utf8); }))
{
}

Canvas SvgDrawing::State::canvas(int width, int height, COLORREF currentColour,
                                 std::vector<SvgNote>& notes) const
{
    return raising([&] { return drawing.draw(width, height, argbOf(currentColour), notes); });
}

SvgDrawing::SvgDrawing(std::string_view utf8)
    : m_state(std::make_shared<State>(utf8))
{
}

SvgDrawing::~SvgDrawing() = default;
SvgDrawing::SvgDrawing(const SvgDrawing&) = default;
SvgDrawing& SvgDrawing::operator=(const SvgDrawing&) = default;

SvgDrawing SvgDrawing::fromText(std::string_view utf8)
{
    return SvgDrawing(utf8);
}

SvgDrawing SvgDrawing::fromFile(const std::wstring& path)
{
    return SvgDrawing(textOfFile(path));
}

SvgDrawing SvgDrawing::fromResource(UINT id, const wchar_t* type)
{
    return SvgDrawing(textOfResource(id, type));
}

HBITMAP SvgDrawing::draw(int width, int height, COLORREF currentColour, SvgPixels form) const
{
    if (width < 1 || height < 1)
        return nullptr;
    std::vector<SvgNote> notes;
    const Canvas canvas = m_state->canvas(width, height, currentColour, notes);
    const auto pixels = form == SvgPixels::Straight ? canvas.straight() : canvas.premultiplied();
    PixelBitmap bitmap(width, height);
    if (bitmap.pixels())
        std::copy(pixels.begin(), pixels.end(), bitmap.pixels());
    return bitmap.release();
}

std::vector<SvgNote> SvgDrawing::notes() const
{
    std::vector<SvgNote> notes;
    m_state->canvas(kTrialSize, kTrialSize, CLR_DEFAULT, notes);
    return notes;
}

} // namespace ovosvg
