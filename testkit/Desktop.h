#pragma once

#include <afxwin.h>

namespace ovo::testkit
{

// What a user sees of the calling thread's windows. To be used on the thread with the windows: in a test's
// body and in the conditions and spots of a story.

/// The shown top-level window with this title, and of the class `windowClass` if one is given; else null.
HWND shownWindow(const wchar_t* title, const wchar_t* windowClass = nullptr);

/// The dialog that the user has to answer: shown, enabled, in front of the others; else null.
HWND shownDialog();

/// The open popup menu, the innermost of several; else null.
HWND shownMenu();

/// Shows a window, makes it the active one, and lets it paint, until it is seen on the screen. To be called
/// before it gets input. Fails the test when that cannot be.
void present(CWnd& window);

} // namespace ovo::testkit
