/// Not exported: the idle update of a toolbar's buttons.
#pragma once

#include <afxext.h>

#include <functional>

namespace ovoui::toolbar
{

/// Asks the bar itself, then `target`, how each command stands, and shows it. An update handler may destroy
/// the bar: the update ends when `usable` no longer holds.
void updateButtons(CToolBar& bar, CCmdTarget& target, bool disableIfNoHandler,
                   const std::function<bool()>& usable);

} // namespace ovoui::toolbar
