#include <ovoui/tree/SelectionRecord.h>

#include <algorithm>

namespace ovoui::tree
{

void SelectionRecord::add(HTREEITEM item)
{
    if (item)
        m_items.insert(item);
    disturb();
}

void SelectionRecord::clear()
{
    m_items.clear();
    m_complete = true;
    disturb();
}

void SelectionOrder::remember(std::vector<HTREEITEM> items, unsigned changes)
{
    m_items = std::move(items);
    m_changes = changes;
    m_known = true;
    m_last = 0;
}

bool SelectionOrder::following(HTREEITEM item, HTREEITEM& next) const
{
    if (m_last >= m_items.size() || m_items[m_last] != item) {
        const auto found = std::find(m_items.begin(), m_items.end(), item);
        if (found == m_items.end())
            return false;
        m_last = static_cast<std::size_t>(found - m_items.begin());
    }
    ++m_last;
    next = m_last < m_items.size() ? m_items[m_last] : nullptr;
    return true;
}

} // namespace ovoui::tree
