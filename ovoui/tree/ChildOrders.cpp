#include <ovoui/tree/ChildOrders.h>

namespace ovoui::tree
{

std::shared_ptr<ChildOrder> ChildOrders::find(HTREEITEM parent) const
{
    const auto found = m_orders.find(parent);
    return found == m_orders.end() ? nullptr : found->second;
}

void ChildOrders::remember(HTREEITEM parent, Children children)
{
    m_orders.insert_or_assign(parent, std::make_shared<ChildOrder>(ChildOrder{std::move(children)}));
}

void ChildOrders::distrust(HTREEITEM parent)
{
    if (const std::shared_ptr<ChildOrder> order = find(parent))
        order->sortedBy = nullptr;
}

void ChildOrders::distrustAll()
{
    for (auto& [parent, order] : m_orders)
        order->sortedBy = nullptr;
}

} // namespace ovoui::tree
