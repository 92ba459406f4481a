/// Images with an alpha channel, scaled to the size that is wanted.
///
///     m_images.Create(24, 24, 16); // a member, which lives as long as the bar shows it
///     m_images.AddBitmap(IDB_TOOLBAR_24, false, -1, CSize(24, 24), CSize(24, 24), nullptr, nullptr);
///     m_bar.GetToolBarCtrl().SetImageList(m_images.ImageList());
#pragma once

#include <ovoui/export.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <objidl.h> // before the next one, which relies on it
#include <gdiplus.h>

#include <memory>

/// Two image lists, for normal and for hot images, filled from strips: bitmaps that hold images side by side.
/// The host must have started GDI+; without it nothing is added.
class OVOUI_API CAlphaImageList
{
public:
    /// Both lists are empty until Create.
    CAlphaImageList();
    /// Destroys the lists and the bitmap kept.
    virtual ~CAlphaImageList();
    CAlphaImageList(const CAlphaImageList&) = delete;
    CAlphaImageList& operator=(const CAlphaImageList&) = delete;

    /// Makes both lists, for images of `cx` by `cy` pixels, with room for `initial` of them. An object that
    /// was created before is cleared first. FALSE when a list cannot be made; the hot one is not tried after
    /// the normal one has failed.
    BOOL Create(int cx, int cy, int initial);

    /// Adds one image of a strip, or all for a negative `index` (which is not checked against the strip's
    /// end).
    ///
    /// The strip is `bitmap`, which stays the caller's, or else the bitmap resource `id`, found by the
    /// framework's search. Its images are `sourceSize` pixels large and are drawn at `targetSize`, which is
    /// that of the lists.
    ///
    /// A strip of 32 bits a pixel keeps its alpha channel, which must not be premultiplied. In others one
    /// colour is transparent: that of the top left pixel for `bitmap`, light grey (C0C0C0) for a resource.
    /// There `remap`, if not null, points at a colour, as a DIB has it (0xRRGGBB), that is shown as
    /// COLOR_BTNTEXT; the bytes of that COLORREF are taken for 0xRRGGBB too.
    ///
    /// Gives the index of the first image added, in the hot list or in the normal one, or -1: no such
    /// resource, an unreadable bitmap, a size that is empty or too large for a picture, no GDI+, or no such
    /// list.
    int AddBitmap(unsigned int id, bool hot, long index, const SIZE& sourceSize, const CSize& targetSize,
                  HBITMAP bitmap, const DWORD* remap);

    /// The picture `bitmap` as a new top-down DIB section of 32 bits a pixel, not premultiplied; the caller
    /// owns it. Null when it cannot be made.
    static HBITMAP GetHBitmap(Gdiplus::Bitmap& bitmap);

    CImageList* ImageList(); ///< The normal list, which stays this object's.
    /// The handle of the normal list, which stays this object's; null before Create.
    HIMAGELIST GetImageList() const;
    /// The handle of the hot list, which stays this object's; null before Create.
    HIMAGELIST GetHotImageList() const;

    /// Back to the beginning: Create can be called again.
    void Clear();

    // For the strips added from then on

    /// How scaling finds its pixels; low quality at first.
    void SetInterpolationMode(Gdiplus::InterpolationMode mode);

    /// Whether images that were scaled, to more than 3 by 3 pixels, are sharpened, and each is kept free of
    /// the pixels of its neighbours; on at first. With it off, a single image is always the first of the
    /// strip.
    void SetSharpenMode(bool sharpen);

private:
    CImageList m_normal;
    CImageList m_hot;
    std::unique_ptr<CBitmap> m_lastBitmap; ///< the bitmap added last
    Gdiplus::InterpolationMode m_interpolation = Gdiplus::InterpolationModeLowQuality;
    bool m_sharpen = true;
};
