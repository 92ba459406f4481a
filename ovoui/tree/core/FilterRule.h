/// What a filter leaves of a tree. Plain values, no windows.
#pragma once

#include <cstddef>
#include <vector>

namespace ovoui::tree
{

/// An item of a tree, in a list in which parents come before what is below them.
struct FilteredItem
{
    std::ptrdiff_t parent; ///< its place in the list; -1 at the top level
    bool hit;
};

/// Which of the items stay: the hits, and all that they are in.
inline std::vector<bool> keptByFilter(const std::vector<FilteredItem>& items)
{
    std::vector<bool> kept(items.size());
    for (std::size_t i = items.size(); i-- > 0;) {
        kept[i] = kept[i] || items[i].hit;
        if (kept[i] && items[i].parent >= 0)
            kept[static_cast<std::size_t>(items[i].parent)] = true;
    }
    return kept;
}

} // namespace ovoui::tree
