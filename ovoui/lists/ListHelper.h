/// Not for hosts: what the helpers of a list have in common.
#pragma once

#include <ovoui/frame/Lifeline.h>

#include <afxcmn.h>

namespace ovoui::lists
{

/// Hears the messages of a list's window. One subclass of the window serves all its helpers, since each costs
/// some platforms more than what the helpers do. A helper that is attached later hears a message earlier.
/// `message`, `wParam` and `lParam` are what the window gets.
class ListHelper
{
public:
    ListHelper(const ListHelper&) = delete;
    ListHelper& operator=(const ListHelper&) = delete;

protected:
    ListHelper() = default;
    virtual ~ListHelper();

    /// The list must have its window, which may be destroyed before this object. Replaces the window of
    /// before.
    void hear(CWnd& list);
    /// Nothing happens without a window.
    void stopHearing();

    /// Before the list has a message. True: the list does not get it, and `result` is the answer.
    virtual bool takes(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    /// When the list has handled a message.
    virtual void heard(UINT message, WPARAM wParam, LPARAM lParam);
    /// The window goes, or the helper leaves it.
    virtual void left();

    HWND m_window = nullptr; ///< null without a list
    Lifeline m_lifeline;     ///< for derived classes that call the host

private:
    friend class ListMessages;
};

} // namespace ovoui::lists
