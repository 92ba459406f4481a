// From the system's call to the handler.
#include <afxwin.h>
#include <afxpriv.h>

#include <detail/pending.h>
#include <detail/threadstate.h>

using afxdetail::threadState;

namespace
{

/// Makes a message the one being handled, and the former one again at the end of the scope, however it ends.
class MessageScope
{
public:
    MessageScope(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(threadState())
        , m_previous(m_state.lastMessage)
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
        m_state.lastMessage = m_previous;
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

    const MSG& message() const { return m_state.lastMessage; }

private:
    afxdetail::ThreadState& m_state;
    const MSG m_previous;
};

/// The result of a message whose handler raised an exception that is on its way to the sender.
LRESULT failureResult(UINT message)
{
    return message == WM_CREATE ? -1 : 0;
}

LRESULT report(CException* exception, const MSG& message)
{
    CWinThread* thread = AfxGetThread();
    const LRESULT result = thread ? thread->ProcessWndProcException(exception, &message) : 0;
    exception->Delete();
    return result;
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
    CWnd* object = CWnd::FromHandlePermanent(wnd);
    if (!object)
        return ::DefWindowProcW(wnd, message, wParam, lParam);
    return AfxCallWndProc(object, wnd, message, wParam, lParam);
}

LRESULT AFXAPI AfxCallWndProc(CWnd* object, HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const MessageScope scope(wnd, message, wParam, lParam);
    try {
        return object->WindowProc(message, wParam, lParam);
    } catch (CException* exception) {
        return report(exception, scope.message());
    } catch (...) {
        afxdetail::storePendingException();
        return failureResult(message);
    }
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
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
    ASSERT(threadState().dispatchDepth > 0);
    MSG& message = threadState().lastMessage;
    message.time = static_cast<DWORD>(::GetMessageTime());
    const CPoint point(static_cast<LPARAM>(::GetMessagePos()));
    message.pt = point;
    return &message;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    afxdetail::Call call;
    call.message = message;
    call.wParam = wParam;
    call.lParam = lParam;

    UINT wanted = message;
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
    default:
        if (isColourMessage(message)) {
            wanted = WM_CTLCOLOR;
        } else if (isColourMessage(message - WM_REFLECT_BASE)) {
            wanted = WM_REFLECT_BASE + WM_CTLCOLOR;
            call.code = static_cast<int>(message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX);
        }
    }

    const AFX_MSGMAP_ENTRY* entry = afxdetail::findWindowMessage(GetMessageMap(), wanted);
    // The object may be gone when the handler returns.
    if (!entry || !entry->pfnThunk(this, call))
        return FALSE;
    if (result)
        *result = call.result;
    return TRUE;
}
