/// The menu that ends a drag with the right button.
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

#include <string>

/// Lets the user choose among move, copy and link from a menu at `point` (client coordinates of `wnd`).
/// Effects are OLE's DROPEFFECT_ bits: those not in `allowedEffects` are greyed, `defaultEffect` is the bold
/// one. A `label` that is not empty names in each line what is dropped.
///
/// Gives the effect chosen, or DROPEFFECT_NONE when the menu is dismissed.
OVOUI_API DWORD nondefaultDrop(CWnd& wnd, DWORD defaultEffect, DWORD allowedEffects, const CPoint& point,
                               const std::wstring& label);
