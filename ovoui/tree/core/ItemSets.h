/// Sets of items, as vectors in ascending order without repetition. Plain values, no windows.
#pragma once

#include <ovoui/tree/core/BandFrame.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace ovoui::tree
{

template <class Item>
std::vector<Item> setOf(std::vector<Item> items)
{
    std::sort(items.begin(), items.end());
    items.erase(std::unique(items.begin(), items.end()), items.end());
    return items;
}

template <class Item>
bool isIn(const std::vector<Item>& set, Item item)
{
    return std::binary_search(set.begin(), set.end(), item);
}

/// The items that are in one of two sets, and not in both.
template <class Item>
std::vector<Item> differing(const std::vector<Item>& one, const std::vector<Item>& other)
{
    std::vector<Item> items;
    std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                  std::back_inserter(items));
    return items;
}

/// What is selected while a band touches some items. `isGone` tells of one that was selected before whether
/// it has been deleted since.
template <class Item, class IsGone>
std::vector<Item> bandSelection(const std::vector<Item>& before, const std::vector<Item>& touched, bool ctrl,
                                const IsGone& isGone)
{
    std::vector<Item> wanted;
    std::set_union(before.begin(), before.end(), touched.begin(), touched.end(), std::back_inserter(wanted));
    std::erase_if(wanted, [&](Item item) {
        const bool was = isIn(before, item) && !isGone(item);
        return !selectedByBand(was, isIn(touched, item), ctrl);
    });
    return wanted;
}

} // namespace ovoui::tree
