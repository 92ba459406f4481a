#include <ovoui/toolbar/core/ButtonRows.h>

#include <algorithm>
#include <cstddef>

namespace ovoui::toolbar
{

namespace
{

bool isGap(const RowItem& item)
{
    return item.separator && !item.control;
}

/// One row while it is filled from left to right.
class Row
{
public:
    explicit Row(int room)
        : m_room(room)
    {
    }

    /// False when the item does not fit any more.
    bool take(std::size_t index, const RowItem& item)
    {
        const bool overhangs = item.width > m_room - m_right;
        if (m_filled && overhangs && !isGap(item))
            return false;
        m_right = overhangs ? m_room : m_right + item.width;
        m_last = index;
        if (isGap(item) && m_filled)
            m_lastGap = index;
        m_filled = m_filled || !isGap(item);
        return true;
    }

    /// Where to break: only at a gap that has buttons before it.
    std::size_t end() const { return m_lastGap != kNone ? m_lastGap : m_last; }

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    int m_room;
    int m_right = 0;
    bool m_filled = false;
    std::size_t m_last = 0;
    std::size_t m_lastGap = kNone;
};

} // namespace

void splitRows(std::span<RowItem> items, int width)
{
    for (RowItem& item : items)
        item.endsRow = false;
    Row row(width);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].hidden || row.take(i, items[i]))
            continue;
        i = row.end();
        items[i].endsRow = true;
        row = Row(width);
    }
}

void splitIntoColumn(std::span<RowItem> items)
{
    splitRows(items, 0);
}

int gapBelow(int separatorWidth)
{
    return separatorWidth * 2 / 3;
}

RowsSize sizeOfRows(std::span<const RowItem> items, int rowHeight)
{
    RowsSize size;
    int right = 0;
    bool inRow = false;
    for (const RowItem& item : items) {
        if (item.hidden)
            continue;
        if (!inRow)
            size.height += rowHeight;
        if (item.endsRow && isGap(item))
            size.height += gapBelow(item.width);
        else
            right += item.width;
        size.width = std::max(size.width, right);
        inRow = !item.endsRow;
        if (item.endsRow)
            right = 0;
    }
    return size;
}

int widthForHeight(std::span<const RowItem> items, int rowHeight, int height)
{
    std::vector<RowItem> trial(items.begin(), items.end());
    const auto sizeAt = [&](int width) {
        splitRows(trial, width);
        return sizeOfRows(trial, rowHeight);
    };
    int wide = sizeAt(kAnyWidth).width;
    int narrow = 0;
    while (narrow < wide) {
        const int middle = narrow + (wide - narrow) / 2;
        if (sizeAt(middle).height <= height)
            wide = middle;
        else
            narrow = middle + 1;
    }
    return sizeAt(narrow).width;
}

} // namespace ovoui::toolbar
