/// Not exported: images of a strip, drawn through GDI+ at the size wanted.
#pragma once

#include <ovoui/images/core/StripRules.h>

#include <afxwin.h>

#include <objidl.h> // before the next one, which relies on it
#include <gdiplus.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace ovoui::images
{

struct BitmapDeleter
{
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter>;

/// A bitmap that holds images side by side.
struct Strip
{
    HBITMAP bitmap;
    BITMAP facts;    ///< its size and depth
    bool isResource; ///< found by its number, not passed in
    UniqueBitmap
        own; ///< the bitmap again if it is freed with the strip; null if it is the caller's or shared

    /// None when the bitmap cannot be read or is larger than a picture may be.
    static std::optional<Strip> passed(HBITMAP bitmap);
    static std::optional<Strip> resource(UINT id);
    /// A BMP file, whose alpha counts if it has 32 bits a pixel, or another one that GDI+ reads.
    static std::optional<Strip> fromFile(const std::wstring& path);

    bool hasAlpha() const { return facts.bmBitsPixel == 32; }
    int count(int imageWidth) const { return facts.bmWidth / imageWidth; }

private:
    static std::optional<Strip> read(HBITMAP bitmap);
};

/// Draws images of a strip into a picture that holds them side by side.
class StripPainter
{
public:
    /// `strip` must live as long as this object.
    StripPainter(const Strip& strip, const SIZE& sourceSize, const SIZE& targetSize,
                 Gdiplus::InterpolationMode interpolation, bool sharpen);

    /// One image, or all for a negative index. Null when the sizes leave nothing to draw or make a picture
    /// too large to be had, or without GDI+. `remap` as CAlphaImageList::AddBitmap takes it.
    std::unique_ptr<Gdiplus::Bitmap> paint(long index, const DWORD* remap) const;

private:
    std::unique_ptr<Gdiplus::Bitmap> source() const;
    Gdiplus::ARGB transparentColour() const;
    std::unique_ptr<Gdiplus::ImageAttributes> attributes(const DWORD* remap) const;
    void draw(Gdiplus::Bitmap& target, const ImageRange& part, const DWORD* remap) const;
    void drawWhole(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& source, int count,
                   const Gdiplus::ImageAttributes* attributes) const;
    void drawSeparately(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& source, const ImageRange& part,
                        const Gdiplus::ImageAttributes* attributes) const;
    void sharpenImages(Gdiplus::Bitmap& target, int count) const;

    const Strip& m_strip;
    const SIZE m_source; // positive while painting, as the next one
    const SIZE m_target;
    const Gdiplus::InterpolationMode m_interpolation;
    const bool m_sharpen;
};

} // namespace ovoui::images
