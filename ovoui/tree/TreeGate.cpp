// The gate in front of the tree view's own procedure. Every message on its way there passes here, whoever
// sent it, so that what the tree remembers of its items stays true.
#include <ovoui/tree/TreeState.h>

#include <algorithm>

namespace
{

/// What a message to the tree view may change.
enum class Change
{
    Nothing,
    State,    ///< one item, as lParam says
    Insert,   ///< a new item, as lParam says
    Caret,    ///< the selected item
    Delete,   ///< an item and all below it
    Order,    ///< the children of an item, as lParam says
    Anything, ///< what the user's input or the system does
    Gone      ///< all of it
};

Change changeBy(UINT message)
{
    switch (message) {
    case TVM_SETITEMW:
    case TVM_SETITEMA:
        return Change::State;
    case TVM_INSERTITEMW:
    case TVM_INSERTITEMA:
        return Change::Insert;
    case TVM_SELECTITEM:
        return Change::Caret;
    case TVM_DELETEITEM:
        return Change::Delete;
    case TVM_SORTCHILDREN:
    case TVM_SORTCHILDRENCB:
        return Change::Order;
    case WM_DESTROY:
        return Change::Gone;
    // Questions and painting, which come often.
    case TVM_GETNEXTITEM:
    case TVM_GETITEMW:
    case TVM_GETITEMSTATE:
    case TVM_GETITEMRECT:
    case TVM_GETCOUNT:
    case TVM_GETEDITCONTROL:
    case TVM_GETVISIBLECOUNT:
    case TVM_HITTEST:
    case WM_ERASEBKGND:
    case WM_GETDLGCODE:
    case WM_NCHITTEST:
    case WM_NCPAINT:
    case WM_SETREDRAW:
        return Change::Nothing;
    default:
        return Change::Anything;
    }
}

HTREEITEM asItem(LPARAM lParam)
{
    return reinterpret_cast<HTREEITEM>(lParam);
}

} // namespace

/// A call of the tree view's procedure, from the constructor to finish().
class MultiTreeCtrl::NativeCall
{
public:
    NativeCall(State& state, UINT message, WPARAM wParam, LPARAM lParam);
    void finish(LRESULT result);
    ~NativeCall();

private:
    void noteItem(const TVITEM& item);
    void noteInserted(LRESULT item);
    HTREEITEM parentOf(HTREEITEM item) const;

    State& m_state;
    const UINT m_message;
    const WPARAM m_wParam;
    const LPARAM m_lParam;
    const Change m_change;
    const std::size_t m_releasedBefore;
};

MultiTreeCtrl::NativeCall::NativeCall(State& state, UINT message, WPARAM wParam, LPARAM lParam)
    : m_state(state)
    , m_message(message)
    , m_wParam(wParam)
    , m_lParam(lParam)
    , m_change(changeBy(message))
    , m_releasedBefore(state.released.size())
{
    ++m_state.nativeCalls;
    switch (m_change) {
    case Change::State:
        if (lParam)
            noteItem(*reinterpret_cast<const TVITEM*>(lParam));
        break;
    case Change::Caret:
        if (wParam == TVGN_CARET)
            m_state.selection.add(asItem(lParam));
        break;
    case Change::Order:
        ++m_state.structure;
        m_state.children.forgetAll();
        m_state.appended = nullptr;
        m_state.selection.disturb();
        break;
    case Change::Anything:
        // The caret may leave an item, or come to one, and the platform selects and deselects with it.
        m_state.selection.add(m_state.tree->caret());
        // A message of the system: the host has had its turn, and what it sorts by may be different now.
        if (message < WM_USER)
            m_state.children.distrustAll();
        break;
    default:
        break;
    }
    if (message == WM_SETREDRAW)
        m_state.redraws = wParam != FALSE;
}

void MultiTreeCtrl::NativeCall::noteItem(const TVITEM& item)
{
    if ((item.mask & TVIF_STATE) && (item.state & item.stateMask & TVIS_SELECTED))
        m_state.selection.add(item.hItem);
    if (item.mask & TVIF_PARAM)
        m_state.children.forgetAll();
    if ((item.mask & TVIF_TEXT) && !m_state.children.empty())
        m_state.children.distrust(parentOf(item.hItem));
}

HTREEITEM MultiTreeCtrl::NativeCall::parentOf(HTREEITEM item) const
{
    const HTREEITEM parent = m_state.tree->next(TVGN_PARENT, item);
    return parent ? parent : TVI_ROOT;
}

void MultiTreeCtrl::NativeCall::noteInserted(LRESULT item)
{
    const auto& insert = *reinterpret_cast<const TVINSERTSTRUCT*>(m_lParam);
    if ((insert.item.mask & TVIF_STATE) && (insert.item.state & insert.item.stateMask & TVIS_SELECTED))
        m_state.selection.add(asItem(item));
    m_state.selection.disturb();
    ++m_state.structure;
    if (!m_state.insertsInPlace)
        m_state.children.forget(insert.hParent ? insert.hParent : TVI_ROOT);
    m_state.appended = nullptr;
}

void MultiTreeCtrl::NativeCall::finish(LRESULT result)
{
    if (m_change == Change::Insert && result)
        noteInserted(result);
    else if (m_change == Change::Anything && m_state.usable())
        m_state.selection.add(m_state.tree->caret());
}

MultiTreeCtrl::NativeCall::~NativeCall()
{
    --m_state.nativeCalls;
    if (m_change == Change::Gone)
        m_state.forgetAll();
    // The nodes of the items deleted in this call. Their destructors may do anything to the tree, which was
    // not safe before.
    while (m_state.released.size() > m_releasedBefore) {
        const OVO::Handle<Node> node = std::move(m_state.released.back());
        m_state.released.pop_back();
    }
}

LRESULT MultiTreeCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<State> state = m_state;
    if (message == TVM_DELETEITEM && postponesDeleting(asItem(lParam)))
        return TRUE;
    const State::Tracker concerned(state, message == TVM_EXPAND ? asItem(lParam) : nullptr);
    LRESULT result = 0;
    {
        NativeCall call(*state, message, wParam, lParam);
        result = CTreeCtrl::DefWindowProc(message, wParam, lParam);
        call.finish(result);
    }
    if (concerned && state->usable())
        noticeClosing(concerned.item());
    deletePostponed(*state);
    return result;
}

void MultiTreeCtrl::deletePostponed(State& state)
{
    while (state.nativeCalls == 0 && state.opening.empty() && !state.postponed.empty() && state.usable()) {
        const HTREEITEM item = state.postponed.back();
        state.postponed.pop_back();
        state.tree->deleteItem(item);
    }
}

/// While the tree view opens or closes an item, it does not expect others to go than those below it. Such
/// wait until it has finished; their nodes are let go at once.
bool MultiTreeCtrl::postponesDeleting(HTREEITEM item)
{
    if (m_state->opening.empty() || (item != TVI_ROOT && item && isBelow(item, m_state->opening.back())))
        return false;
    std::vector<HTREEITEM> items;
    if (item && item != TVI_ROOT) {
        items.push_back(item);
    } else {
        for (HTREEITEM root = next(TVGN_ROOT); root; root = next(TVGN_NEXT, root))
            items.push_back(root);
    }
    for (const HTREEITEM doomed : items) {
        if (std::find(m_state->postponed.begin(), m_state->postponed.end(), doomed) !=
            m_state->postponed.end())
            continue;
        m_state->postponed.push_back(doomed);
        detachNodes(doomed);
    }
    m_state->children.forgetAll();
    m_state->appended = nullptr;
    return true;
}
