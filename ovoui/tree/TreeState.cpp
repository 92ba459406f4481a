// Where the parts of the tree are put together.
#include <ovoui/tree/TreeState.h>

#include <ovoui/tree/Commands.h>
#include <ovoui/tree/Deletion.h>
#include <ovoui/tree/Dropping.h>
#include <ovoui/tree/Expansion.h>
#include <ovoui/tree/Insertion.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Keyboard.h>
#include <ovoui/tree/LabelEdit.h>
#include <ovoui/tree/Mouse.h>
#include <ovoui/tree/Selection.h>

// The label editor is closed before anything is deleted; children go before what was postponed.
MultiTreeCtrl::State::State(MultiTreeCtrl& owner)
    : SharedState(owner)
    , view(*this)
    , labelEdit(std::make_unique<LabelEdit>(*this))
    , selection(std::make_unique<Selection>(*this))
    , insertion(std::make_unique<Insertion>(*this))
    , mouse(std::make_unique<Mouse>(*this))
    , keyboard(std::make_unique<Keyboard>(*this))
    , expansion(std::make_unique<Expansion>(*this))
    , deletion(std::make_unique<Deletion>(*this))
    , dropping(std::make_unique<Dropping>(*this))
    , commands(std::make_unique<Commands>(*this))
    , listeners{labelEdit.get(), selection.get(), insertion.get(), mouse.get(),
                expansion.get(), deletion.get(),  dropping.get()}
{
}

MultiTreeCtrl::State::~State() = default;

std::vector<HTREEITEM> MultiTreeCtrl::State::selectedItems() const
{
    return selection->items();
}

std::vector<OVO::Handle<MultiTreeCtrl::Node>> MultiTreeCtrl::State::selectedNodes() const
{
    return selection->nodes();
}

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
