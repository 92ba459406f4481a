#include <ovoui/tree/UnreportedNodes.h>

using ovoui::tree::ToBeDeleted;

MultiTreeCtrl::UnreportedNodes::UnreportedNodes(State& state, const Message& message)
    : m_state(state)
{
    const ToBeDeleted what = message.toBeDeleted();
    if (what == ToBeDeleted::Nothing || CWnd::FromHandlePermanent(::GetParent(state.control()->m_hWnd)))
        return;
    if (what == ToBeDeleted::Item)
        collect(message.item());
    else
        for (const HTREEITEM child :
             state.view.childrenOf(what == ToBeDeleted::Children ? message.item() : TVI_ROOT))
            collect(child);
}

void MultiTreeCtrl::UnreportedNodes::collect(HTREEITEM item)
{
    if (OVO::Handle<Node> node = m_state.view.node(item))
        m_nodes.push_back(std::move(node));
    for (const HTREEITEM child : m_state.view.childrenOf(item))
        collect(child);
}

void MultiTreeCtrl::UnreportedNodes::release()
{
    for (const OVO::Handle<Node>& node : m_nodes) {
        const HTREEITEM item = std::exchange(node->m_hTreeItem, nullptr);
        if (!item)
            continue;
        m_state.forgetItem(item);
        node->release();
    }
}
