/// Not exported: bringing items up to date with their nodes.
#pragma once

#include <ovoui/tree/TreeState.h>

/// The redraw command: every node looks at what it stands for, and some go.
class MultiTreeCtrl::Refresh
{
public:
    explicit Refresh(MultiTreeCtrl& tree)
        : m_tree(tree)
    {
    }

    void all() const;

private:
    /// Whether the item is still there.
    bool refresh(Node& node, HTREEITEM item) const;

    MultiTreeCtrl& m_tree;
};
