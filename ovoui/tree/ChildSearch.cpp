#include <ovoui/tree/ChildSearch.h>

namespace ovoui::tree
{

namespace
{

/// So many children are compared one by one, whatever is known of their order.
constexpr std::size_t kFewChildren = 64;

} // namespace

ChildSearch::ChildSearch(MultiTreeCtrl& tree, MultiTreeCtrl::InsertionPoint& where, ChildOrders& orders)
    : m_tree(tree)
    , m_where(where)
    , m_orders(orders)
    , m_parent(where.hTreeItem())
    , m_order(orders.find(m_parent))
{
}

int ChildSearch::compare(const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b)
{
    const int result = m_where.compareChildren(m_tree, a, b);
    if (m_orders.find(m_parent) != m_order)
        m_reliable = false;
    return result;
}

bool ChildSearch::inOrder()
{
    if (m_order->sortedBy == &m_where)
        return true;
    const Child* former = nullptr;
    bool good = true;
    m_order->children.visit([&](const Child& child) {
        good = child.node && (!former || (compare(*former->node, *child.node) <= 0 && m_reliable));
        former = &child;
        return good;
    });
    if (good)
        m_order->sortedBy = &m_where;
    return good;
}

Children::Place ChildSearch::find(const MultiTreeCtrl::Node& node)
{
    m_equal = nullptr;
    const bool many = m_order->children.size() > kFewChildren;
    return many && inOrder() ? byHalving(node) : byWalking(node);
}

Children::Place ChildSearch::byHalving(const MultiTreeCtrl::Node& node)
{
    const Children::Place place = m_order->children.partitionPoint(
        [&](const Child& child) { return m_reliable && compare(*child.node, node) < 0; });
    const Child* child = m_order->children.after(place);
    if (m_reliable && child && compare(*child->node, node) == 0)
        m_equal = child->item;
    return place;
}

Children::Place ChildSearch::byWalking(const MultiTreeCtrl::Node& node)
{
    std::size_t index = 0;
    m_order->children.visit([&](const Child& child) {
        const int result = child.node && m_reliable ? compare(*child.node, node) : -1;
        if (result == 0)
            m_equal = child.item;
        index += result < 0 ? 1 : 0;
        return result < 0 && m_reliable;
    });
    return m_order->children.placeAt(index);
}

} // namespace ovoui::tree
