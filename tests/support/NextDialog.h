/// Answers dialogs that a test opens.
#pragma once

#include <testkit/Desktop.h>

#include <windows.h>

/// Gives each dialog that waits while the object lives the same command.
class NextDialogAnswered
{
public:
    explicit NextDialogAnswered(WORD command)
        : m_timer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &answer))
    {
        s_command = command;
    }
    ~NextDialogAnswered() { ::KillTimer(nullptr, m_timer); }
    NextDialogAnswered(const NextDialogAnswered&) = delete;
    NextDialogAnswered& operator=(const NextDialogAnswered&) = delete;

private:
    static void CALLBACK answer(HWND, UINT, UINT_PTR, DWORD)
    {
        if (const HWND dialog = ovo::testkit::shownDialog())
            ::PostMessageW(dialog, WM_COMMAND, s_command, 0);
    }

    inline static WORD s_command = 0;
    UINT_PTR m_timer;
};
