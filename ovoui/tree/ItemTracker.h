/// Not exported: following items across calls into the host's code.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

#include <memory>
#include <unordered_set>
#include <vector>

/// Hears of every item of a tree that is deleted, while it lives. A handle alone is not enough to know an
/// item by: the platform gives that of a deleted item to the next one.
class MultiTreeCtrl::ItemWatcher
{
public:
    ItemWatcher(const ItemWatcher&) = delete;
    ItemWatcher& operator=(const ItemWatcher&) = delete;

protected:
    explicit ItemWatcher(std::shared_ptr<State> state);
    ~ItemWatcher();

    State& state() const { return *m_state; }

private:
    friend struct State;

    /// The item goes, but can still be asked about.
    virtual void itemGoes(HTREEITEM item) = 0;
    virtual void allGo() = 0;

    const std::shared_ptr<State> m_state;
};

/// Stands at an item. When that is deleted, it stands at nothing, or at another one.
class MultiTreeCtrl::Tracker final : public ItemWatcher
{
public:
    enum class WhenDeleted
    {
        Forget,
        NextInTree, ///< in the order of the tree, but not below it
        NextSibling,
        PreviousSibling ///< TVI_FIRST when there is none
    };

    /// `item` may be null or one of the tree view's TVI_ markers.
    Tracker(std::shared_ptr<State> state, HTREEITEM item, WhenDeleted whenDeleted = WhenDeleted::Forget);

    HTREEITEM item() const { return m_item; }
    explicit operator bool() const { return m_item != nullptr; }

    /// Whether it had to move, or lost its item, since it was last placed.
    bool moved() const { return m_moved; }
    void moveTo(HTREEITEM item);

private:
    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    HTREEITEM substitute() const;

    HTREEITEM m_item;
    WhenDeleted m_whenDeleted;
    bool m_moved = false;
};

/// Items that are gone through while the host may delete some of them.
class MultiTreeCtrl::ItemList final : public ItemWatcher
{
public:
    ItemList(std::shared_ptr<State> state, std::vector<HTREEITEM> items);

    /// Calls `act` for each item that is still there, as long as the tree is usable.
    template <class Act>
    void forEach(Act&& act);

    const std::vector<HTREEITEM>& items() const { return m_items; }
    bool isGone(HTREEITEM item) const { return m_allGone || m_gone.contains(item); }

private:
    void itemGoes(HTREEITEM item) override { m_gone.insert(item); }
    void allGo() override { m_allGone = true; }

    const std::vector<HTREEITEM> m_items;
    std::unordered_set<HTREEITEM> m_gone;
    bool m_allGone = false;
};

template <class Act>
void MultiTreeCtrl::ItemList::forEach(Act&& act)
{
    for (const HTREEITEM item : m_items)
        if (!isGone(item))
            act(item);
}
