#include <ovoui/tree/TreeState.h>

#include <ovoui/tree/ItemTracker.h>

void MultiTreeCtrl::State::structureChanged()
{
    ++structure;
    appended = nullptr;
    selection.disturb();
}

void MultiTreeCtrl::State::forgetItem(HTREEITEM item)
{
    structureChanged();
    selection.drop(item);
    children.forgetAll();
    std::erase_if(postponed, [item](const Postponed& each) { return each.item == item; });
    if (edited == item)
        edited = nullptr;
    if (editAgain == item)
        editAgain = nullptr;
    if (countedItem == item)
        countedItem = nullptr;
    for (ItemWatcher* watcher : watchers)
        watcher->itemGoes(item);
}

void MultiTreeCtrl::State::forgetAll()
{
    structureChanged();
    selection.clear();
    children.forgetAll();
    postponed.clear();
    edited = nullptr;
    editAgain = nullptr;
    redraws = true;
    rowsLost = false;
    markShown = false;
    countedItem = nullptr;
    for (ItemWatcher* watcher : watchers)
        watcher->allGo();
}
