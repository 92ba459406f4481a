// The gate in front of the tree view's own procedure. Every message on its way there passes here, of the host
// as of the system, so that what the tree remembers of its items stays true.
#include <ovoui/tree/Concern.h>
#include <ovoui/tree/Deletion.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/RowKeeper.h>
#include <ovoui/tree/UnreportedNodes.h>

using namespace ovoui::frame;
using namespace ovoui::tree;

Change ovoui::tree::changeBy(UINT message)
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
    case TVM_MAPHTREEITEMTOACCID:
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

/// A call of the tree view's procedure: begin() before it, finish() when it came back with a result.
class MultiTreeCtrl::NativeCall
{
public:
    NativeCall(State& state, const Message& message) noexcept
        : m_state(state)
        , m_message(message)
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
    State& m_state;
    const Message& m_message;
    const std::size_t m_releasedBefore;
    const std::size_t m_heldBefore;
    bool m_finished = false;
};

void MultiTreeCtrl::NativeCall::begin()
{
    if (m_message.id == WM_SETREDRAW)
        m_state.redraws = m_message.wParam != FALSE;
    if (m_message.change == Change::Order || m_message.setsData())
        ++m_state.structure;
    for (Concern* concern : m_state.listeners)
        concern->begins(m_message);
}

void MultiTreeCtrl::NativeCall::finish(LRESULT result)
{
    m_finished = true;
    if ((m_message.change == Change::Insert && result) || m_message.setsData())
        ++m_state.structure;
    for (Concern* concern : m_state.listeners)
        concern->ends(m_message, result);
}

MultiTreeCtrl::NativeCall::~NativeCall()
{
    --m_state.nativeCalls;
    m_state.holds.shrinkTo(m_heldBefore);
    if (!m_finished) {
        // An exception came in place of the result: what happened is not known.
        ++m_state.structure;
        for (Concern* concern : m_state.listeners)
            concern->fails();
    }
    if (m_message.change == Change::Gone)
        m_state.forgetAll();
    // The nodes of the items deleted in this call. Their destructors may do anything to the tree, which was
    // not safe before.
    m_state.deletion->letGo(m_releasedBefore);
}

LRESULT MultiTreeCtrl::DefWindowProc(UINT id, WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<State> state = m_state;
    Message message(id, wParam, lParam);
    std::exception_ptr foreign;
    for (Concern* concern : state->listeners) {
        bool goesOn = true;
        keepFirst(foreign, [&] { goesOn = concern->arrives(message); });
        if (!goesOn || !state->control()) {
            raise(foreign);
            return TRUE;
        }
    }
    const RowKeeper rows(*this, message);
    const Tracker item(state, message.id == TVM_EXPAND ? message.item() : nullptr);
    UnreportedNodes unreported(*state, message);
    LRESULT result = 0;
    keepFirst(foreign, [&] {
        NativeCall call(*state, message);
        call.begin();
        result = CTreeCtrl::DefWindowProc(message.id, message.wParam, message.lParam);
        call.finish(result);
    });
    unreported.release();
    if (state->usable())
        keepFirst(foreign, [&] { rows.restore(); });
    for (Concern* concern : state->listeners)
        if (state->usable())
            keepFirst(foreign, [&] { concern->settles(message, item.item()); });
    raise(foreign);
    return result;
}
