/// Not exported: a toolbar control that keeps to itself.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace ovoui::toolbar
{

/// While it lives the control tells its owner nothing, who could destroy it in the middle of what it does.
class WithoutOwner
{
public:
    explicit WithoutOwner(HWND wnd)
        : m_wnd(wnd)
        , m_owner(::SendMessageW(wnd, TB_SETPARENT, 0, 0))
    {
    }
    ~WithoutOwner() { ::SendMessageW(m_wnd, TB_SETPARENT, static_cast<WPARAM>(m_owner), 0); }
    WithoutOwner(const WithoutOwner&) = delete;
    WithoutOwner& operator=(const WithoutOwner&) = delete;

    HWND owner() const { return reinterpret_cast<HWND>(m_owner); }

private:
    HWND m_wnd;
    LRESULT m_owner;
};

} // namespace ovoui::toolbar
