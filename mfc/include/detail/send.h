// Internal: messages to controls with their arguments and results as what they are.
#pragma once

#include <afx/Wnd.h>

#include <type_traits>

namespace afxdetail
{

/// Between integers, pointers and handles of any kind.
template <class To, class From>
To messageCast(From value)
{
    if constexpr (std::is_void_v<To>)
        static_cast<void>(value);
    else if constexpr (std::is_null_pointer_v<From>)
        return To{};
    else if constexpr (std::is_pointer_v<From> || (std::is_pointer_v<To> && sizeof(From) == sizeof(To)))
        return reinterpret_cast<To>(value);
    else if constexpr (std::is_pointer_v<To>)
        return reinterpret_cast<To>(static_cast<INT_PTR>(value));
    else
        return static_cast<To>(value);
}

/// Sends a message to a control, which must have a window, and gives its result.
template <class Result = LRESULT, class First = WPARAM, class Second = LPARAM>
Result send(const CWnd& control, UINT message, First wParam = {}, Second lParam = {})
{
    ASSERT(::IsWindow(control.m_hWnd));
    return messageCast<Result>(
        control.SendMessage(message, messageCast<WPARAM>(wParam), messageCast<LPARAM>(lParam)));
}

/// The object of a control's window as a wrapper class. A temporary one is a plain CWnd underneath; that does
/// no harm, as wrappers have no data of their own.
template <class Control>
Control* controlFrom(HWND window)
{
    return static_cast<Control*>(CWnd::FromHandle(window));
}

/// Two signed 16-bit values in one argument.
inline LPARAM pack(int low, int high)
{
    return MAKELPARAM(low, high);
}

/// Fetches a text of unknown length: `get(buffer, room)` copies what fits and gives the characters copied.
template <class Get>
CString textOfAnyLength(Get get)
{
    CString text;
    for (int room = 128;; room *= 2) {
        const int length = get(text.GetBuffer(room), room);
        text.ReleaseBuffer();
        if (length < room - 1)
            return text;
    }
}

} // namespace afxdetail
