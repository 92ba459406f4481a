/// Placing rectangles: plain values, no windows.
#pragma once

namespace ovoui::frame
{

struct Point
{
    int x = 0;
    int y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle in pixels; right and bottom are exclusive.
struct Box
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool empty() const { return width() <= 0 || height() <= 0; }

    friend bool operator==(const Box&, const Box&) = default;
};

/// `box` moved, never resized, into `area`. What is too wide or too tall ends at the area's left or top edge
/// and hangs over at the right or bottom.
Box movedInto(const Box& box, const Box& area);

/// `box` moved by the given distances.
Box movedBy(const Box& box, int dx, int dy);

/// What both boxes have in common; all zero when that is nothing.
Box intersection(const Box& one, const Box& other);

/// Where a tip of the given size belongs to what it tells about: below it, or above it where the area has no
/// room below, with a small gap. It may hang over to the sides.
Box tipPlace(const Box& about, int width, int height, const Box& area);

/// Whether what drops from a field or a button opens above it: it does not fit below, and there is more room
/// above.
bool opensUpwards(const Box& about, int height, const Box& area);

/// A box of the given size with the centre of `area`; odd remainders are cut towards zero.
Box centredIn(const Box& area, int width, int height);

} // namespace ovoui::frame
