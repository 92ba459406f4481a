#include <ovoui/colour/core/CellLayout.h>

#include <ovoui/colour/core/Round.h>
#include <ovoui/frame/core/BoxParts.h>

#include <algorithm>

namespace ovoui::colour
{

namespace
{

constexpr double kGapPart = 0.2; // of a cell with its gap

struct Span
{
    int from;
    int to;
};

/// The place of one of `count` equal cells between two ends.
Span spanOf(int index, int count, int from, int to)
{
    const double pitch = (to - from) / (count - kGapPart);
    const double start = from + index * pitch;
    return {rounded(start), rounded(start + (1 - kGapPart) * pitch)};
}

} // namespace

frame::Box CellLayout::cell(int index) const
{
    const Span across = spanOf(index % columns, columns, area.left, area.right);
    const Span down = spanOf(index / columns, std::max(1, rows()), area.top, area.bottom);
    return {across.from, down.from, across.to, down.to};
}

int CellLayout::at(int x, int y) const
{
    for (int index = 0; index < count; ++index)
        if (contains(cell(index), x, y))
            return index;
    return -1;
}

DropLayout::DropLayout(int count, int columns, bool hasLine, const Lengths& lengths)
{
    cells.count = count;
    cells.columns = std::max(1, columns);
    const auto extent = [&](int number) {
        return number == 0 ? 0 : rounded(lengths.cell * (number - kGapPart) / (1 - kGapPart));
    };
    const int across = extent(cells.columns);
    const int down = extent(cells.rows());
    width = std::max(across, hasLine ? lengths.lineWidth : 0) + 2 * lengths.margin;
    height = down + 2 * lengths.margin + (hasLine ? lengths.line + lengths.margin : 0);
    cells.area = {lengths.margin, lengths.margin, lengths.margin + across, lengths.margin + down};
    if (hasLine)
        line = {lengths.margin, height - lengths.margin - lengths.line, width - lengths.margin,
                height - lengths.margin};
}

int DropLayout::last() const
{
    return line.height() > 0 ? cells.count : cells.count - 1;
}

frame::Box DropLayout::place(int index) const
{
    return index == cells.count ? line : cells.cell(index);
}

int DropLayout::at(int x, int y) const
{
    return contains(line, x, y) ? cells.count : cells.at(x, y);
}

int DropLayout::after(int index, WheelKey key) const
{
    if (index < 0) // nothing is marked yet
        return key == WheelKey::Up || key == WheelKey::End ? last() : 0;
    if (index == cells.count) {
        const bool back = key == WheelKey::Up || key == WheelKey::Left || key == WheelKey::PageUp;
        return key == WheelKey::Home ? 0 : back ? std::max(0, cells.count - 1) : index;
    }
    if (key == WheelKey::End)
        return last();
    const int next = cellAfter(index, cells.count, cells.columns, key);
    const bool onwards = key == WheelKey::Down || key == WheelKey::Right || key == WheelKey::PageDown;
    const bool toLine = next == index && onwards && last() == cells.count;
    return toLine ? last() : next;
}

frame::Box dropPlace(const frame::Box& button, int width, int height, const frame::Box& workArea)
{
    const int top = frame::opensUpwards(button, height, workArea) ? button.top - height : button.bottom;
    return frame::movedInto({button.left, top, button.left + width, top + height}, workArea);
}

} // namespace ovoui::colour
