/// Not exported: the handles of the library's own module and of its resource module.
#pragma once

#include <windows.h>

#include <string>

namespace ovoui
{

/// The module of ovoui.dll: the instance of the child windows that it creates, and where its icons lie.
HINSTANCE ownInstance();

/// The module of ovouires.dll: dialog templates, strings, menus, accelerators, bitmaps.
HINSTANCE resourceModule();

/// A string of the resource module, at most 255 characters; empty when it is missing.
std::wstring resourceString(UINT id);

} // namespace ovoui
