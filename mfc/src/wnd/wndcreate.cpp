// CWnd: how an object gets its window.
#include "handlemap.h"

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
    ::GetClassNameW(wnd, name, static_cast<int>(std::size(name)));
    return ::_wcsicmp(name, L"IME") == 0;
}

/// Ties a window to the object that waits for it, before its first message.
void takeOver(CWnd& object, HWND wnd)
{
    if (!object.Attach(wnd))
        return;
    try {
        object.PreSubclassWindow();
    } catch (...) {
        afxdetail::storePendingException();
    }
    if (object.m_hWnd == wnd) // PreSubclassWindow may have decided otherwise
        afxdetail::WndAccess::takeOverProcedure(object);
}

LRESULT CALLBACK creationHook(int code, WPARAM wParam, LPARAM lParam)
{
    afxdetail::ThreadState& state = threadState();
    const HWND wnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.windowBeingHooked && !isSideWindow(wnd))
        takeOver(*std::exchange(state.windowBeingHooked, nullptr), wnd);
    return ::CallNextHookEx(state.cbtHook, code, wParam, lParam);
}

} // namespace

void AFXAPI AfxHookWindowCreate(CWnd* wnd)
{
    afxdetail::ThreadState& state = threadState();
    if (state.windowBeingHooked == wnd)
        return;
    // One that waits further out has got its window before any code could ask for another.
    ASSERT(!state.windowBeingHooked);
    if (!state.cbtHook)
        state.cbtHook = ::SetWindowsHookExW(WH_CBT, &creationHook, nullptr, ::GetCurrentThreadId());
    if (!state.cbtHook)
        AfxThrowMemoryException();
    state.windowBeingHooked = wnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    afxdetail::ThreadState& state = threadState();
    if (const HHOOK hook = std::exchange(state.cbtHook, nullptr))
        ::UnhookWindowsHookEx(hook);
    return std::exchange(state.windowBeingHooked, nullptr) != nullptr;
}

CWnd::CWnd() = default;

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                  CCreateContext* context)
{
    ASSERT(parent);
    ASSERT(!(style & WS_POPUP));
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
    ASSERT(!m_hWnd);
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

    afxdetail::CallOut creation;
    AfxHookWindowCreate(this);
    const HWND wnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx,
                          cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came to be, so no message ended it
    const bool complete = wnd && !creation.failed();
    if (wnd && !complete)
        ::DestroyWindow(wnd);
    creation.finish();
    return complete;
}

/// False for a window of another program.
bool CWnd::takeOverProcedure()
{
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before && before != &AfxWndProc)
        *GetSuperWndProcAddr() = before;
    return before != nullptr;
}

BOOL CWnd::SubclassWindow(HWND wnd)
{
    if (!Attach(wnd))
        return FALSE;
    try {
        PreSubclassWindow();
    } catch (...) {
        Detach();
        throw;
    }
    if (takeOverProcedure())
        return TRUE;
    Detach();
    return FALSE;
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
