/// Whether the focus is seen.
#pragma once

#include "../resources/TextChecks.h"

#include <windows.h>

/// Controls of a dialog that Tab leads to and that look the same with the focus as without it, while no caret
/// shows it either.
Problems unseenFocusIn(HWND dialog);

/// Whether something shows that `focus`, which has the focus, has it: a caret, or other pixels on the screen
/// inside `part` of it (client pixels) than while `elsewhere` has the focus, where it stays.
bool isFocusSeen(HWND focus, const RECT& part, HWND elsewhere = nullptr);
