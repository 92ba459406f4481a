// CWnd: loops that run until one window says so.
#include <afxwin.h>
#include <afxpriv.h>

#include "wndflags.h"

#include <detail/pending.h>

using namespace afxdetail;

namespace
{

/// Marks a window as running a loop while it lives; the window may be destroyed meanwhile, its object not.
class ModalMark
{
public:
    explicit ModalMark(UINT& flags)
        : m_flags(flags)
    {
        m_flags |= kModalLoop | kContinueModal;
    }
    ~ModalMark() { m_flags &= ~(kModalLoop | kContinueModal); }
    ModalMark(const ModalMark&) = delete;
    ModalMark& operator=(const ModalMark&) = delete;

private:
    UINT& m_flags;
};

constexpr ULONGLONG kLongestHidden = 200; ///< milliseconds; the queue may never be empty

bool queueIsEmpty()
{
    MSG next;
    return loopCallOut([&] { return !::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE); });
}

bool isIdleMessage()
{
    CWinThread* thread = AfxGetThread();
    return !thread || thread->IsIdleMessage(AfxGetCurrentMessage());
}

} // namespace

int CWnd::RunModalLoop(DWORD flags)
{
    ASSERT(::IsWindow(m_hWnd));
    ASSERT(!(m_nFlags & kModalLoop));
    const ModalMark mark(m_nFlags);
    const HWND owner = ::GetParent(m_hWnd);
    const auto goesOn = [this] { return m_hWnd && ContinueModal(); };
    bool show = (flags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    const auto showNow = [&] {
        show = false;
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    };
    const ULONGLONG latest = ::GetTickCount64() + kLongestHidden;
    bool idle = true;
    LONG idleCount = 0;

    for (;;) {
        while (goesOn() && idle && queueIsEmpty()) {
            if (show) {
                showNow();
                continue;
            }
            if (!(flags & MLF_NOIDLEMSG) && owner && idleCount == 0)
                callOut([&] { ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd)); });
            idle = goesOn() && !(flags & MLF_NOKICKIDLE) && SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++);
        }
        if (show && goesOn() && ::GetTickCount64() >= latest)
            showNow();
        if (!m_hWnd && ContinueModal())
            return -1; // destroyed without a word
        if (!goesOn())
            return m_nModalResult;
        if (!AfxPumpMessage()) {
            AfxPostQuitMessage(static_cast<int>(AfxGetCurrentMessage()->wParam)); // for the loop outside
            return -1;
        }
        if (isIdleMessage()) {
            idle = true;
            idleCount = 0;
        }
    }
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & kContinueModal) != 0;
}

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    if (!(m_nFlags & kContinueModal))
        return;
    m_nFlags &= ~kContinueModal;
    PostMessage(WM_NULL); // the loop may be waiting
}
