// Internal to the window engine: the map of windows.
#pragma once

#include <afxwin.h>
#include <detail/handlemap.h>

namespace afxdetail
{

/// What the engine needs of a CWnd beyond its members.
struct WndAccess
{
    static std::unique_ptr<CWnd> makeTemporary(HWND wnd) { return std::unique_ptr<CWnd>(new CWnd(wnd)); }
    static bool takeOverProcedure(CWnd& object) { return object.takeOverProcedure(); }
};

struct WndTraits
{
    using Object = CWnd;
    using Handle = HWND;
    static std::unique_ptr<CWnd> make(HWND wnd) { return WndAccess::makeTemporary(wnd); }
    static void forget(CWnd& wnd) { wnd.m_hWnd = nullptr; }
};

/// The running thread's map of windows, which its block holds: every message looks into it.
inline HandleMap<WndTraits>& wndMap(ThreadState& state = threadState())
{
    if (!state.windows)
        state.windows = &handleMap<WndTraits>();
    return *state.windows;
}

} // namespace afxdetail
