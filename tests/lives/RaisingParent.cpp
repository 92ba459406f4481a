#include "RaisingParent.h"

#include <support/Raising.h>

#include <optional>
#include <utility>

namespace
{

/// What a control tells or asks by a message; none in other messages of the system.
std::optional<UINT> told(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
        return HIWORD(wParam);
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(lParam)->code;
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
        return message;
    default:
        return message >= WM_USER ? std::optional(message) : std::nullopt;
    }
}

} // namespace

RaisingParent::RaisingParent(Names names)
    : m_names(std::move(names))
{
    CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 200), nullptr, 0);
}

RaisingParent::~RaisingParent()
{
    DestroyWindow();
}

LRESULT RaisingParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::optional<UINT> code = told(message, wParam, lParam);
    const auto known = code ? m_names.find(*code) : m_names.end();
    if (known != m_names.end())
        Raising::here(known->second);
    return CWnd::WindowProc(message, wParam, lParam);
}
