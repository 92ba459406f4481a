// Internal: what the framework knows about the running thread.
#pragma once

#include <afx/Platform.h>

#include <exception>
#include <vector>

class AFX_MODULE_STATE;
class CWinThread;
class CWnd;

namespace afxdetail
{

template <class Traits>
class HandleMap;
struct WndTraits;

struct TemporaryPurge
{
    void (*purge)(void* map);
    void* map;
};

/// One block a thread, made when it is first asked for and kept as long as the process: windows may outlive
/// the destructors of thread-local objects.
struct ThreadState
{
    AFX_MODULE_STATE* moduleState = nullptr; ///< pushed by AFX_MANAGE_STATE; null means the process's
    CWinThread* currentThread = nullptr;
    HandleMap<WndTraits>* windows = nullptr; ///< made when the first window is asked for
    MSG lastMessage{};                       ///< the message being handled, for CWnd::Default
    CWnd* windowBeingHooked = nullptr;
    HHOOK cbtHook = nullptr;
    std::vector<TemporaryPurge> temporaryPurges; ///< one a kind of handle
    int dispatchDepth = 0;                       ///< window procedures of ours on the stack
    const void* procedure = nullptr;             ///< an address in the stack frame of the innermost of them
    std::exception_ptr pendingException;         ///< kept for the call into the system that is under way
    std::exception_ptr leftException;            ///< kept while none was, for the next step of a message loop
    int callOuts = 0;               ///< calls into the system on the stack that raise what is kept meanwhile
    int unwindingBefore = 0;        ///< exceptions that were unwinding the stack when the message came in
    const int* unwinding = nullptr; ///< how many are now
    HMENU openingMenu = nullptr;    ///< the popup that was about to be shown last
    CWnd* toolTip = nullptr;        ///< the thread's tooltip control
    CWnd* toolTipOwner = nullptr;   ///< the window whose tool it shows
    INT_PTR toolTipHit = -1;        ///< the tool under the pointer, -1 for none
    UINT toolTipFlags = 0;          ///< of that tool, TTF_
    int waitCursorCount = 0;
    HCURSOR waitCursorRestore = nullptr;
    wchar_t wndClassName[96]{}; ///< the name that AfxRegisterWndClass gave last
};

/// Leaves the thread's last error as it is.
OVOMFC_API ThreadState& threadState();

/// Deletes the running thread's block and the module state: for the unloading of the DLL.
void releaseStates();

} // namespace afxdetail
