/// Not exported. The text in the dialogs of the update check.
#pragma once

#include <afxwin.h>

#include <string>

namespace ovoui::update
{

/// Puts `text` into the edit control of a `dialog`, which has a scroll bar then only if it needs one.
void showText(CWnd& dialog, const std::wstring& text);

} // namespace ovoui::update
