/// Not exported: what is selected, and the steps by which clicks and keys change it.
#pragma once

#include <ovoui/tree/Concern.h>
#include <ovoui/tree/SelectionRecord.h>

#include <functional>

class MultiTreeCtrl::Selection final : public Concern
{
public:
    explicit Selection(State& state);
    ~Selection() override;

    // Which items are selected
    std::vector<HTREEITEM> items() const; ///< in no order
    HTREEITEM first() const;              ///< in the order of the tree
    HTREEITEM after(HTREEITEM item) const;
    HTREEITEM from(HTREEITEM item) const; ///< the first one at or behind an item
    std::vector<OVO::Handle<Node>> nodes() const;

    // What the host can do
    bool selectAlone(HTREEITEM item);
    unsigned clear(HTREEITEM first);
    void addRange(HTREEITEM a, HTREEITEM b);
    /// The displayed items from one to the other; from one to the last if the other is null.
    std::vector<HTREEITEM> displayedRange(HTREEITEM a, HTREEITEM b) const;
    /// Makes these items the selected ones. Tells no one, and leaves the caret where it is.
    void become(const ItemList& wanted);

    /// How the user came to change the selection: one of TVC_, and the point of a click.
    struct Way
    {
        UINT action;
        CPoint point{0, 0};
    };

    // What the user does. The parent hears of it once.
    void selectForCertain(HTREEITEM item);
    void selectRange(HTREEITEM end, const Way& way);
    void addRange(HTREEITEM end, const Way& way);
    void set(HTREEITEM item, bool selected, const Way& way);
    void moveCaret(HTREEITEM item, const Way& way);
    void selectDisplayed(const Way& way);
    /// Has the tree view handle something that may move the caret, and lets the selection follow: the new
    /// caret alone, or the range from the anchor to it.
    void follow(bool range, const Way& way, const std::function<void()>& handle);
    /// Moves the focus and leaves the selection as it is: the tree view, which selects along with it, is
    /// corrected, and the parent hears nothing.
    void keepWhile(const std::function<void()>& moveFocus);

    /// Selected items look different without the focus; the tree view repaints only the caret by itself.
    void repaint() const;
    /// The item may be selected, and the tree view does not say so.
    void note(HTREEITEM item) { m_record.add(item); }

    void itemGoes(HTREEITEM item) override;
    void allGo() override;
    void begins(const Message& message) override;
    void ends(const Message& message, LRESULT result) override;
    void fails() override;
    void takesOver() override;

private:
    class Events;

    void setAll(const std::vector<HTREEITEM>& items, bool selected);
    unsigned deselectAllBut(HTREEITEM kept);
    void selectQuietly(HTREEITEM item);
    void complete() const;
    void sortByTree(std::vector<HTREEITEM>& items) const;
    void sortSiblings(std::vector<HTREEITEM>& items) const;
    unsigned version() const;

    mutable ovoui::tree::SelectionRecord m_record;
    mutable ovoui::tree::SelectionOrder m_order;
    const std::unique_ptr<Events> m_events;
};
