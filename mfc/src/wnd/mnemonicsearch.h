// Internal: how dialogs look for the letters of labels.
#pragma once

#include <windows.h>

namespace afxdetail
{

/// Whether a message is a character to a window of the dialog `dialog` within something hidden or disabled.
/// It has no mnemonics to be looked for: some platforms, which enter windows that are shown and enabled alone,
/// would go on for ever, looking for the window where the search began.
bool isLostCharacter(HWND dialog, const MSG& message);

} // namespace afxdetail
