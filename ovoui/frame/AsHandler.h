/// Not exported: what becomes of exceptions in procedures that the system calls and that are not the
/// framework's.
#pragma once

#include <ovoui/frame/Exceptions.h>

#include <afxwin.h>

#include <utility>

namespace ovoui::frame
{

/// Ends a message of a window for what was `raised` while it was handled, as the framework's window procedure
/// does: a CException is shown, others are raised again behind the system's code. Gives the message's answer.
LRESULT answerOfFailure(const std::exception_ptr& raised, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam);

/// Makes a call in a procedure set in front of that of a window, and gives its answer to the message. What it
/// raises goes the way of what message handlers raise: it does not pass the system, which would be left in
/// the middle of its work.
template <class Call>
LRESULT asHandler(HWND window, UINT message, WPARAM wParam, LPARAM lParam, Call&& call)
{
    LRESULT answer = 0;
    const std::exception_ptr raised = keeping([&] { answer = std::forward<Call>(call)(); });
    return raised ? answerOfFailure(raised, window, message, wParam, lParam) : answer;
}

} // namespace ovoui::frame
