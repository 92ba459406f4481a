/// Not exported: finds the places of nodes among the children of an insertion point, and inserts them there.
#pragma once

#include <ovoui/tree/ChildSearch.h>
#include <ovoui/tree/TreeState.h>

#include <vector>

class MultiTreeCtrl::Inserter
{
public:
    using Place = ovoui::tree::Children::Place;

    Inserter(MultiTreeCtrl& tree, InsertionPoint& where);

    /// Behind `position` children; a negative or too large position appends.
    HTREEITEM insertAt(Node& node, int position);

    /// Before the first child that sorts behind it. If one sorts the same, that is the result, and
    /// `duplicate` becomes true.
    HTREEITEM insertSorted(Node& node, bool& duplicate);

    /// Nodes as a block behind `position` children. `items` gets the items; null nodes are left out.
    void insertBlock(const std::vector<Node*>& nodes, int position, std::vector<HTREEITEM>& items);

    /// Nodes where they sort. `items` gets what insertSorted gives for each.
    void insertSorted(const std::vector<Node*>& nodes, std::vector<HTREEITEM>& items);

private:
    struct Step;

    void rememberChildren();
    HTREEITEM firstChild() const;
    HTREEITEM insertInOrder(Node& node, Place place);
    HTREEITEM insertWalking(Node& node, bool& duplicate);
    bool plan(const std::vector<Node*>& nodes, std::vector<Step>& steps);
    void carryOut(const std::vector<Node*>& nodes, const std::vector<Step>& steps,
                  std::vector<HTREEITEM>& items);

    MultiTreeCtrl& m_tree;
    InsertionPoint& m_where;
    const HTREEITEM m_parent;
    const std::shared_ptr<State> m_state;
};
