/// Not exported: the message by which the tree asks itself to open the label editor once more.
#pragma once

#include <windows.h>

namespace ovoui::tree
{

extern const UINT kEditLabelAgain;

} // namespace ovoui::tree
