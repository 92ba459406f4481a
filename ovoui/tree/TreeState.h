/// Not exported: what the tree keeps beside its documented fields. It outlives the control while a call into
/// the host's code is under way.
#pragma once

#include <ovoui/tree/ChildOrders.h>
#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/SelectionRecord.h>

#include <utility>
#include <vector>

struct MultiTreeCtrl::State
{
    class Tracker;

    explicit State(MultiTreeCtrl& owner)
        : tree(&owner)
    {
    }

    /// Whether the control and its window are still there.
    bool usable() const { return tree && tree->isUsable(); }

    /// Of an item that the tree view is about to delete nothing is kept.
    void forgetItem(HTREEITEM item);
    /// The window is gone.
    void forgetAll();

    MultiTreeCtrl* tree;  ///< null once it is destroyed
    bool closing = false; ///< its destructor runs: the host's part of it is gone

    // What is selected (TreeSelection.cpp, TreeWalk.cpp)
    ovoui::tree::SelectionRecord selection;
    ovoui::tree::SelectionOrder order;

    // Where children go (TreeInsertion.cpp)
    ovoui::tree::ChildOrders children;
    HTREEITEM appendedTo = nullptr; ///< the parent of the last item that was appended
    HTREEITEM appended = nullptr;   ///< that item; null when others may have come behind it
    bool insertsInPlace = false;    ///< the insertion under way is kept in `children` by whoever makes it

    // Calls of the tree view's own procedure (TreeGate.cpp)
    int nativeCalls = 0;
    std::vector<OVO::Handle<Node>> released; ///< nodes of deleted items, to be let go when the call is over
    std::vector<HTREEITEM> opening;          ///< items that the tree view is opening or closing
    std::vector<HTREEITEM> postponed;        ///< items to be deleted when it has finished that
    bool redraws = true;                     ///< as WM_SETREDRAW was last told

    std::vector<Tracker*> trackers;

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
    unsigned deletions = 0; ///< grows with every item that goes
};

/// Keeps an eye on an item across calls into the host's code. When the item is deleted, the tracker stands at
/// nothing, or at the item behind it.
class MultiTreeCtrl::State::Tracker
{
public:
    enum class WhenDeleted
    {
        Forget,
        MoveOn ///< to the next item in the order of the tree that is not below it
    };

    Tracker(std::shared_ptr<State> state, HTREEITEM item, WhenDeleted whenDeleted = WhenDeleted::Forget);
    ~Tracker();
    Tracker(const Tracker&) = delete;
    Tracker& operator=(const Tracker&) = delete;

    HTREEITEM item() const { return m_item; }
    void moveTo(HTREEITEM item) { m_item = item; }
    explicit operator bool() const { return m_item != nullptr; }

private:
    friend struct State;

    void onDeleted(HTREEITEM item);

    std::shared_ptr<State> m_state;
    HTREEITEM m_item;
    WhenDeleted m_whenDeleted;
};
