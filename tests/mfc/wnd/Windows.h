// The windows that the engine's tests use: hidden ones of ours, and plain ones that the engine knows nothing of.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace wndtest
{

using Log = std::vector<std::string>;

/// A hidden window with a client area of 200 by 150 pixels, at least.
template <class Base = CWnd>
class Hidden : public Base
{
public:
    ~Hidden() override
    {
        if (this->m_hWnd)
            this->DestroyWindow();
    }

    BOOL create(DWORD style = WS_POPUP, CWnd* owner = nullptr, DWORD exStyle = 0)
    {
        return this->CreateEx(exStyle, AfxRegisterWndClass(0), L"hidden", style, 10, 20, 200, 150,
                              owner->GetSafeHwnd(), nullptr);
    }

    BOOL createChild(CWnd& parent, UINT id, const CRect& place = CRect(0, 0, 40, 30))
    {
        return this->CreateEx(0, AfxRegisterWndClass(0), L"child", WS_CHILD, place, &parent, id);
    }
};

/// A control of the system that no object is attached to; destroyed with its parent.
inline HWND plainControl(HWND parent, const wchar_t* windowClass, int id, DWORD style = 0)
{
    return ::CreateWindowExW(0, windowClass, L"plain", WS_CHILD | style, 0, 0, 30, 20, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleW(nullptr), nullptr);
}

/// A top-level window that no object is attached to. WM_APP gives 33 there.
class PlainWindow
{
public:
    PlainWindow()
    {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &procedure;
        windowClass.hInstance = ::GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"wndtest plain";
        ::RegisterClassW(&windowClass); // fails from the second time on, which does no harm
        m_wnd = ::CreateWindowExW(0, L"wndtest plain", L"plain", WS_POPUP, 0, 0, 50, 40, nullptr, nullptr,
                                  windowClass.hInstance, nullptr);
    }
    ~PlainWindow()
    {
        if (::IsWindow(m_wnd))
            ::DestroyWindow(m_wnd);
    }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    operator HWND() const { return m_wnd; }

private:
    static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return message == WM_APP ? 33 : ::DefWindowProcW(wnd, message, wParam, lParam);
    }

    HWND m_wnd;
};

} // namespace wndtest
