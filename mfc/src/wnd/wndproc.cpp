// From the system's call to the handler.
#include "handlemap.h"
#include "systemchange.h"
#include "wndactivate.h"
#include "wndprocsender.h"

#include <afxpriv.h>

#include <detail/painted.h>
#include <detail/pending.h>

using afxdetail::threadState;

namespace
{

/// Makes a message the one being handled, and the former one again at the end of the scope, however it ends.
class MessageScope
{
public:
    MessageScope(afxdetail::ThreadState& state, HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(state)
        , m_previous(m_state.lastMessage)
        , m_unwindingBefore(std::exchange(m_state.unwindingBefore, *m_state.unwinding))
        , m_outer(std::exchange(m_state.procedure, this))
    {
        m_state.lastMessage.hwnd = wnd;
        m_state.lastMessage.message = message;
        m_state.lastMessage.wParam = wParam;
        m_state.lastMessage.lParam = lParam;
        ++m_state.dispatchDepth;
    }
    ~MessageScope()
    {
        --m_state.dispatchDepth;
        m_state.procedure = m_outer;
        m_state.unwindingBefore = m_unwindingBefore;
        m_state.lastMessage = m_previous;
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

    MSG message() const { return m_state.lastMessage; }

    /// Whether an exception reaches the sender. A destructor that sends a message while the stack is unwound
    /// would end the program with it.
    bool exceptionsMayLeave() const
    {
        return m_state.unwindingBefore == m_unwindingBefore && afxdetail::senderTakesExceptions(m_outer);
    }

private:
    afxdetail::ThreadState& m_state;
    const MSG m_previous;
    const int m_unwindingBefore;
    const void* const m_outer;
};

LRESULT report(CException* exception, const MSG& message)
{
    struct Deleted
    {
        CException* exception;
        ~Deleted() { exception->Delete(); }
    } const deleted{exception};
    CWinThread* thread = AfxGetThread();
    return thread ? thread->ProcessWndProcException(exception, &message) : 0;
}

LRESULT callReporting(CWnd& object, const MSG& message)
{
    try {
        return object.WindowProc(message.message, message.wParam, message.lParam);
    } catch (CException* exception) {
        return report(exception, message);
    }
}

/// The result of a message whose handler has raised an exception, which is on its way to the sender.
LRESULT resultOfFailure(HWND wnd, UINT message)
{
    if (message == WM_PAINT)
        afxdetail::markPainted(wnd);
    return message == WM_CREATE ? -1 : 0;
}

LRESULT callObject(afxdetail::ThreadState& state, CWnd& object, HWND wnd, UINT message, WPARAM wParam,
                   LPARAM lParam)
{
    const MessageScope scope(state, wnd, message, wParam, lParam);
    try {
        return callReporting(object, scope.message());
    } catch (...) {
        // What follows the last message of a window must not be left out.
        if (message != WM_NCDESTROY && scope.exceptionsMayLeave())
            throw;
        afxdetail::storePendingException();
        return resultOfFailure(wnd, message);
    }
}

bool isColourMessage(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

} // namespace

LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_QUERYAFXWNDPROC)
        return 1;
    afxdetail::ThreadState& state = threadState();
    CWnd* object = afxdetail::wndMap(state).fromHandlePermanent(wnd);
    if (!object)
        return ::DefWindowProcW(wnd, message, wParam, lParam);
    const LRESULT result = callObject(state, *object, wnd, message, wParam, lParam);
    // A handler of its own may have kept this from CWnd: a window that is gone must not be found any more.
    if (message == WM_NCDESTROY)
        if (CWnd* left = CWnd::FromHandlePermanent(wnd))
            left->Detach();
    return result;
}

LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return callObject(threadState(), *object, wnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND wnd = m_hWnd;
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    if (afxdetail::isSystemChange(message))
        afxdetail::passOnSystemChange(wnd, message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND wnd = m_hWnd;
    const WNDPROC super = *GetSuperWndProcAddr();
    return afxdetail::callOut([=] {
        return super ? ::CallWindowProcW(super, wnd, message, wParam, lParam)
                     : ::DefWindowProcW(wnd, message, wParam, lParam);
    });
}

LRESULT CWnd::Default()
{
    const MSG message = threadState().lastMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    MSG& message = threadState().lastMessage;
    message.time = static_cast<DWORD>(::GetMessageTime());
    message.pt = CPoint(static_cast<LPARAM>(::GetMessagePos()));
    return &message;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message) {
    case WM_COMMAND:
        if (!OnCommand(wParam, lParam))
            return FALSE;
        if (result)
            *result = 1;
        return TRUE;
    case WM_NOTIFY: {
        LRESULT answer = 0;
        if (!lParam || !OnNotify(wParam, lParam, &answer))
            return FALSE;
        if (result)
            *result = answer;
        return TRUE;
    }
    case WM_ACTIVATE:
        afxdetail::announceActivation(*this, wParam, reinterpret_cast<HWND>(lParam));
        break;
    case WM_SETCURSOR:
        if (afxdetail::bringPopupToFront(*this, lParam)) {
            if (result)
                *result = TRUE;
            return TRUE;
        }
        break;
    case WM_INITMENUPOPUP:
        threadState().openingMenu = reinterpret_cast<HMENU>(wParam);
        break;
    }
    return callHandler(message, wParam, lParam, result);
}

BOOL CWnd::callHandler(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    afxdetail::Call call;
    call.message = message;
    call.wParam = wParam;
    call.lParam = lParam;

    // One entry stands for the seven messages that ask for a control's colours.
    UINT wanted = message;
    if (isColourMessage(message)) {
        wanted = WM_CTLCOLOR;
    } else if (isColourMessage(message - WM_REFLECT_BASE)) {
        wanted = WM_REFLECT_BASE + WM_CTLCOLOR;
        call.code = static_cast<int>(message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX);
    }

    const AFX_MSGMAP_ENTRY* entry = afxdetail::findWindowMessage(GetMessageMap(), wanted);
    // The object may be gone when the handler returns.
    if (!entry || !entry->pfnThunk(this, call))
        return FALSE;
    if (result)
        *result = call.result;
    return TRUE;
}
