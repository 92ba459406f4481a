/// Not exported: what the tree keeps beside its documented fields. It outlives the control while a call into
/// the host's code is under way.
#pragma once

#include <ovoui/tree/ChildOrders.h>
#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/PlatformHolds.h>
#include <ovoui/tree/SelectionRecord.h>

#include <utility>
#include <vector>

struct MultiTreeCtrl::State
{
    explicit State(MultiTreeCtrl& owner)
        : tree(&owner)
    {
    }

    /// Whether the control and its window are still there.
    bool usable() const { return tree && tree->isUsable(); }

    /// Nothing is kept of an item that the tree view is about to delete.
    void forgetItem(HTREEITEM item);
    /// The window is gone.
    void forgetAll();
    /// Something about the order or number of items is different.
    void structureChanged();

    MultiTreeCtrl* tree;  ///< null once it is destroyed
    bool closing = false; ///< its destructor runs: the host's part of it is gone

    // What is selected (TreeSelection.cpp, TreeWalk.cpp)
    ovoui::tree::SelectionRecord selection;
    ovoui::tree::SelectionOrder order;

    // Where children go (TreeInsertion.cpp)
    bool halves = false; ///< the host keeps sorted children in order
    ovoui::tree::ChildOrders children;
    HTREEITEM appendedTo = nullptr; ///< the parent of the last item that was appended
    HTREEITEM appended = nullptr;   ///< that item; null when others may have come behind it

    // Calls of the tree view's own procedure (TreeGate.cpp)
    int nativeCalls = 0;
    std::vector<OVO::Handle<Node>> released; ///< nodes of deleted items, to be let go when the call is over
    ovoui::tree::PlatformHolds holds;        ///< what the tree view goes on working with
    bool redraws = true;                     ///< as WM_SETREDRAW was last told
    bool rowsLost = false;                   ///< the rows are out of order (RowKeeper)

    // Items whose nodes were let go already, to be deleted when the tree view has finished (TreeDeleting.cpp)
    struct Postponed
    {
        HTREEITEM item;
        bool parentClosed; ///< the parent's has-children value is the node's business
    };
    std::vector<Postponed> postponed;

    /// Those who want to hear of every deleted item, the last come last.
    std::vector<ItemWatcher*> watchers;

    // Label editing (TreeLabelEdit.cpp)
    HTREEITEM edited = nullptr; ///< while its editor is open
    HTREEITEM editAgain = nullptr;

    // Command routing (TreeCommands.cpp): what the parent is being asked
    std::vector<std::pair<UINT, int>> asking;

    // Drop marks (TreeDrop.cpp)
    bool markShown = false;
    HTREEITEM countedItem = nullptr; ///< the item whose place among its siblings was last counted
    int countedPlace = 0;
    unsigned countedVersion = 0; ///< `structure` at that time

    unsigned structure = 0; ///< grows with every item that comes, goes or changes its place
};
