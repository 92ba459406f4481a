/// Not exported: the items of the tree as the platform's tree view has them.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

/// Asks the tree view, walks over its items, and makes the few changes that the parts of the tree are built
/// from. To be used while the tree is usable.
class MultiTreeCtrl::View
{
public:
    explicit View(const State& state)
        : m_state(state)
    {
    }

    // Questions. They go to the tree view's own procedure at once.
    LRESULT ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    /// `relation` is one of TVGN_.
    HTREEITEM next(UINT relation, HTREEITEM item = nullptr) const;
    HTREEITEM caret() const { return next(TVGN_CARET); }
    UINT stateOf(HTREEITEM item) const;
    bool isSelected(HTREEITEM item) const { return (stateOf(item) & TVIS_SELECTED) != 0; }
    bool isOpen(HTREEITEM item) const { return (stateOf(item) & TVIS_EXPANDED) != 0; }
    bool isEditing() const { return ask(TVM_GETEDITCONTROL) != 0; }
    /// What stands behind an item, as the tree view keeps it; 0 for an item without a node.
    LPARAM dataOf(HTREEITEM item) const;
    OVO::Handle<Node> node(HTREEITEM item) const;
    /// An item as notifications carry it: handle, state, parameter. Empty for null.
    TVITEM describe(HTREEITEM item) const;

    // Changes. They go the way of the host's messages.
    void setState(HTREEITEM item, UINT state, UINT mask) const;
    void setSelected(HTREEITEM item, bool selected) const;
    /// False when the parent refuses the change.
    bool setCaret(HTREEITEM item) const;
    void remove(HTREEITEM item) const;
    /// Takes the node from an item, whatever becomes of that. Tells no one.
    void clearData(HTREEITEM item) const;

    /// Sends the parent a notification of the tree's own.
    void notifyParent(NMHDR& header) const;

    // Items in the order of the tree, closed ones and what is in them too. Those that wait for their deletion
    // are left out.
    HTREEITEM first() const;
    HTREEITEM nextItem(HTREEITEM item, bool intoChildren) const;
    HTREEITEM firstChild(HTREEITEM parent) const; ///< of an item or TVI_ROOT
    HTREEITEM nextSibling(HTREEITEM item) const;
    HTREEITEM previousSibling(HTREEITEM item) const;
    bool isDoomed(HTREEITEM item) const; ///< whether it, or an item above it, waits for its deletion
    bool isBelow(HTREEITEM item, HTREEITEM ancestor) const;
    /// All children of an item or TVI_ROOT, those that wait for their deletion among them.
    std::vector<HTREEITEM> childrenOf(HTREEITEM item) const;

    // Displayed items: those in the list that one scrolls through
    bool isDisplayed(HTREEITEM item) const;
    /// The item itself, or the outermost closed one that it is in.
    HTREEITEM displayedFor(HTREEITEM item) const;
    HTREEITEM displayedAbove(HTREEITEM item) const;
    HTREEITEM displayedBelow(HTREEITEM item) const;
    HTREEITEM getLastItem() const { return next(TVGN_LASTVISIBLE); }

private:
    HTREEITEM afterAny(HTREEITEM item, bool intoChildren) const;
    MultiTreeCtrl& tree() const;

    const State& m_state;
};
