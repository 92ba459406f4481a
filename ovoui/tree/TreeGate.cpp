// The gate in front of the tree view's own procedure. Every message on its way there passes here, of the host
// as of the system, so that what the tree remembers of its items stays true.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/RowKeeper.h>

#include <optional>

using ovoui::tree::keepFirst;
using ovoui::tree::PlatformHolds;
using ovoui::tree::raise;

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
    Order,    ///< the children of an item
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

/// The item that the tree view goes on with after it has called us.
HTREEITEM itemGoneOnWith(UINT message, LPARAM lParam)
{
    switch (message) {
    case TVM_SELECTITEM:
    case TVM_ENSUREVISIBLE:
    case TVM_EDITLABELW:
    case TVM_EDITLABELA:
        return asItem(lParam);
    default:
        return nullptr;
    }
}

} // namespace

/// A call of the tree view's procedure: begin() before it, finish() when it came back with a result.
class MultiTreeCtrl::NativeCall
{
public:
    NativeCall(State& state, UINT message, WPARAM wParam, LPARAM lParam) noexcept
        : m_state(state)
        , m_message(message)
        , m_wParam(wParam)
        , m_lParam(lParam)
        , m_change(changeBy(message))
        , m_releasedBefore(state.released.size())
        , m_heldBefore(state.holds.count())
    {
        ++m_state.nativeCalls;
    }
    void begin();
    void finish(LRESULT result);
    ~NativeCall();
    NativeCall(const NativeCall&) = delete;
    NativeCall& operator=(const NativeCall&) = delete;

private:
    void noteItem(const TVITEM& item);
    void noteInserted(LRESULT item);
    void hold();

    State& m_state;
    const UINT m_message;
    const WPARAM m_wParam;
    const LPARAM m_lParam;
    const Change m_change;
    const std::size_t m_releasedBefore;
    const std::size_t m_heldBefore;
    bool m_finished = false;
};

void MultiTreeCtrl::NativeCall::begin()
{
    switch (m_change) {
    case Change::State:
        if (m_lParam)
            noteItem(*reinterpret_cast<const TVITEM*>(m_lParam));
        break;
    case Change::Caret:
        if (m_wParam == TVGN_CARET)
            m_state.selection.add(asItem(m_lParam));
        break;
    case Change::Order:
        m_state.structureChanged();
        m_state.children.forgetAll();
        break;
    case Change::Anything:
        // The caret may leave an item, or come to one, and the platform selects and deselects with it.
        m_state.selection.add(m_state.tree->caret());
        break;
    default:
        break;
    }
    if (m_message == WM_SETREDRAW)
        m_state.redraws = m_wParam != FALSE;
    hold();
}

/// What must not be deleted before the tree view has finished.
void MultiTreeCtrl::NativeCall::hold()
{
    // The one knows the neighbours of the deleted item, the other opens everything below the caret.
    if (m_change == Change::Delete || (m_message == WM_KEYDOWN && m_wParam == VK_MULTIPLY))
        m_state.holds.add(PlatformHolds::Kind::Everything);
    const HTREEITEM item = itemGoneOnWith(m_message, m_lParam);
    if (!item)
        return;
    m_state.holds.add(PlatformHolds::Kind::Stays, item);
    if (m_message == TVM_SELECTITEM)
        m_state.holds.add(PlatformHolds::Kind::Stays, m_state.tree->caret());
}

void MultiTreeCtrl::NativeCall::noteItem(const TVITEM& item)
{
    if ((item.mask & TVIF_STATE) && (item.state & item.stateMask & TVIS_SELECTED))
        m_state.selection.add(item.hItem);
}

void MultiTreeCtrl::NativeCall::noteInserted(LRESULT item)
{
    const auto& insert = *reinterpret_cast<const TVINSERTSTRUCT*>(m_lParam);
    m_state.structureChanged();
    if ((insert.item.mask & TVIF_STATE) && (insert.item.state & insert.item.stateMask & TVIS_SELECTED))
        m_state.selection.add(asItem(item));
    m_state.children.forget(insert.hParent ? insert.hParent : TVI_ROOT);
}

void MultiTreeCtrl::NativeCall::finish(LRESULT result)
{
    m_finished = true;
    if (m_change == Change::Insert && result)
        noteInserted(result);
    else if (m_change == Change::Anything && m_state.usable())
        m_state.selection.add(m_state.tree->caret());
}

MultiTreeCtrl::NativeCall::~NativeCall()
{
    --m_state.nativeCalls;
    m_state.holds.shrinkTo(m_heldBefore);
    if (!m_finished) {
        // An exception came in place of the result: what happened is not known.
        m_state.structureChanged();
        m_state.selection.setComplete(false);
        m_state.children.forgetAll();
    }
    if (m_change == Change::Gone)
        m_state.forgetAll();
    // The nodes of the items deleted in this call. Their destructors may do anything to the tree, which was
    // not safe before.
    letGo(m_state, m_releasedBefore);
}

LRESULT MultiTreeCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<State> state = m_state;
    std::exception_ptr foreign;
    bool goesOn = true;
    keepFirst(foreign, [&] { goesOn = endEditOfDeleted(message, wParam, lParam); });
    if (!goesOn || !state->tree || (message == TVM_DELETEITEM && postponesDeleting(asItem(lParam)))) {
        raise(foreign);
        return TRUE;
    }
    const bool empties = message == TVM_EXPAND && (wParam & TVE_COLLAPSERESET) && asItem(lParam);
    if (empties && postponesEmptying(asItem(lParam)))
        wParam &= ~static_cast<WPARAM>(TVE_COLLAPSERESET);

    const RowKeeper rows(*this, message, wParam, lParam);
    std::optional<Tracker> expanded;
    if (message == TVM_EXPAND)
        expanded.emplace(state, asItem(lParam));
    const std::vector<OVO::Handle<Node>> unreported = nodesGoingUnreported(message, wParam, lParam);
    LRESULT result = 0;
    keepFirst(foreign, [&] {
        NativeCall call(*state, message, wParam, lParam);
        call.begin();
        result = CTreeCtrl::DefWindowProc(message, wParam, lParam);
        call.finish(result);
    });
    if (!unreported.empty())
        releaseUnreported(*state, unreported);
    if (state->usable())
        keepFirst(foreign, [&] { rows.restore(); });
    if (expanded && *expanded && state->usable())
        keepFirst(foreign, [&] { noticeClosing(expanded->item()); });
    keepFirst(foreign, [&] { deletePostponed(*state); });
    raise(foreign);
    return result;
}
