// Internal: rows of bars along one side of a frame. Plain values, no windows.
//
// "Along" is the direction of the side, from the left or the top; "across" goes from the frame's edge inwards
// at the top and the left, outwards at the others. So the same rules hold on all four sides.
#pragma once

#include <cstddef>
#include <vector>

namespace afxdetail
{

/// What of a row can still be seen and taken hold of, however little room there is.
inline constexpr int kLeastLength = 16;

struct DockedBar
{
    void* bar = nullptr; ///< what the caller knows it by
    int start = 0;       ///< where along the side it wants to begin
    int length = 0;      ///< along the side
    int depth = 0;       ///< across it
    bool shown = true;
};

using DockRow = std::vector<DockedBar>;

struct DockRows
{
    std::vector<DockRow> rows;
};

struct Span
{
    int start = 0;
    int length = 0;

    int end() const { return start + length; }
    bool operator==(const Span&) const = default;
};

/// Where each bar of a row lies, in the row's order; hidden ones have no length.
///
/// Every bar begins where it wants to, or behind the one before it, which pushes it. What would reach beyond
/// the end pushes the others back. When there is not room for all, the last ones are cut, but never below the
/// least length while there is room for that.
std::vector<Span> placeRow(const DockRow& row, int room);

/// As deep as its deepest bar that is shown; 0 when none is.
int depthOf(const DockRow& row);
int depthOf(const DockRows& rows);

/// What the longest row needs, with every bar as long as it wants to be.
int lengthOf(const DockRows& rows);

struct PlacedBar
{
    void* bar = nullptr;
    Span along;
    Span across;

    bool operator==(const PlacedBar&) const = default;
};

/// All shown bars, row after row.
std::vector<PlacedBar> placeRows(const DockRows& rows, int room);

/// Where a bar is put into rows.
struct DockPlace
{
    std::size_t row = 0;
    bool newRow = false;      ///< in front of `row`, which may be the end
    std::size_t position = 0; ///< in the row, hidden bars counted

    bool operator==(const DockPlace&) const = default;
};

/// Where a bar goes that is dropped with its beginning at `start` and its middle at `across`: into the row
/// under its middle, behind the bars that begin before it; between two rows, or beyond the last one, into a
/// row of its own.
DockPlace findPlace(const DockRows& rows, int room, int start, int across);

/// Behind all rows.
DockPlace lastPlace(const DockRows& rows);

/// Where a bar is; its row is `rows.size()` when it is not there. `newRow` says that it is alone.
DockPlace placeOf(const DockRows& rows, const void* bar);

/// Puts a bar in, after taking it out where it was: `place` is one in the rows as they are before.
void insertBar(DockRows& rows, DockPlace place, const DockedBar& bar);

/// Makes where the bars of this bar's row lie what they want, so that they stay there when one of them goes.
void settleRow(DockRows& rows, const void* bar, int room);

/// Takes a bar out. A row that was only for it goes too.
void removeBar(DockRows& rows, const void* bar);

} // namespace afxdetail
