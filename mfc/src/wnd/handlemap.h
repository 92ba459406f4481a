// Internal to the window engine: the map of windows.
#pragma once

#include <afxwin.h>
#include <detail/handlemap.h>

namespace afxdetail
{

struct WndTraits
{
    using Object = CWnd;
    using Handle = HWND;
    static std::unique_ptr<CWnd> make(HWND wnd) { return std::unique_ptr<CWnd>(WndAccess::makeTemporary(wnd)); }
    static void forget(CWnd& wnd) { wnd.m_hWnd = nullptr; }
};

inline HandleMap<WndTraits>& wndMap()
{
    return handleMap<WndTraits>();
}

} // namespace afxdetail
