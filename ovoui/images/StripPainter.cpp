#include <ovoui/images/StripPainter.h>

#include <ovoui/frame/MemoryBitmap.h>
#include <ovoui/frame/ScreenDc.h>
#include <ovoui/images/AlphaImageList.h>
#include <ovoui/images/core/PictureSize.h>
#include <ovoui/images/core/SharpenFilter.h>

#include <cstdint>
#include <utility>

namespace ovoui::images
{

namespace
{

constexpr Gdiplus::ARGB kOpaque = 0xFF000000;
constexpr Gdiplus::ARGB kTransparentWhite = 0x00FFFFFF;
constexpr Gdiplus::ARGB kResourceKey = 0xFFC0C0C0; ///< transparent in resources: light grey
constexpr Gdiplus::ARGB kNoKey = kOpaque;          ///< where the top left pixel cannot be read

ImageSize toImageSize(const SIZE& size)
{
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

bool isGood(Gdiplus::Bitmap& bitmap)
{
    return bitmap.GetLastStatus() == Gdiplus::Ok;
}

HBITMAP loadBitmap(HINSTANCE module, UINT id)
{
    constexpr UINT kFlags = LR_CREATEDIBSECTION | LR_SHARED;
    return static_cast<HBITMAP>(::LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, kFlags));
}

/// Whether the platform shares this bitmap, which then must not be freed. Some platforms do not, although
/// it is asked to: each call then loads another bitmap, and each of them is the caller's.
bool isShared(HBITMAP bitmap, HINSTANCE module, UINT id)
{
    const HBITMAP again = loadBitmap(module, id);
    if (again == bitmap)
        return true;
    ::DeleteObject(again);
    return false;
}

/// Without GDI+ the smallest bitmap cannot be made.
bool isGdiPlusStarted()
{
    Gdiplus::Bitmap probe(1, 1, PixelFormat32bppARGB);
    return isGood(probe);
}

/// The pixels of a DIB of 32 bits, whichever way up it is stored, taken as ARGB as they stand.
std::unique_ptr<Gdiplus::Bitmap> withAlpha(HBITMAP dib, int width, int height)
{
    auto picture = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppARGB);
    BITMAPINFO info = frame::topDownInfo(width, height);
    const Gdiplus::Rect all(0, 0, width, height);
    Gdiplus::BitmapData data{};
    if (picture->LockBits(&all, Gdiplus::ImageLockModeWrite, PixelFormat32bppARGB, &data) != Gdiplus::Ok)
        return picture;
    const frame::ScreenDc screen;
    ::GetDIBits(screen.get(), dib, 0, static_cast<UINT>(height), data.Scan0, &info, DIB_RGB_COLORS);
    picture->UnlockBits(&data);
    return picture;
}

} // namespace

// Strip

std::optional<Strip> Strip::passed(HBITMAP bitmap)
{
    return read(bitmap);
}

std::optional<Strip> Strip::resource(UINT id)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_BITMAP);
    const HBITMAP bitmap = loadBitmap(module, id);
    if (!bitmap)
        return std::nullopt;
    UniqueBitmap own(isShared(bitmap, module, id) ? nullptr : bitmap);
    std::optional<Strip> strip = read(bitmap);
    if (strip) {
        strip->isResource = true;
        strip->own = std::move(own);
    }
    return strip;
}

std::optional<Strip> Strip::fromFile(const std::wstring& path)
{
    constexpr UINT kFlags = LR_CREATEDIBSECTION | LR_LOADFROMFILE;
    UniqueBitmap own(static_cast<HBITMAP>(::LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, kFlags)));
    if (!own && isGdiPlusStarted()) {
        Gdiplus::Bitmap picture(path.c_str());
        if (isGood(picture))
            own.reset(CAlphaImageList::GetHBitmap(picture));
    }
    std::optional<Strip> strip = read(own.get());
    if (strip)
        strip->own = std::move(own);
    return strip;
}

std::optional<Strip> Strip::read(HBITMAP bitmap)
{
    Strip strip{bitmap, {}, false, nullptr};
    if (!::GetObjectW(bitmap, sizeof strip.facts, &strip.facts) ||
        !isPictureSize(strip.facts.bmWidth, strip.facts.bmHeight))
        return std::nullopt;
    return strip;
}

// StripPainter

StripPainter::StripPainter(const Strip& strip, const SIZE& sourceSize, const SIZE& targetSize,
                           Gdiplus::InterpolationMode interpolation, bool sharpen)
    : m_strip(strip)
    , m_source(sourceSize)
    , m_target(targetSize)
    , m_interpolation(interpolation)
    , m_sharpen(sharpen)
{
}

std::unique_ptr<Gdiplus::Bitmap> StripPainter::paint(long index, const DWORD* remap) const
{
    const ImageSize from = toImageSize(m_source);
    const ImageSize to = toImageSize(m_target);
    if (from.empty() || to.empty())
        return nullptr;
    const ImageRange part = imagesAsked(index, m_strip.count(from.width));
    const std::int64_t width = std::int64_t{m_target.cx} * part.count;
    if (!isPictureSize(width, m_target.cy) || !isGdiPlusStarted())
        return nullptr;
    auto target =
        std::make_unique<Gdiplus::Bitmap>(static_cast<INT>(width), m_target.cy, PixelFormat32bppARGB);
    if (!isGood(*target))
        return nullptr;
    draw(*target, part, remap);
    if (m_sharpen && isSharpened(from, to))
        sharpenImages(*target, part.count);
    return target;
}

std::unique_ptr<Gdiplus::Bitmap> StripPainter::source() const
{
    if (m_strip.hasAlpha())
        return withAlpha(m_strip.bitmap, m_strip.facts.bmWidth, m_strip.facts.bmHeight);
    // As 32 bits at once: images of few bits may begin within a byte, where not every platform can cut.
    Gdiplus::Bitmap original(m_strip.bitmap, nullptr);
    std::unique_ptr<Gdiplus::Bitmap> copy(
        original.Clone(0, 0, m_strip.facts.bmWidth, m_strip.facts.bmHeight, PixelFormat32bppARGB));
    return copy ? std::move(copy) : std::make_unique<Gdiplus::Bitmap>(1, 1, PixelFormat32bppARGB);
}

/// The colour that stands for transparency in a strip without alpha.
Gdiplus::ARGB StripPainter::transparentColour() const
{
    if (m_strip.isResource)
        return kResourceKey;
    Gdiplus::Bitmap picture(m_strip.bitmap, nullptr);
    Gdiplus::Color colour;
    return picture.GetPixel(0, 0, &colour) == Gdiplus::Ok ? colour.GetValue() : kNoKey;
}

/// Null for a strip with alpha, which needs none.
std::unique_ptr<Gdiplus::ImageAttributes> StripPainter::attributes(const DWORD* remap) const
{
    if (m_strip.hasAlpha())
        return nullptr;
    auto result = std::make_unique<Gdiplus::ImageAttributes>();
    const Gdiplus::Color key(transparentColour());
    result->SetColorKey(key, key);
    if (remap) {
        // Red and blue of the system's colour are not exchanged, on purpose.
        Gdiplus::ColorMap map;
        map.oldColor = Gdiplus::Color(*remap | kOpaque);
        map.newColor = Gdiplus::Color(::GetSysColor(COLOR_BTNTEXT) | kOpaque);
        result->SetRemapTable(1, &map);
    }
    return result;
}

void StripPainter::draw(Gdiplus::Bitmap& target, const ImageRange& part, const DWORD* remap) const
{
    Gdiplus::Graphics graphics(&target);
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    graphics.SetInterpolationMode(m_interpolation);
    graphics.Clear(Gdiplus::Color(kTransparentWhite));
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceOver);
    const std::unique_ptr<Gdiplus::Bitmap> pixels = source();
    const std::unique_ptr<Gdiplus::ImageAttributes> how = attributes(remap);
    if (m_sharpen)
        drawSeparately(graphics, *pixels, part, how.get());
    else
        drawWhole(graphics, *pixels, part.count, how.get());
}

/// Draws from the whole strip, so that scaling mixes the edges of neighbouring images. The images drawn are
/// always the first ones of the strip.
void StripPainter::drawWhole(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& source, int count,
                             const Gdiplus::ImageAttributes* attributes) const
{
    const auto width = static_cast<Gdiplus::REAL>(m_source.cx);
    const auto height = static_cast<Gdiplus::REAL>(m_source.cy);
    for (int i = 0; i < count; ++i) {
        const Gdiplus::RectF slot(static_cast<Gdiplus::REAL>(i * m_target.cx), 0,
                                  static_cast<Gdiplus::REAL>(m_target.cx),
                                  static_cast<Gdiplus::REAL>(m_target.cy));
        graphics.DrawImage(&source, slot, static_cast<Gdiplus::REAL>(i) * width, 0, width, height,
                           Gdiplus::UnitPixel, attributes);
    }
}

/// Draws each image by itself, so that none gets pixels of its neighbours.
void StripPainter::drawSeparately(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& source,
                                  const ImageRange& part, const Gdiplus::ImageAttributes* attributes) const
{
    for (int i = 0; i < part.count; ++i) {
        const Gdiplus::Rect slot(i * m_target.cx, 0, m_target.cx, m_target.cy);
        graphics.SetClip(slot, Gdiplus::CombineModeReplace);
        const int image = part.first + i;
        if (!liesInStrip(image, m_source.cx, m_strip.facts.bmWidth))
            continue; // it stays empty
        const std::unique_ptr<Gdiplus::Bitmap> pixels(
            source.Clone(image * m_source.cx, 0, m_source.cx, m_source.cy, PixelFormat32bppARGB));
        if (pixels)
            graphics.DrawImage(pixels.get(), slot, 0, 0, m_source.cx, m_source.cy, Gdiplus::UnitPixel,
                               attributes);
    }
}

void StripPainter::sharpenImages(Gdiplus::Bitmap& target, int count) const
{
    const Gdiplus::Rect all(0, 0, m_target.cx * count, m_target.cy); // as large as a picture may be
    constexpr UINT kMode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeWrite;
    Gdiplus::BitmapData data{};
    if (target.LockBits(&all, kMode, PixelFormat32bppARGB, &data) != Gdiplus::Ok)
        return;
    auto* const pixels = static_cast<std::uint32_t*>(data.Scan0);
    const std::ptrdiff_t stride = data.Stride / static_cast<std::ptrdiff_t>(sizeof *pixels);
    for (int i = 0; i < count; ++i)
        sharpen({pixels + i * m_target.cx, m_target.cx, m_target.cy, stride});
    target.UnlockBits(&data);
}

} // namespace ovoui::images
