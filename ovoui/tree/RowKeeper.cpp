#include <ovoui/tree/RowKeeper.h>

#include <ovoui/frame/Platform.h>

using ovoui::platform;

MultiTreeCtrl::RowKeeper::RowKeeper(MultiTreeCtrl& tree, const Message& message)
    : m_state(tree.m_state)
    , m_change(changeBy(message))
{
    if (m_change == Change::None || m_change == Change::LaidOut || m_change == Change::Input ||
        !(platform().losesRows || platform().losesFirstRow))
        return;
    if (const HTREEITEM parent = parentOf(m_state->view, message))
        m_parent.emplace(m_state, parent);
    m_wasOpen = m_change == Change::State && m_parent && m_state->view.isOpen(m_parent->item());
    if (platform().losesFirstRow && message.empties() && m_parent)
        keepFirstRow(m_parent->item());
}

void MultiTreeCtrl::RowKeeper::keepFirstRow(HTREEITEM emptied) const
{
    const View& view = m_state->view;
    const HTREEITEM first = view.next(TVGN_FIRSTVISIBLE);
    if (first && view.isBelow(first, emptied))
        view.ask(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(emptied));
}

MultiTreeCtrl::RowKeeper::Change MultiTreeCtrl::RowKeeper::changeBy(const Message& message)
{
    if (message.id == WM_SETREDRAW && message.wParam)
        return Change::LaidOut;
    if (!message.lParam)
        return Change::None;
    switch (message.id) {
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
        const TVITEM& item = message.changes();
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

HTREEITEM MultiTreeCtrl::RowKeeper::parentOf(const View& view, const Message& message)
{
    HTREEITEM parent = message.item();
    switch (message.id) {
    case TVM_SORTCHILDRENCB:
        parent = reinterpret_cast<const TVSORTCB*>(message.lParam)->hParent;
        break;
    case TVM_SETITEMW:
    case TVM_SETITEMA:
        parent = message.changes().hItem;
        break;
    case TVM_INSERTITEMW:
    case TVM_INSERTITEMA:
        parent = message.insertion().hParent;
        break;
    case TVM_DELETEITEM:
        parent = parent == TVI_ROOT ? nullptr : view.next(TVGN_PARENT, parent);
        break;
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
    const View& view = m_state->view;
    switch (m_change) {
    case Change::Scrolled:
    case Change::Input:
    case Change::LaidOut:
        return false;
    case Change::Inserted:
        return view.isOpen(parent) && !view.isDisplayed(parent);
    case Change::Deleted:
        return !view.isOpen(parent) || !view.isDisplayed(parent);
    case Change::State:
        return view.isOpen(parent) != m_wasOpen && view.next(TVGN_CHILD, parent);
    default:
        return !view.isDisplayed(parent);
    }
}

/// For the caret the tree view does not do what TVGN_FIRSTVISIBLE asks for.
void MultiTreeCtrl::RowKeeper::showFirst(HTREEITEM item) const
{
    const View& view = m_state->view;
    const auto begin = [&](HTREEITEM row) {
        view.ask(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(row));
    };
    if (item != view.caret()) {
        begin(item);
    } else if (const HTREEITEM before = view.next(TVGN_PREVIOUSVISIBLE, item)) {
        begin(before);
        view.ask(WM_VSCROLL, SB_LINEDOWN);
    } else {
        view.ask(WM_VSCROLL, SB_TOP);
        view.ask(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    }
}

/// A hidden item becomes the first one seen when it is to be brought into view and the item that it is in
/// refuses to open.
bool MultiTreeCtrl::RowKeeper::repairsFirstRow() const
{
    if (m_change == Change::None || (m_change == Change::Inserted && !m_parent))
        return false;
    const View& view = m_state->view;
    const HTREEITEM first = view.next(TVGN_FIRSTVISIBLE);
    const HTREEITEM displayed = first ? view.displayedFor(first) : view.next(TVGN_ROOT);
    if (displayed == first)
        return false;
    showFirst(displayed);
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
    state.view.ask(WM_SETREDRAW, TRUE);
}

MultiTreeCtrl::RowKeeper::HiddenItem::~HiddenItem()
{
    if (platform().losesRows && m_state->usable() && m_item && !m_state->view.isDisplayed(m_item.item()))
        m_state->rowsLost = true;
}
