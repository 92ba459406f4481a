/// The library's message box.
///
///     const int answer = OVOMessageBox(m_hWnd, L"Replace the existing file?", nullptr,
///                                      OVOMB_EXTBUTTONS | 3 | MB_DEFBUTTON3, L"ReplaceFile", 0);
///     if (answer == IDYESTOALL) ...
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/MessageBoxFlags.h>

#include <windows.h>

/// Shows a message with buttons and waits for the answer. The text can be scrolled, selected and copied; Ctrl+C
/// with nothing selected copies it all.
///
/// `owner` (may be null) is disabled meanwhile, and gets the registered message "commdlg_help" with the box's
/// handle in wParam when Help is pressed. `text` may have several lines with any line ends. A null or empty
/// `caption` gives the default caption. `type` takes the platform's MB_ button sets, icons, default buttons and
/// MB_HELP, and the flags of MessageBoxFlags.h. When the user has moved the box, the place of its default button is
/// kept in the application's profile, section "settings", entry `settingsKey` (null counts as empty), and the
/// next box with that key opens with its default button there. `helpId`, if not 0, is the help context for F1.
///
/// Returns the id of the button pressed, IDCANCEL for Escape, or -1 when the box cannot be created. The close
/// box answers IDCANCEL, IDNO, IDIGNORE or IDOK, the first that the box has a button for. Throws WinError when
/// the font cannot be measured.
OVOUI_API int OVOMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                            const wchar_t* settingsKey, UINT helpId);
