#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>
#include <gmock/gmock.h>

#include <cstdint>
#include <string>

namespace ovo::testkit
{

/// Pixels in memory: something to draw into, or what a window or the screen shows.
class Picture
{
public:
    /// An empty picture, all `background`; `width` and `height` in pixels, at least 1.
    Picture(int width, int height, COLORREF background = RGB(255, 255, 255));
    ~Picture();
    Picture(Picture&& other) noexcept;
    Picture& operator=(Picture&&) = delete;

    /// What a shown window shows, frame and title included, after it has painted what it has to. Other
    /// windows in front of it do not show. Throws std::runtime_error for a window that is not shown.
    static Picture ofWindow(HWND window);

    /// The client area of a shown window only.
    static Picture ofClient(HWND window);

    /// The whole screen, as it is seen.
    static Picture ofScreen();

    /// For drawing into the picture; owned by it.
    HDC dc() const { return m_dc; }

    /// In pixels, as the height.
    int width() const { return m_width; }
    /// In pixels.
    int height() const { return m_height; }

    /// The colour at a point, `x` and `y` from the top left; CLR_INVALID outside.
    COLORREF at(int x, int y) const;
    COLORREF at(CPoint point) const { return at(point.x, point.y); }

    /// How many pixels of the rectangle (default: all) have a colour, each component within `tolerance`.
    int count(COLORREF colour, int tolerance = 0) const;
    int count(COLORREF colour, int tolerance, const CRect& within) const;

    /// How many pixels differ from those of `other` by more than `tolerance` in a component. All of the
    /// larger one's when the sizes differ.
    int differences(const Picture& other, int tolerance = 0) const;

    /// Writes a file, `path`. False when it cannot be written.
    bool savePng(const std::wstring& path) const;

private:
    static Picture ofPart(HWND window, HDC source, CPoint origin, CSize size);

    int m_width;
    int m_height;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_oldBitmap = nullptr;
    std::uint32_t* m_bits = nullptr; // owned by the bitmap; rows from the top, 0x00RRGGBB
};

/// Whether the colours `one` and `other` differ by no more than `tolerance` in each component.
bool isNear(COLORREF one, COLORREF other, int tolerance);

/// What IsColour is made of.
MATCHER_P2(IsColourWithin, colour, tolerance, "is the colour " + ::testing::PrintToString(colour))
{
    *result_listener << "red " << int{GetRValue(arg)} << ", green " << int{GetGValue(arg)} << ", blue "
                     << int{GetBValue(arg)};
    return isNear(arg, colour, tolerance);
}

/// A matcher: the colour is `colour`, each component within `tolerance`. As
/// `EXPECT_THAT(picture.at(3, 4), IsColour(RGB(255, 0, 0)))`.
inline auto IsColour(COLORREF colour, int tolerance = 0)
{
    return IsColourWithin(colour, tolerance);
}

} // namespace ovo::testkit
