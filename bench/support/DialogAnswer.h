#pragma once

#include <windows.h>

#include <cwchar>

/// While it lives, every dialog of this thread gets a command as soon as it is activated.
template <int Command>
class DialogAnswer
{
public:
    DialogAnswer()
        : m_hook(::SetWindowsHookExW(WH_CBT, &hook, nullptr, ::GetCurrentThreadId()))
    {
    }
    ~DialogAnswer() { ::UnhookWindowsHookEx(m_hook); }
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_ACTIVATE) {
            const HWND wnd = reinterpret_cast<HWND>(wParam);
            wchar_t name[16]{};
            ::GetClassNameW(wnd, name, 16);
            if (std::wcscmp(name, L"#32770") == 0)
                ::PostMessageW(wnd, WM_COMMAND, Command, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
