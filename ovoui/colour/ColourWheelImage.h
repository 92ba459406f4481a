/// Not exported: the picture of the hue ring and the triangle.
#pragma once

#include <ovoui/colour/core/WheelRaster.h>

#include <afxwin.h>

#include <objidl.h> // before the next one, which relies on it
#include <gdiplus.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

/// What is beside ring and triangle is transparent. Failures of GDI+, which the host starts, are kept in the
/// status; nothing is drawn then.
class ColourWheelImage
{
public:
    /// Of a part of a window, in its client coordinates.
    explicit ColourWheelImage(const CRect& wheel);
    virtual ~ColourWheelImage();
    ColourWheelImage(const ColourWheelImage&) = delete;
    ColourWheelImage& operator=(const ColourWheelImage&) = delete;

    const ovoui::colour::HueRing& ring() const { return m_raster.ring(); }
    const ovoui::colour::ShadeTriangle& triangle() const { return m_raster.triangle(); }

    /// Whether there is anything to be drawn.
    bool isValid() const { return m_valid; }
    Gdiplus::Status status() const { return m_status; }

    /// Renders the triangle of a hue. Nothing is done when it has that hue already.
    void setHue(Angle hue);
    /// Draws all, with the upper left corner at this place.
    void draw(HDC dc, CPoint place);

private:
    void push();

    int m_width;
    int m_height;
    ovoui::colour::WheelRaster m_raster;
    std::vector<std::uint32_t> m_pixels; ///< opaque where something is
    bool m_valid;
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap; ///< over the pixels
    Gdiplus::BitmapData m_data{};
    Gdiplus::Status m_status = Gdiplus::Ok;
    std::optional<Angle> m_hue;
};
