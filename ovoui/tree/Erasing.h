/// Not exported: erasing the selected nodes, as the user wants it.
#pragma once

#include <ovoui/tree/HostCalls.h>

class MultiTreeCtrl::Erasing
{
public:
    explicit Erasing(MultiTreeCtrl& tree)
        : m_tree(tree)
        , m_host(tree)
    {
    }

    /// Asks, and erases, unless there is nothing to erase or the user does not want it.
    void run();
    /// Afterwards: tells the parent of the new selection, if there may be one, whatever was `raised`
    /// meanwhile. Raises that.
    void finish(std::exception_ptr raised) const;

private:
    class Drag;
    using Nodes = std::vector<OVO::Handle<Node>>;

    bool isConfirmed(const Nodes& nodes) const;
    void erase(const Nodes& nodes) const;

    MultiTreeCtrl& m_tree;
    const HostCalls m_host;
    bool m_begun = false; ///< the user wanted it
};
