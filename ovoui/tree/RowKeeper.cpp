#include <ovoui/tree/RowKeeper.h>

#include <ovoui/tree/Platform.h>

using ovoui::tree::platform;

MultiTreeCtrl::RowKeeper::RowKeeper(MultiTreeCtrl& tree, UINT message, WPARAM wParam, LPARAM lParam)
    : m_state(tree.m_state)
    , m_change(message == WM_SETREDRAW && wParam ? Change::LaidOut : changeBy(message, lParam))
{
    if (m_change == Change::None || m_change == Change::LaidOut || m_change == Change::Input ||
        !(platform().losesRows || platform().losesFirstRow))
        return;
    if (const HTREEITEM parent = parentOf(tree, message, lParam))
        m_parent.emplace(m_state, parent);
    m_wasOpen = m_change == Change::State && m_parent && tree.isOpen(m_parent->item());
    if (platform().losesFirstRow && message == TVM_EXPAND && (wParam & TVE_COLLAPSERESET))
        keepFirstRow(tree, m_parent->item());
}

void MultiTreeCtrl::RowKeeper::keepFirstRow(MultiTreeCtrl& tree, HTREEITEM emptied)
{
    const HTREEITEM first = tree.next(TVGN_FIRSTVISIBLE);
    if (first && tree.isBelow(first, emptied))
        tree.ask(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(emptied));
}

MultiTreeCtrl::RowKeeper::Change MultiTreeCtrl::RowKeeper::changeBy(UINT message, LPARAM lParam)
{
    if (!lParam)
        return Change::None;
    switch (message) {
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
        return Change::Input;
    case TVM_EXPAND:
    case TVM_SORTCHILDREN:
    case TVM_SORTCHILDRENCB:
        return Change::Rearranged;
    case TVM_SETITEMW:
    case TVM_SETITEMA: {
        const auto& item = *reinterpret_cast<const TVITEM*>(lParam);
        const bool opens = (item.mask & TVIF_STATE) && (item.stateMask & TVIS_EXPANDED);
        return opens ? Change::State : Change::None;
    }
    case TVM_SELECTITEM:
    case TVM_ENSUREVISIBLE:
    case TVM_EDITLABELW:
    case TVM_EDITLABELA:
        return Change::Scrolled;
    case TVM_INSERTITEMW:
    case TVM_INSERTITEMA:
        return Change::Inserted;
    case TVM_DELETEITEM:
        return Change::Deleted;
    default:
        return Change::None;
    }
}

HTREEITEM MultiTreeCtrl::RowKeeper::parentOf(const MultiTreeCtrl& tree, UINT message, LPARAM lParam)
{
    HTREEITEM parent = nullptr;
    switch (message) {
    case TVM_SORTCHILDRENCB:
        parent = reinterpret_cast<const TVSORTCB*>(lParam)->hParent;
        break;
    case TVM_SETITEMW:
    case TVM_SETITEMA:
        parent = reinterpret_cast<const TVITEM*>(lParam)->hItem;
        break;
    case TVM_INSERTITEMW:
    case TVM_INSERTITEMA:
        parent = reinterpret_cast<const TVINSERTSTRUCT*>(lParam)->hParent;
        break;
    case TVM_DELETEITEM: {
        auto* const item = reinterpret_cast<HTREEITEM>(lParam);
        parent = item == TVI_ROOT ? nullptr : tree.next(TVGN_PARENT, item);
        break;
    }
    default:
        parent = reinterpret_cast<HTREEITEM>(lParam);
    }
    return parent == TVI_ROOT ? nullptr : parent;
}

/// The tree view works the rows out from the hidden item on, as if it had one. From a state it does not work
/// them out at all.
bool MultiTreeCtrl::RowKeeper::disordersRows() const
{
    if (!m_parent)
        return false;
    const HTREEITEM parent = m_parent->item();
    if (!parent)
        return true; // gone on the way: from where on the tree view has counted is not known
    const MultiTreeCtrl& tree = *m_state->tree;
    switch (m_change) {
    case Change::Scrolled:
    case Change::Input:
    case Change::LaidOut:
        return false;
    case Change::Inserted:
        return tree.isOpen(parent) && !tree.isDisplayed(parent);
    case Change::Deleted:
        return !tree.isOpen(parent) || !tree.isDisplayed(parent);
    case Change::State:
        return tree.isOpen(parent) != m_wasOpen && tree.next(TVGN_CHILD, parent);
    default:
        return !tree.isDisplayed(parent);
    }
}

/// For the caret the tree view does not do what TVGN_FIRSTVISIBLE asks for.
void MultiTreeCtrl::RowKeeper::showFirst(const MultiTreeCtrl& tree, HTREEITEM item)
{
    const auto begin = [&](HTREEITEM row) {
        tree.ask(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(row));
    };
    if (item != tree.caret()) {
        begin(item);
    } else if (const HTREEITEM before = tree.next(TVGN_PREVIOUSVISIBLE, item)) {
        begin(before);
        tree.ask(WM_VSCROLL, SB_LINEDOWN);
    } else {
        tree.ask(WM_VSCROLL, SB_TOP);
        tree.ask(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    }
}

/// A hidden item becomes the first one seen when it is to be brought into view and the item that it is in
/// refuses to open.
bool MultiTreeCtrl::RowKeeper::repairsFirstRow() const
{
    if (m_change == Change::None || (m_change == Change::Inserted && !m_parent))
        return false;
    const MultiTreeCtrl& tree = *m_state->tree;
    const HTREEITEM first = tree.next(TVGN_FIRSTVISIBLE);
    const HTREEITEM displayed = first ? tree.lastDisplayedOnTheWayTo(first) : tree.next(TVGN_ROOT);
    if (displayed == first)
        return false;
    showFirst(tree, displayed);
    return true;
}

void MultiTreeCtrl::RowKeeper::restore() const
{
    State& state = *m_state;
    // While redrawing is held, the layout comes when the host ends that.
    if (!platform().losesRows || !state.redraws)
        return;
    const bool disordered = repairsFirstRow() || disordersRows();
    const bool outermost = state.nativeCalls == 0;
    state.rowsLost = state.rowsLost || disordered;
    if (!state.rowsLost || !(disordered || outermost))
        return;
    // A message that is still under way may count from a hidden item once more.
    state.rowsLost = !outermost;
    state.tree->ask(WM_SETREDRAW, TRUE);
}

MultiTreeCtrl::HiddenItemNote::~HiddenItemNote()
{
    if (platform().losesRows && m_state->usable() && m_item && !m_state->tree->isDisplayed(m_item.item()))
        m_state->rowsLost = true;
}
