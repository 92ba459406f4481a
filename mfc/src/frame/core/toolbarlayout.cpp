#include "toolbarlayout.h"

#include <algorithm>
#include <vector>

namespace afxdetail
{

namespace
{

/// A separator that ends a row is drawn lying down, a little thinner than it is wide.
int gapOf(const ToolBarItem& separator)
{
    return separator.width * 2 / 3;
}

/// The item that ends the row beginning at `first`: the last one that fits, or the last separator before it.
std::size_t endOfRow(std::span<const ToolBarItem> items, std::size_t first, int width)
{
    int right = 0;
    std::size_t lastThatFits = first;
    std::size_t lastSeparator = items.size();
    bool hasButton = false;
    for (std::size_t i = first; i < items.size(); ++i) {
        if (items[i].hidden)
            continue;
        right += items[i].width;
        // A separator may overhang: at the end of a row it takes no width.
        if (hasButton && right > width && !items[i].separator)
            return lastSeparator < items.size() ? lastSeparator : lastThatFits;
        lastThatFits = i;
        if (items[i].separator && hasButton)
            lastSeparator = i;
        hasButton = hasButton || !items[i].separator;
    }
    return items.size();
}

} // namespace

void wrapItems(std::span<ToolBarItem> items, int width)
{
    for (ToolBarItem& item : items)
        item.lastOfRow = false;
    for (std::size_t first = 0; first < items.size();) {
        const std::size_t last = endOfRow(items, first, width);
        if (last >= items.size())
            return;
        items[last].lastOfRow = true;
        first = last + 1;
    }
}

Extent extentOf(std::span<const ToolBarItem> items, int rowHeight)
{
    Extent extent;
    int right = 0;
    bool inRow = false;
    for (const ToolBarItem& item : items) {
        if (item.hidden)
            continue;
        if (!inRow)
            extent.height += rowHeight;
        inRow = !item.lastOfRow;
        if (item.lastOfRow && item.separator)
            extent.height += gapOf(item);
        else
            extent.width = std::max(extent.width, right += item.width);
        if (item.lastOfRow)
            right = 0;
    }
    return extent;
}

int widthForHeight(std::span<const ToolBarItem> items, int rowHeight, int height)
{
    std::vector<ToolBarItem> trial(items.begin(), items.end());
    const auto extentAt = [&](int width) {
        wrapItems(trial, width);
        return extentOf(trial, rowHeight);
    };
    // The wider, the lower: look for the width where the rows begin to fit.
    int high = 0;
    for (const ToolBarItem& item : items)
        high += item.width;
    int low = 0;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (extentAt(middle).height <= height)
            high = middle;
        else
            low = middle + 1;
    }
    return extentAt(low).width;
}

} // namespace afxdetail
