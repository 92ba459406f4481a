#include <ovoui/tree/View.h>

#include <ovoui/tree/TreeState.h>

#include <algorithm>

MultiTreeCtrl& MultiTreeCtrl::View::tree() const
{
    return *m_state.control();
}

// Questions

LRESULT MultiTreeCtrl::View::ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return tree().CTreeCtrl::DefWindowProc(message, wParam, lParam);
}

HTREEITEM MultiTreeCtrl::View::next(UINT relation, HTREEITEM item) const
{
    return reinterpret_cast<HTREEITEM>(ask(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

UINT MultiTreeCtrl::View::stateOf(HTREEITEM item) const
{
    return static_cast<UINT>(ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), ~0u));
}

LPARAM MultiTreeCtrl::View::dataOf(HTREEITEM item) const
{
    TVITEM data{};
    data.mask = TVIF_HANDLE | TVIF_PARAM;
    data.hItem = item;
    return item && ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data)) ? data.lParam : 0;
}

OVO::Handle<MultiTreeCtrl::Node> MultiTreeCtrl::View::node(HTREEITEM item) const
{
    return OVO::Handle<Node>(reinterpret_cast<Node*>(dataOf(item)));
}

TVITEM MultiTreeCtrl::View::describe(HTREEITEM item) const
{
    TVITEM description{};
    if (!item)
        return description;
    description.mask = TVIF_HANDLE | TVIF_STATE | TVIF_PARAM;
    description.hItem = item;
    description.stateMask = ~0u;
    ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&description));
    return description;
}

// Changes

void MultiTreeCtrl::View::setState(HTREEITEM item, UINT state, UINT mask) const
{
    TVITEM changes{};
    changes.mask = TVIF_HANDLE | TVIF_STATE;
    changes.hItem = item;
    changes.state = state;
    changes.stateMask = mask;
    tree().DefWindowProc(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&changes));
}

void MultiTreeCtrl::View::setSelected(HTREEITEM item, bool selected) const
{
    setState(item, selected ? TVIS_SELECTED : 0, TVIS_SELECTED);
}

bool MultiTreeCtrl::View::setCaret(HTREEITEM item) const
{
    return tree().DefWindowProc(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)) != 0;
}

void MultiTreeCtrl::View::remove(HTREEITEM item) const
{
    tree().DefWindowProc(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void MultiTreeCtrl::View::clearData(HTREEITEM item) const
{
    TVITEM cleared{};
    cleared.mask = TVIF_HANDLE | TVIF_PARAM;
    cleared.hItem = item;
    ask(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&cleared));
}

void MultiTreeCtrl::View::notifyParent(NMHDR& header) const
{
    header.hwndFrom = tree().m_hWnd;
    header.idFrom = static_cast<UINT_PTR>(tree().GetDlgCtrlID());
    if (const CWnd* parent = tree().GetParent())
        parent->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

// Items in the order of the tree

HTREEITEM MultiTreeCtrl::View::first() const
{
    const HTREEITEM root = next(TVGN_ROOT);
    return root && isDoomed(root) ? nextItem(root, false) : root;
}

HTREEITEM MultiTreeCtrl::View::nextItem(HTREEITEM item, bool intoChildren) const
{
    HTREEITEM following = afterAny(item, intoChildren);
    while (following && isDoomed(following))
        following = afterAny(following, false);
    return following;
}

HTREEITEM MultiTreeCtrl::View::afterAny(HTREEITEM item, bool intoChildren) const
{
    if (!item)
        return nullptr;
    if (intoChildren)
        if (const HTREEITEM child = next(TVGN_CHILD, item))
            return child;
    for (; item; item = next(TVGN_PARENT, item))
        if (const HTREEITEM sibling = next(TVGN_NEXT, item))
            return sibling;
    return nullptr;
}

HTREEITEM MultiTreeCtrl::View::firstChild(HTREEITEM parent) const
{
    const HTREEITEM child = parent == TVI_ROOT ? next(TVGN_ROOT) : next(TVGN_CHILD, parent);
    return child && isDoomed(child) ? nextSibling(child) : child;
}

HTREEITEM MultiTreeCtrl::View::nextSibling(HTREEITEM item) const
{
    do
        item = next(TVGN_NEXT, item);
    while (item && isDoomed(item));
    return item;
}

HTREEITEM MultiTreeCtrl::View::previousSibling(HTREEITEM item) const
{
    do
        item = next(TVGN_PREVIOUS, item);
    while (item && isDoomed(item));
    return item;
}

bool MultiTreeCtrl::View::isDoomed(HTREEITEM item) const
{
    const auto& doomed = m_state.doomed;
    if (doomed.empty())
        return false;
    for (; item; item = next(TVGN_PARENT, item))
        if (std::any_of(doomed.begin(), doomed.end(),
                        [item](const State::Doomed& each) { return each.item == item; }))
            return true;
    return false;
}

bool MultiTreeCtrl::View::isBelow(HTREEITEM item, HTREEITEM ancestor) const
{
    do
        item = next(TVGN_PARENT, item);
    while (item && item != ancestor);
    return item != nullptr;
}

std::vector<HTREEITEM> MultiTreeCtrl::View::childrenOf(HTREEITEM item) const
{
    std::vector<HTREEITEM> children;
    HTREEITEM child = item && item != TVI_ROOT ? next(TVGN_CHILD, item) : next(TVGN_ROOT);
    for (; child; child = next(TVGN_NEXT, child))
        children.push_back(child);
    return children;
}

// Displayed items

bool MultiTreeCtrl::View::isDisplayed(HTREEITEM item) const
{
    return item && displayedFor(item) == item;
}

HTREEITEM MultiTreeCtrl::View::displayedFor(HTREEITEM item) const
{
    HTREEITEM displayed = item;
    for (HTREEITEM above = next(TVGN_PARENT, item); above; above = next(TVGN_PARENT, above))
        if (!isOpen(above))
            displayed = above;
    return displayed;
}

/// The tree view answers for displayed items only; above one in a closed item stands that item.
HTREEITEM MultiTreeCtrl::View::displayedAbove(HTREEITEM item) const
{
    const HTREEITEM displayed = displayedFor(item);
    return displayed == item ? next(TVGN_PREVIOUSVISIBLE, item) : displayed;
}

HTREEITEM MultiTreeCtrl::View::displayedBelow(HTREEITEM item) const
{
    return next(TVGN_NEXTVISIBLE, displayedFor(item));
}
