// CWnd: how an object loses its window.
#include "handlemap.h"
#include "wndflags.h"

#include <afxole.h>

#include <detail/pending.h>

using afxdetail::wndMap;

namespace
{

/// Does a part of the farewell that may fail: the rest must happen all the same.
template <class Part>
void regardless(Part part)
{
    try {
        part();
    } catch (...) {
        afxdetail::storePendingException();
    }
}

} // namespace

CWnd::~CWnd()
{
    if (!m_hWnd || (m_nFlags & afxdetail::kBorrowed) || FromHandlePermanent(m_hWnd) != this)
        return;
    // No exception may leave a destructor: what a handler raises now waits for the next call that can raise it.
    ::DestroyWindow(m_hWnd);
    if (m_hWnd)
        Detach();
}

BOOL CWnd::DestroyWindow()
{
    const HWND wnd = m_hWnd;
    if (!wnd)
        return FALSE;
    return afxdetail::callOut([this, wnd] {
        const BOOL destroyed = ::DestroyWindow(wnd);
        // The object may be gone. A window with another procedure than ours has not told it.
        if (destroyed && FromHandlePermanent(wnd) == this)
            Detach();
        if (destroyed)
            wndMap().remove(wnd);
        return destroyed;
    });
}

/// The last message of a window: the object lets go of it, and may delete itself.
void CWnd::OnNcDestroy()
{
    const HWND wnd = m_hWnd;
    regardless([this] { forgetRoles(); });

    const auto procedure = ::GetWindowLongPtrW(wnd, GWLP_WNDPROC);
    regardless([this] { Default(); });
    WNDPROC* super = GetSuperWndProcAddr();
    // Given back only if no other procedure has been put in front of ours.
    if (*super && procedure == reinterpret_cast<LONG_PTR>(&AfxWndProc) &&
        ::GetWindowLongPtrW(wnd, GWLP_WNDPROC) == procedure)
        ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    Detach();
    wndMap().remove(wnd);
    PostNcDestroy();
}

void CWnd::forgetRoles()
{
    if (CWinThread* thread = AfxGetThread()) {
        if (thread->m_pActiveWnd == this)
            thread->m_pActiveWnd = nullptr;
        if (thread->m_pMainWnd == this) {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0); // closing the main window ends the loop
        }
    }
    forgetTools();
    if (m_pDropTarget)
        m_pDropTarget->Revoke();
}

void CWnd::PostNcDestroy() {}

void CWnd::OnFinalRelease()
{
    if (m_hWnd)
        DestroyWindow();
    else
        PostNcDestroy();
}
