// Internal: how help is asked for.
#pragma once

#include <afx/WinApp.h>

#include <utility>

namespace afxdetail
{

/// Shows help on a context, in the kind of help that the program has chosen. FALSE for 0, and without a
/// program.
BOOL showHelp(DWORD_PTR context);

/// Whether the main window or the program handles ID_HELP.
bool programHasHelp();

/// Sends ID_HELP to the main window, as the F1 key does. FALSE when there is no handler for it.
BOOL askForHelp();

/// Whether a key, about to be handled, is F1 alone.
bool isHelpKey(const MSG& message);

/// Marks the message box that a thread shows, from before it opens until it is closed.
class OpenMessageBox
{
public:
    /// `helpId` 0: there is no help on it. `helpButton`: the system tells the owner when the user wants help.
    OpenMessageBox(UINT helpId, bool helpButton);
    ~OpenMessageBox();
    OpenMessageBox(const OpenMessageBox&) = delete;
    OpenMessageBox& operator=(const OpenMessageBox&) = delete;

    /// The innermost one, or null.
    static const OpenMessageBox* current();

    UINT helpId() const { return m_helpId; }
    bool hasHelpButton() const { return m_helpButton; }

private:
    static LRESULT CALLBACK filter(int code, WPARAM wParam, LPARAM lParam);

    const UINT m_helpId;
    const bool m_helpButton;
    const OpenMessageBox* const m_outer;
    const HHOOK m_hook;
};

/// Of WM_HELP: when a message box is open, the request is about it and is dealt with here. False when none is
/// open.
bool helpOfMessageBox();

} // namespace afxdetail
