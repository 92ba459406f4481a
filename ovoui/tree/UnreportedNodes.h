/// Not exported: nodes under a parent that is no window of the framework, which does not tell the control of
/// deleted items.
#pragma once

#include <ovoui/tree/Message.h>
#include <ovoui/tree/TreeState.h>

/// The nodes whose items a message may delete without a word. None where the parent tells.
class MultiTreeCtrl::UnreportedNodes
{
public:
    UnreportedNodes(State& state, const Message& message);

    /// After the message: lets go of those whose items are gone.
    void release();

private:
    void collect(HTREEITEM item);

    State& m_state;
    std::vector<OVO::Handle<Node>> m_nodes;
};
