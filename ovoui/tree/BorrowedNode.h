/// Not exported: a node that is handed over to the tree, while the tree works on it.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

namespace ovoui::tree
{

/// Holds a reference to a node that may have none, so that handles made and dropped meanwhile do not destroy
/// it. At the end the node is as before, unless it was given up.
class BorrowedNode
{
public:
    explicit BorrowedNode(const MultiTreeCtrl::Node& node)
        : m_node(&node)
    {
        m_node->addRef();
    }
    ~BorrowedNode()
    {
        if (m_node)
            m_node->giveBack();
    }
    BorrowedNode(BorrowedNode&& other) noexcept
        : m_node(std::exchange(other.m_node, nullptr))
    {
    }
    BorrowedNode& operator=(BorrowedNode&&) = delete;

    /// The node has no place in the tree: it is destroyed, unless it is held elsewhere.
    void giveUp()
    {
        if (const MultiTreeCtrl::Node* node = std::exchange(m_node, nullptr))
            node->release();
    }

private:
    const MultiTreeCtrl::Node* m_node;
};

} // namespace ovoui::tree
