/// Not exported: the walk over the children of an insertion point that finds the place of a node.
#pragma once

#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/TreeState.h>

/// Stands at a child of one item, or behind the last. The host's comparison may delete the child, others, the
/// parent, the tree: the walk goes on with what is left.
class MultiTreeCtrl::ChildWalk
{
public:
    /// `parent` is TVI_ROOT or an item.
    ChildWalk(MultiTreeCtrl& tree, HTREEITEM parent)
        : m_state(tree.m_state)
        , m_parent(m_state, parent)
        , m_child(m_state, m_state->view.firstChild(parent), Tracker::WhenDeleted::NextSibling)
    {
    }

    /// Whether the tree and the parent are still there.
    bool usable() const { return m_state->usable() && m_parent; }
    HTREEITEM parent() const { return m_parent.item(); }

    bool atEnd() const { return !m_child; }
    HTREEITEM child() const { return m_child.item(); }
    void advance() { m_child.moveTo(m_state->view.nextSibling(m_child.item())); }
    void moveTo(HTREEITEM child) { m_child.moveTo(child); }

    /// Compares the child with a node. Positive behind the last one; negative too for a child without a node.
    int compare(const InsertionPoint& where, const Node& node);

    /// Goes to the first child that does not sort before a node. True when it sorts the same. When the walk
    /// is not usable any more, false.
    bool findPlace(const InsertionPoint& where, const Node& node);

    /// What to insert behind, to come in front of the child.
    HTREEITEM insertBehind() const;

private:
    const std::shared_ptr<State> m_state;
    Tracker m_parent;
    Tracker m_child;
};
