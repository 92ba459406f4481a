/// Not exported: what buttons are called.
#pragma once

#include <afxext.h>

#include <string>

namespace ovoui::toolbar
{

/// What a command's string has behind its line feed; empty when there is none.
std::wstring tipOfCommand(int command);
/// What it has before it.
std::wstring promptOfCommand(int command);

/// The text of a bar's button, else the tip of its command.
std::wstring nameOfButton(const CToolBar& bar, int index);

} // namespace ovoui::toolbar
