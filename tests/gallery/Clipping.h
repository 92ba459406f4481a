/// What of a window's contents a user cannot see for want of room.
#pragma once

#include "../resources/DialogFit.h"

#include <windows.h>

/// Texts that are cut, controls that reach beyond their parent, and controls that cover one another: all that
/// is shown inside `parent`, at any depth. What scrolls and lists of the user's own texts are left out.
Problems clippingProblems(HWND parent);
