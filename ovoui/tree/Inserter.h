/// Not exported: finds the places of nodes among the children of an insertion point, and inserts them there.
#pragma once

#include <ovoui/tree/BorrowedNode.h>
#include <ovoui/tree/ChildWalk.h>

#include <vector>

/// One insertion, or one of a batch. All that is asked of the host may change the tree, and destroy it.
class MultiTreeCtrl::Inserter
{
public:
    Inserter(MultiTreeCtrl& tree, InsertionPoint& where);

    /// Whether the place takes nodes; asks the host.
    bool accepts();

    /// Inserts where the node belongs: sorted, or behind `position` children, of which a negative or too
    /// large number appends. If a child sorts the same, that is the result, and `unused` becomes true. It
    /// does too when the place has gone.
    HTREEITEM insert(Node& node, int position, bool& unused);

    /// Inserts nodes; null ones are left out. `items` gets what insert() gives for each, and `unused`
    /// likewise.
    void insert(const std::vector<Node*>& nodes, int position, std::vector<HTREEITEM>& items,
                std::vector<bool>& unused);

private:
    HTREEITEM insertWalking(Node& node, bool& unused);
    HTREEITEM insertHalving(Node& node, bool& unused);
    HTREEITEM insertAt(Node& node, int position);
    HTREEITEM insertBefore(Node& node, ChildWalk& walk);

    MultiTreeCtrl& m_tree;
    const std::shared_ptr<State> m_state;
    InsertionPoint& m_where;
    OVO::Handle<Node> m_placeHeld; ///< the place, if it is a node
    Tracker m_parent;
    bool m_sorted = false;
};
