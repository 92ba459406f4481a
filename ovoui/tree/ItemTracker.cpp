#include <ovoui/tree/ItemTracker.h>

#include <ovoui/tree/TreeState.h>

#include <algorithm>

MultiTreeCtrl::ItemWatcher::ItemWatcher(std::shared_ptr<State> state)
    : m_state(std::move(state))
{
    m_state->watchers.push_back(this);
}

MultiTreeCtrl::ItemWatcher::~ItemWatcher()
{
    // Nearly always the last one.
    auto& all = m_state->watchers;
    all.erase(std::next(std::find(all.rbegin(), all.rend(), this)).base());
}

MultiTreeCtrl::Tracker::Tracker(std::shared_ptr<State> state, HTREEITEM item, WhenDeleted whenDeleted)
    : ItemWatcher(std::move(state))
    , m_item(item)
    , m_whenDeleted(whenDeleted)
{
}

void MultiTreeCtrl::Tracker::moveTo(HTREEITEM item)
{
    m_item = item;
    m_moved = false;
}

void MultiTreeCtrl::Tracker::itemGoes(HTREEITEM item)
{
    if (m_item != item)
        return;
    m_item = state().usable() ? substitute() : nullptr;
    m_moved = true;
}

void MultiTreeCtrl::Tracker::allGo()
{
    m_item = nullptr;
    m_moved = true;
}

HTREEITEM MultiTreeCtrl::Tracker::substitute() const
{
    const View& view = state().view;
    switch (m_whenDeleted) {
    case WhenDeleted::NextInTree:
        return view.nextItem(m_item, false);
    case WhenDeleted::NextSibling:
        return view.nextSibling(m_item);
    case WhenDeleted::PreviousSibling: {
        const HTREEITEM former = view.previousSibling(m_item);
        return former ? former : TVI_FIRST;
    }
    default:
        return nullptr;
    }
}

MultiTreeCtrl::ItemList::ItemList(std::shared_ptr<State> state, std::vector<HTREEITEM> items)
    : ItemWatcher(std::move(state))
    , m_items(std::move(items))
{
}
