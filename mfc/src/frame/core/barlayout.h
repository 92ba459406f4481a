// Internal: how control bars share a frame. Plain values, no windows.
#pragma once

namespace afxdetail
{

/// A rectangle; right and bottom are exclusive.
struct Area
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool operator==(const Area&) const = default;
};

struct Extent
{
    int width = 0;
    int height = 0;
};

enum class Side
{
    Left,
    Top,
    Right,
    Bottom
};

inline bool isHorizontal(Side side)
{
    return side == Side::Top || side == Side::Bottom;
}

/// Cuts the strip for a bar of this size off one side of `free`, never more than there is, and gives the
/// bar's place: along the side it begins at the left or top.
Area takeStrip(Area& free, Extent size, Side side);

/// Adds a bar to what all bars together need: along the side the longest counts, across it they add up.
void addToTotal(Extent& total, const Area& place, Side side);

} // namespace afxdetail
