#include <ovoui/tree/TreeState.h>

#include <algorithm>

void MultiTreeCtrl::State::forgetItem(HTREEITEM item)
{
    selection.drop(item);
    selection.disturb();
    children.forgetAll();
    appended = nullptr;
    ++structure;
    ++deletions;
    std::erase(postponed, item);
    if (editAgain == item)
        editAgain = nullptr;
    if (countedItem == item)
        countedItem = nullptr;
    for (Tracker* tracker : trackers)
        tracker->onDeleted(item);
}

void MultiTreeCtrl::State::forgetAll()
{
    ++structure;
    ++deletions;
    selection.clear();
    children.forgetAll();
    appended = nullptr;
    postponed.clear();
    edited = nullptr;
    editAgain = nullptr;
    redraws = true;
    markShown = false;
    countedItem = nullptr;
    for (Tracker* tracker : trackers)
        tracker->moveTo(nullptr);
}

MultiTreeCtrl::State::Tracker::Tracker(std::shared_ptr<State> state, HTREEITEM item, WhenDeleted whenDeleted)
    : m_state(std::move(state))
    , m_item(item)
    , m_whenDeleted(whenDeleted)
{
    m_state->trackers.push_back(this);
}

MultiTreeCtrl::State::Tracker::~Tracker()
{
    // Nearly always the last one.
    auto& all = m_state->trackers;
    all.erase(std::next(std::find(all.rbegin(), all.rend(), this)).base());
}

void MultiTreeCtrl::State::Tracker::onDeleted(HTREEITEM item)
{
    if (m_item != item)
        return;
    m_item = m_whenDeleted == WhenDeleted::MoveOn && m_state->usable() ? m_state->tree->nextItem(item, false)
                                                                       : nullptr;
}
