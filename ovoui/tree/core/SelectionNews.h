/// What clients of accessibility are told when the selection has changed. Plain values, no windows.
#pragma once

#include <cstddef>
#include <vector>

namespace ovoui::tree
{

/// Up to this number of items that were selected or deselected are told one by one; for more, clients are
/// told to ask for the selection.
inline constexpr std::size_t kMostTold = 8;

enum class SelectionEvent
{
    Selected, ///< an item is the selected one now
    Added,    ///< an item is selected beside others
    Removed,  ///< an item is selected no more
    Within    ///< much has changed: of the tree as a whole
};

struct SelectionNews
{
    SelectionEvent event;
    std::size_t index; ///< of the item among those removed or those added; 0 for Within

    friend bool operator==(const SelectionNews&, const SelectionNews&) = default;
};

/// In the order in which it is told. `before` items were selected; of these `removed` are no more, and
/// `added` others came. That the selection passes from one item to another is told by the other one alone.
std::vector<SelectionNews> selectionNews(std::size_t before, std::size_t removed, std::size_t added);

} // namespace ovoui::tree
