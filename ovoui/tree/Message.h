/// Not exported: a message on its way to the tree view's own procedure.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/core/LabelRule.h>

namespace ovoui::tree
{

/// What a message to the tree view may change.
enum class Change
{
    Nothing,
    State,    ///< one item
    Insert,   ///< a new item
    Caret,    ///< the selected item
    Delete,   ///< an item and all below it
    Order,    ///< the children of an item
    Anything, ///< what the user's input or the system does
    Gone      ///< all of it
};

Change changeBy(UINT message);

} // namespace ovoui::tree

struct MultiTreeCtrl::Message
{
    Message(UINT message, WPARAM w, LPARAM l)
        : id(message)
        , wParam(w)
        , lParam(l)
        , change(ovoui::tree::changeBy(message))
    {
    }

    const UINT id;
    WPARAM wParam;
    const LPARAM lParam;
    const ovoui::tree::Change change;

    /// Of a message that is about one item.
    HTREEITEM item() const { return reinterpret_cast<HTREEITEM>(lParam); }
    /// Of TVM_SETITEM.
    const TVITEM& changes() const { return *reinterpret_cast<const TVITEM*>(lParam); }
    /// Of TVM_INSERTITEM.
    const TVINSERTSTRUCT& insertion() const { return *reinterpret_cast<const TVINSERTSTRUCT*>(lParam); }

    /// Puts something else behind an item, which a node may have been behind.
    bool setsData() const
    {
        return change == ovoui::tree::Change::State && lParam && (changes().mask & TVIF_PARAM);
    }
    /// Closes an item and deletes what is in it.
    bool empties() const { return id == TVM_EXPAND && (wParam & TVE_COLLAPSERESET) && lParam; }

    ovoui::tree::ToBeDeleted toBeDeleted() const
    {
        return ovoui::tree::toBeDeleted({.destroysTree = id == WM_DESTROY,
                                         .deletes = id == TVM_DELETEITEM,
                                         .empties = empties(),
                                         .all = !item() || item() == TVI_ROOT});
    }
};
