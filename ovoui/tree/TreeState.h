/// Not exported: what the tree keeps beside the fields of its class. It outlives the control while a call
/// into the host's code is under way.
#pragma once

#include <ovoui/frame/SharedState.h>
#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/PlatformHolds.h>
#include <ovoui/tree/View.h>

#include <memory>
#include <vector>

struct MultiTreeCtrl::State : ovoui::frame::SharedState<MultiTreeCtrl>
{
    explicit State(MultiTreeCtrl& owner);
    ~State();

    std::vector<HTREEITEM> selectedItems() const; ///< in no order
    /// Handles to the selected nodes, in the order of the tree.
    std::vector<OVO::Handle<Node>> selectedNodes() const;

    /// Nothing is kept of an item that the tree view is about to delete.
    void forgetItem(HTREEITEM item);
    /// The window is gone.
    void forgetAll();
    /// The control has taken over a tree view that may have items already.
    void takeOver();

    const View view;

    // The concerns
    const std::unique_ptr<LabelEdit> labelEdit;
    const std::unique_ptr<Selection> selection;
    const std::unique_ptr<Insertion> insertion;
    const std::unique_ptr<Mouse> mouse;
    const std::unique_ptr<Keyboard> keyboard;
    const std::unique_ptr<Expansion> expansion;
    const std::unique_ptr<Deletion> deletion;
    const std::unique_ptr<Dropping> dropping;
    const std::unique_ptr<Commands> commands;
    const std::vector<Concern*> listeners; ///< those that hear of messages and items, in this order

    // Calls of the tree view's own procedure (Gate.cpp)
    int nativeCalls = 0;
    std::vector<OVO::Handle<Node>> released; ///< nodes of deleted items, to be let go when the call is over
    ovoui::tree::PlatformHolds holds;        ///< what the tree view goes on working with
    bool redraws = true;                     ///< as WM_SETREDRAW was last told
    bool rowsLost = false;                   ///< the rows are out of order (RowKeeper.cpp)

    // Items whose nodes were let go already, to be deleted when the tree view has finished (Deletion.cpp)
    struct Doomed
    {
        HTREEITEM item;
        bool parentClosed; ///< the parent's has-children value is the node's business
    };
    std::vector<Doomed> doomed;

    /// Those who want to hear of every deleted item for a while, the last come last.
    std::vector<ItemWatcher*> watchers;

    unsigned structure = 0; ///< grows with every item that comes, goes or changes its place
};
