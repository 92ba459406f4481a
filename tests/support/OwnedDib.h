/// A bitmap that a function under test has made, as a test looks at it.
#pragma once

#include <afxwin.h>

#include <cstdint>

namespace ovo::testkit
{

/// A device-independent bitmap of 32 bits, top down, freed with this object.
class OwnedDib
{
public:
    explicit OwnedDib(HBITMAP bitmap)
        : m_bitmap(bitmap)
    {
        ::GetObjectW(m_bitmap, sizeof m_dib, &m_dib);
    }
    ~OwnedDib() { ::DeleteObject(m_bitmap); }
    OwnedDib(const OwnedDib&) = delete;
    OwnedDib& operator=(const OwnedDib&) = delete;

    HBITMAP handle() const { return m_bitmap; }
    /// 0 by 0 without a bitmap.
    CSize size() const { return CSize(m_dib.dsBm.bmWidth, m_dib.dsBm.bmHeight); }
    int bits() const { return m_dib.dsBm.bmBitsPixel; }
    /// 0xAARRGGBB.
    std::uint32_t at(int x, int y) const
    {
        return static_cast<const std::uint32_t*>(m_dib.dsBm.bmBits)[y * m_dib.dsBm.bmWidth + x];
    }

private:
    HBITMAP m_bitmap;
    DIBSECTION m_dib{};
};

} // namespace ovo::testkit
