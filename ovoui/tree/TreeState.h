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
    /// The children of an item go, since it closes; or have come, since it has opened.
    void forgetChildren(HTREEITEM parent);
    void meetChildren(HTREEITEM parent);
    void windowMade();
    /// Whether one of the concerns takes a key (WM_KEYDOWN, WM_CHAR) before the rules of keys.
    bool takesKey(UINT message, UINT key);

    // For concerns that have nothing else to do with each other
    bool hasCheckBox(HTREEITEM item) const;
    void toggleCheck(HTREEITEM item);
    void toggleCaretsCheck();
    void selectByBand(CPoint press, bool ctrl);
    bool isFinding() const;

    const View view;

    // The concerns. Each is made in its own source and enters itself, so that no source knows all of them.
    template <class Part>
    std::shared_ptr<Part> make();
    std::vector<Concern*> listeners; ///< in the order in which they hear of messages and items
    const std::shared_ptr<LabelEdit> labelEdit;
    const std::shared_ptr<Selection> selection;
    const std::shared_ptr<Insertion> insertion;
    const std::shared_ptr<Mouse> mouse;
    const std::shared_ptr<Keyboard> keyboard;
    const std::shared_ptr<Expansion> expansion;
    const std::shared_ptr<Deletion> deletion;
    const std::shared_ptr<Dropping> dropping;
    const std::shared_ptr<Commands> commands;
    const std::shared_ptr<Band> band;
    const std::shared_ptr<CheckBoxConcern> checkBoxes;
    const std::shared_ptr<Find> find;
    const std::shared_ptr<Filter> filter;

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

    unsigned extras = 0; ///< what the host has asked for

    unsigned structure = 0; ///< grows with every item that comes, goes, changes its place or its node
};

template <>
std::shared_ptr<MultiTreeCtrl::LabelEdit> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Selection> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Insertion> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Mouse> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Keyboard> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Expansion> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Deletion> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Dropping> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Commands> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Band> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::CheckBoxConcern> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Find> MultiTreeCtrl::State::make();
template <>
std::shared_ptr<MultiTreeCtrl::Filter> MultiTreeCtrl::State::make();
