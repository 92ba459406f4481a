/// Not exported: the rows of a tree view that loses them. See Platform::losesRows and losesFirstRow; on other
/// platforms there is nothing to do.
#pragma once

#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Message.h>
#include <ovoui/tree/TreeState.h>

#include <optional>

/// Stands around a message to the tree view's procedure: prepares it, and has the rows laid out anew when the
/// message has put them out of order.
class MultiTreeCtrl::RowKeeper
{
public:
    class HiddenItem;

    RowKeeper(MultiTreeCtrl& tree, const Message& message);

    /// To be called after the message while the tree is usable.
    void restore() const;

private:
    enum class Change
    {
        None,
        Rearranged, ///< children change their places, or are shown or hidden
        State,      ///< children may be shown or hidden without the tree view noticing
        Inserted,
        Deleted,
        Scrolled, ///< an item is brought into view
        Input,    ///< so may a key or a click do, after its notifications
        LaidOut   ///< after redrawing was held
    };

    static Change changeBy(const Message& message);
    static HTREEITEM parentOf(const View& view, const Message& message);
    void keepFirstRow(HTREEITEM emptied) const;
    bool disordersRows() const;
    bool repairsFirstRow() const;
    void showFirst(HTREEITEM item) const;

    const std::shared_ptr<State> m_state;
    const Change m_change;
    bool m_wasOpen = false;
    std::optional<Tracker> m_parent; ///< whose children the message is about; none for the top level
};

/// Notes in the end that an item is hidden which the tree view is opening or closing: it takes the item for a
/// displayed one.
class MultiTreeCtrl::RowKeeper::HiddenItem
{
public:
    HiddenItem(MultiTreeCtrl& tree, HTREEITEM item)
        : m_item(tree.m_state, item)
        , m_state(tree.m_state)
    {
    }
    ~HiddenItem();
    HiddenItem(const HiddenItem&) = delete;
    HiddenItem& operator=(const HiddenItem&) = delete;

private:
    const Tracker m_item;
    const std::shared_ptr<State> m_state;
};
