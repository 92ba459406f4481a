/// A rectangle of whole pixels. Plain values, no windows.
#pragma once

namespace ovoui::colour
{

/// `right` and `bottom` lie outside.
struct PixelRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }

    /// `left` and `top` move in by `by` pixels, and so do `right` and `bottom`.
    PixelRect inset(int by) const { return {left + by, top + by, right - by, bottom - by}; }

    bool contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

} // namespace ovoui::colour
