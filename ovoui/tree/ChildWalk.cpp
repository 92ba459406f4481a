#include <ovoui/tree/ChildWalk.h>

int MultiTreeCtrl::ChildWalk::compare(const InsertionPoint& where, const Node& node)
{
    const OVO::Handle<Node> child = m_state->view.node(m_child.item());
    return child ? where.compareChildren(*m_state->control(), *child, node) : -1;
}

bool MultiTreeCtrl::ChildWalk::findPlace(const InsertionPoint& where, const Node& node)
{
    while (usable() && !atEnd()) {
        const HTREEITEM compared = m_child.item();
        const int result = compare(where, node);
        if (!usable())
            return false;
        // Deleted by the comparison: the walk stands at the next one already.
        if (m_child.item() != compared || m_child.moved()) {
            m_child.moveTo(m_child.item());
            continue;
        }
        if (result >= 0)
            return result == 0;
        advance();
    }
    return false;
}

HTREEITEM MultiTreeCtrl::ChildWalk::insertBehind() const
{
    if (atEnd())
        return TVI_LAST;
    const HTREEITEM before = m_state->view.next(TVGN_PREVIOUS, m_child.item());
    return before ? before : TVI_FIRST;
}
