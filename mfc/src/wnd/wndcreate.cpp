// CWnd: how an object gets its window and loses it.
#include "handlemap.h"
#include "wndflags.h"

#include <afxole.h>

#include <detail/pending.h>

using afxdetail::threadState;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace
{

/// Windows that the system makes on the side, possibly before the one that was asked for.
bool isSideWindow(HWND wnd)
{
    wchar_t name[8]{};
    ::GetClassNameW(wnd, name, 8);
    return std::wcscmp(name, L"IME") == 0;
}

/// Ties a window to the object that waits for it, before its first message.
void takeOver(CWnd* object, HWND wnd)
{
    object->Attach(wnd);
    try {
        object->PreSubclassWindow();
    } catch (...) {
        afxdetail::storePendingException();
    }
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before != &AfxWndProc)
        *object->GetSuperWndProcAddr() = before;
}

LRESULT CALLBACK creationHook(int code, WPARAM wParam, LPARAM lParam)
{
    afxdetail::ThreadState& state = threadState();
    const HWND wnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.windowBeingHooked && !isSideWindow(wnd))
        takeOver(std::exchange(state.windowBeingHooked, nullptr), wnd);
    return ::CallNextHookEx(state.cbtHook, code, wParam, lParam);
}

} // namespace

void AFXAPI AfxHookWindowCreate(CWnd* wnd)
{
    afxdetail::ThreadState& state = threadState();
    if (state.windowBeingHooked == wnd)
        return;
    if (!state.cbtHook)
        state.cbtHook = ::SetWindowsHookExW(WH_CBT, &creationHook, nullptr, ::GetCurrentThreadId());
    if (!state.cbtHook)
        AfxThrowMemoryException();
    ASSERT(!state.windowBeingHooked);
    state.windowBeingHooked = wnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    afxdetail::ThreadState& state = threadState();
    if (state.cbtHook && (!state.windowBeingHooked || state.dispatchDepth == 0)) {
        ::UnhookWindowsHookEx(state.cbtHook);
        state.cbtHook = nullptr;
    }
    return std::exchange(state.windowBeingHooked, nullptr) != nullptr;
}

CWnd::CWnd() = default;

CWnd::CWnd(HWND wnd)
    : m_hWnd(wnd)
    , m_nFlags(afxdetail::kBorrowed)
{
}

CWnd::~CWnd()
{
    if (!m_hWnd || (m_nFlags & afxdetail::kBorrowed) || FromHandlePermanent(m_hWnd) != this)
        return;
    // No exception may leave a destructor: what a handler raises now waits for the next call that can.
    const HWND wnd = m_hWnd;
    ::DestroyWindow(wnd);
    if (m_hWnd)
        Detach();
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  void* context)
{
    ASSERT(parent);
    return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id, context);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID param)
{
    return CreateEx(exStyle, className, title, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR title, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    CREATESTRUCT cs{};
    cs.dwExStyle = exStyle;
    cs.lpszClass = className;
    cs.lpszName = title;
    cs.style = static_cast<LONG>(style);
    cs.x = x;
    cs.y = y;
    cs.cx = width;
    cs.cy = height;
    cs.hwndParent = parent;
    cs.hMenu = idOrMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = param;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    AfxHookWindowCreate(this);
    const HWND wnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx,
                          cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came to be, so no message ended it
    afxdetail::rethrowPendingException();
    return wnd != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    const HWND wnd = m_hWnd;
    if (!wnd)
        return FALSE;
    const bool permanent = FromHandlePermanent(wnd) == this;
    const BOOL destroyed = ::DestroyWindow(wnd);
    // A window with another procedure than ours has not told us; one with ours has, and may have deleted us.
    if (permanent && FromHandlePermanent(wnd) == this)
        Detach();
    afxdetail::rethrowPendingException();
    return destroyed;
}

BOOL CWnd::SubclassWindow(HWND wnd)
{
    if (!Attach(wnd))
        return FALSE;
    PreSubclassWindow();
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before != &AfxWndProc)
        *GetSuperWndProcAddr() = before;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND control = ::GetDlgItem(parent->GetSafeHwnd(), static_cast<int>(id));
    return control && SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow()
{
    ASSERT(::IsWindow(m_hWnd));
    WNDPROC* super = GetSuperWndProcAddr();
    if (*super)
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

/// The last message of a window: the object lets go of it, and may delete itself.
void CWnd::OnNcDestroy()
{
    forgetThreadRoles();
    if (m_pDropTarget)
        m_pDropTarget->Revoke();

    const HWND wnd = m_hWnd;
    const auto procedure = ::GetWindowLongPtrW(wnd, GWLP_WNDPROC);
    Default();
    WNDPROC* super = GetSuperWndProcAddr();
    // Given back only where nobody has put another procedure in front of ours meanwhile.
    if (*super && ::GetWindowLongPtrW(wnd, GWLP_WNDPROC) == procedure &&
        procedure == reinterpret_cast<LONG_PTR>(&AfxWndProc))
        ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::forgetThreadRoles()
{
    CWinThread* thread = AfxGetThread();
    if (thread && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        if (thread == AfxGetApp())
            AfxPostQuitMessage(0); // closing the main window ends the program
    }
    if (thread && thread->m_pActiveWnd == this)
        thread->m_pActiveWnd = nullptr;
    if (threadState().toolTipOwner == this)
        CancelToolTips();
}

void CWnd::PostNcDestroy() {}

void CWnd::OnFinalRelease()
{
    if (m_hWnd)
        DestroyWindow();
    else
        PostNcDestroy();
}
