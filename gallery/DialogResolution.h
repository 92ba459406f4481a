// Dialogs as large as the monitor wants them.
#pragma once

#include <afxwin.h>

/// Makes a modeless dialog from a template of the program inside `parent`. The system makes dialogs for the
/// resolution of the monitor, or, in a program of an older kind, for that of the first monitor; then the font
/// of the template is asked for as much larger, and all lengths in the template follow it. False when the
/// dialog cannot be made.
bool createAtResolution(CDialog& dialog, UINT templateId, CWnd& parent);
