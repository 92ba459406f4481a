// Where the parts of the tree are put together.
#include <ovoui/tree/TreeState.h>

#include <ovoui/tree/Concern.h>
#include <ovoui/tree/ItemTracker.h>

#include <algorithm>

// The label editor is closed before anything is deleted; children go before what was postponed.
MultiTreeCtrl::State::State(MultiTreeCtrl& owner)
    : SharedState(owner)
    , view(*this)
    , labelEdit(make<LabelEdit>())
    , selection(make<Selection>())
    , insertion(make<Insertion>())
    , mouse(make<Mouse>())
    , keyboard(make<Keyboard>())
    , expansion(make<Expansion>())
    , deletion(make<Deletion>())
    , dropping(make<Dropping>())
    , commands(make<Commands>())
    , band(make<Band>())
    , checkBoxes(make<CheckBoxConcern>())
    , find(make<Find>())
    , filter(make<Filter>())
{
}

MultiTreeCtrl::State::~State() = default;

void MultiTreeCtrl::State::forgetItem(HTREEITEM item)
{
    ++structure;
    std::erase_if(doomed, [item](const Doomed& each) { return each.item == item; });
    if (control())
        for (Concern* concern : listeners)
            concern->itemGoes(item);
    for (ItemWatcher* watcher : watchers)
        watcher->itemGoes(item);
}

void MultiTreeCtrl::State::forgetAll()
{
    ++structure;
    doomed.clear();
    redraws = true;
    rowsLost = false;
    for (Concern* concern : listeners)
        concern->allGo();
    for (ItemWatcher* watcher : watchers)
        watcher->allGo();
}

void MultiTreeCtrl::State::takeOver()
{
    for (Concern* concern : listeners)
        concern->takesOver();
}

void MultiTreeCtrl::State::forgetChildren(HTREEITEM parent)
{
    for (Concern* concern : listeners)
        concern->childrenGo(parent);
}

void MultiTreeCtrl::State::meetChildren(HTREEITEM parent)
{
    for (Concern* concern : listeners)
        if (usable())
            concern->childrenCame(parent);
}

void MultiTreeCtrl::State::windowMade()
{
    for (Concern* concern : listeners)
        concern->windowMade();
}

bool MultiTreeCtrl::State::takesKey(UINT message, UINT key)
{
    return std::any_of(listeners.begin(), listeners.end(),
                       [&](Concern* concern) { return concern->takesKey(message, key); });
}

// The control's operations

void MultiTreeCtrl::setExtras(unsigned extras)
{
    const std::shared_ptr<State> state = m_state;
    state->extras = extras;
    for (Concern* concern : state->listeners)
        concern->extrasChange();
}

unsigned MultiTreeCtrl::extras() const
{
    return m_state->extras;
}
