/// Not exported: which items of a tree may be selected, so that those that are can be found without a walk
/// over all.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace ovoui::tree
{

/// Every selected item is in the record, except the caret: the tree view selects and deselects that one
/// itself. Items that were deselected may still be in it; the tree looks at each when it asks, and drops
/// them.
class SelectionRecord
{
public:
    using Items = std::unordered_set<HTREEITEM>;

    const Items& items() const { return m_items; }

    void add(HTREEITEM item);
    void drop(HTREEITEM item) { m_items.erase(item); }
    void clear();

    /// The selection or the order of items may have changed in a way that the record is not told in detail.
    void disturb() { ++m_changes; }

    /// Grows with everything that may make an order of the selected items wrong.
    unsigned changes() const { return m_changes; }

    /// Whether the record holds all there is to know. Not so for a tree view that had items before it was
    /// taken over.
    bool complete() const { return m_complete; }
    void setComplete(bool complete) { m_complete = complete; }

private:
    Items m_items;
    unsigned m_changes = 0;
    bool m_complete = true;
};

/// The selected items in the order of the tree, as long as nothing changes.
class SelectionOrder
{
public:
    void remember(std::vector<HTREEITEM> items, unsigned changes);

    bool holds(unsigned changes) const { return m_known && changes == m_changes; }

    /// The item behind `item`, null behind the last. False when `item` is not among them.
    bool following(HTREEITEM item, HTREEITEM& next) const;

private:
    std::vector<HTREEITEM> m_items;
    unsigned m_changes = 0;
    bool m_known = false;
    mutable std::size_t m_last = 0; ///< where the last question was about
};

} // namespace ovoui::tree
