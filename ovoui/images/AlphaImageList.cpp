#include <ovoui/images/AlphaImageList.h>

#include <ovoui/frame/MemoryBitmap.h>
#include <ovoui/images/PicturePixels.h>
#include <ovoui/images/StripPainter.h>
#include <ovoui/images/core/PictureSize.h>

using ovoui::images::Strip;
using ovoui::images::StripPainter;

namespace
{

/// The header's size is that of the whole structure, with room for one colour.
BITMAPINFO topDownHeader(UINT width, UINT height)
{
    BITMAPINFO info = ovoui::frame::topDownInfo(static_cast<int>(width), static_cast<int>(height));
    info.bmiHeader.biSize = sizeof(BITMAPINFO);
    return info;
}

} // namespace

CAlphaImageList::CAlphaImageList() = default;

CAlphaImageList::~CAlphaImageList()
{
    Clear();
}

BOOL CAlphaImageList::Create(int cx, int cy, int initial)
{
    constexpr UINT kFlags = ILC_COLOR32 | ILC_MASK;
    constexpr int kGrow = 1;
    Clear();
    return m_normal.Create(cx, cy, kFlags, initial, kGrow) && m_hot.Create(cx, cy, kFlags, initial, kGrow);
}

int CAlphaImageList::AddBitmap(unsigned int id, bool hot, long index, const SIZE& sourceSize,
                               const CSize& targetSize, HBITMAP bitmap, const DWORD* remap)
{
    const std::optional<Strip> strip = bitmap ? Strip::passed(bitmap) : Strip::resource(id);
    if (!strip)
        return -1;
    StripPainter painter(*strip, sourceSize, targetSize, m_interpolation, m_sharpen);
    const std::unique_ptr<Gdiplus::Bitmap> images = painter.paint(index, remap);
    if (!images)
        return -1;
    auto added = std::make_unique<CBitmap>();
    added->Attach(GetHBitmap(*images));
    const auto handle = static_cast<HBITMAP>(added->GetSafeHandle());
    if (!handle)
        return -1;
    const int first =
        hot ? ::ImageList_Add(m_hot.GetSafeHandle(), handle, nullptr)
            : ::ImageList_AddMasked(m_normal.GetSafeHandle(), handle, ::GetSysColor(COLOR_BTNFACE));
    if (first != -1)
        m_lastBitmap = std::move(added);
    return first;
}

HBITMAP CAlphaImageList::GetHBitmap(Gdiplus::Bitmap& bitmap)
{
    const UINT width = bitmap.GetWidth();
    const UINT height = bitmap.GetHeight();
    if (!ovoui::images::isPictureSize(width, height))
        return nullptr;
    const BITMAPINFO info = topDownHeader(width, height);
    void* bits = nullptr;
    const HBITMAP handle = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!handle)
        return nullptr;
    // A picture that does not give its pixels leaves them all transparent.
    ovoui::images::copyPixels(bitmap, static_cast<int>(width), static_cast<int>(height), bits);
    return handle;
}

CImageList* CAlphaImageList::ImageList()
{
    return &m_normal;
}

HIMAGELIST CAlphaImageList::GetImageList() const
{
    return m_normal.GetSafeHandle();
}

HIMAGELIST CAlphaImageList::GetHotImageList() const
{
    return m_hot.GetSafeHandle();
}

void CAlphaImageList::Clear()
{
    m_lastBitmap.reset();
    m_normal.DeleteImageList();
    m_hot.DeleteImageList();
}

void CAlphaImageList::SetInterpolationMode(Gdiplus::InterpolationMode mode)
{
    m_interpolation = mode;
}

void CAlphaImageList::SetSharpenMode(bool sharpen)
{
    m_sharpen = sharpen;
}
