/// Not exported: erasing the selected nodes, as the user wants it.
#pragma once

#include <ovoui/tree/TreeState.h>

class MultiTreeCtrl::Erasing
{
public:
    explicit Erasing(MultiTreeCtrl& tree)
        : m_tree(tree)
    {
    }

    /// Asks, and erases. False when there was nothing to erase, or the user did not want it.
    bool run() const;

private:
    class Drag;
    using Nodes = std::vector<OVO::Handle<Node>>;

    bool isConfirmed(const Nodes& nodes) const;
    void erase(const Nodes& nodes) const;

    MultiTreeCtrl& m_tree;
};
