/// Not exported: subclassing by the common controls, in programs with a manifest and without.
///
/// Version 5 of the common controls, which a program without a manifest gets, gives these functions by
/// number; which of its builds give them by name too differs. The numbers are the same in all versions. An
/// import by name could keep the whole library from being loaded.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace ovoui::frame
{

/// As SetWindowSubclass. False also where the functions are not found.
bool setSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);

/// As RemoveWindowSubclass.
void removeSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);

/// As DefSubclassProc: for procedures that setSubclass has set.
LRESULT nextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace ovoui::frame
