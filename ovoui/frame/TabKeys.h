/// Paging through a tab control by the keyboard.
#pragma once

#include <ovoui/export.h>

#include <windows.h>

/// For a dialog's PreTranslateMessage: lets Ctrl+Tab and Ctrl+Page Down choose the next tab, Ctrl+Shift+Tab and
/// Ctrl+Page Up the previous one, going round at the ends. TRUE means that the message has been handled.
/// The tab control announces the change to its parent as after a click. FALSE for any other message, a null
/// `tabControl` and a control without tabs.
OVOUI_API BOOL PreTranslateTabControl(const MSG& message, HWND tabControl);
