/// Whether a window looks the same however little of it is painted.
#pragma once

#include "../resources/TextChecks.h"

#include <windows.h>

/// Paints parts of `window` once more. Gives a line for each after which it looks another way, as does what
/// inverts its ground and is drawn beside the part, too. The windows in it do not count, and of the classes
/// whose themes Wine draws differently in a part than in the whole, it gives none.
Problems changedByPartialPainting(HWND window);
