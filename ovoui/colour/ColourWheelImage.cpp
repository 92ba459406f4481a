#include <ovoui/colour/ColourWheelImage.h>

#include <ovoui/frame/BoxRect.h>

#include <algorithm>

ColourWheelImage::ColourWheelImage(const CRect& wheel)
    : m_width(std::max(0, wheel.Width()))
    , m_height(std::max(0, wheel.Height()))
    , m_raster(ovoui::frame::toBox(wheel))
    , m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    , m_valid(m_width > 0 && m_height > 0)
{
    if (!m_valid)
        return;
    m_data.Width = static_cast<UINT>(m_width);
    m_data.Height = static_cast<UINT>(m_height);
    m_data.Stride = m_width * static_cast<INT>(sizeof(std::uint32_t));
    m_data.PixelFormat = PixelFormat32bppARGB;
    m_data.Scan0 = m_pixels.data();
    m_bitmap = std::make_unique<Gdiplus::Bitmap>(m_width, m_height, m_data.Stride, PixelFormat32bppARGB,
                                                 static_cast<BYTE*>(m_data.Scan0));
    m_status = m_bitmap->GetLastStatus();
    m_raster.drawRing(m_pixels.data());
}

ColourWheelImage::~ColourWheelImage() = default;

void ColourWheelImage::setHue(Angle hue)
{
    if (!m_valid || m_status != Gdiplus::Ok || m_hue == hue)
        return;
    m_raster.drawTriangle(m_pixels.data(), hue);
    m_hue = hue;
    push();
}

/// GDI+ may keep the pixels elsewhere, for which the buffer is only the source.
void ColourWheelImage::push()
{
    const Gdiplus::Rect all(0, 0, m_width, m_height);
    Gdiplus::BitmapData data = m_data;
    m_status = m_bitmap->LockBits(&all, Gdiplus::ImageLockModeWrite | Gdiplus::ImageLockModeUserInputBuf,
                                  PixelFormat32bppARGB, &data);
    if (m_status == Gdiplus::Ok)
        m_status = m_bitmap->UnlockBits(&data);
}

void ColourWheelImage::draw(HDC dc, CPoint place)
{
    if (!m_valid || m_status != Gdiplus::Ok)
        return;
    Gdiplus::Graphics graphics(dc);
    // With the size given, the resolutions of bitmap and device have no say.
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    graphics.DrawImage(m_bitmap.get(), place.x, place.y, m_width, m_height);
}
