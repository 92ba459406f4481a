#include <ovoui/tree/MultiTreeCtrl.h>

MultiTreeCtrl::Node& MultiTreeCtrl::iterator::operator*() const
{
    return *m_tree->node(m_item);
}

OVO::Handle<MultiTreeCtrl::Node> MultiTreeCtrl::iterator::operator->() const
{
    return m_tree->node(m_item);
}

MultiTreeCtrl::iterator::operator OVO::Handle<MultiTreeCtrl::Node>() const
{
    return m_tree ? m_tree->node(m_item) : nullptr;
}

MultiTreeCtrl::iterator& MultiTreeCtrl::iterator::operator++()
{
    if (m_item)
        m_item = m_selectedOnly ? m_tree->nextSelected(m_item) : m_tree->nextItem(m_item, true);
    return *this;
}

MultiTreeCtrl::iterator MultiTreeCtrl::iterator::operator++(int)
{
    const iterator before = *this;
    ++*this;
    return before;
}

MultiTreeCtrl::iterator& MultiTreeCtrl::iterator::setSelect(bool selected)
{
    m_selectedOnly = selected;
    return *this;
}
