// The texts of a resource module, read from the resources themselves in one language at a time.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

/// The texts of a module by their place, such as "dialog 1545, control 3440, the 4th". Keys of accelerator
/// tables count as texts; a control without a text has an empty one.
using Texts = std::map<std::wstring, std::wstring>;

/// Texts that are shown together, of which each needs a letter of its own: a dialog, one level of a menu.
struct TextGroup
{
    std::wstring place;
    std::vector<std::wstring> texts;
};

/// The languages that a module has resources of this type in, but for those that are the same in every
/// language.
std::vector<LANGID> languagesOf(HMODULE module, LPCWSTR type);

/// All dialogs, strings, menus, accelerators and messages in exactly this language.
Texts textsOf(HMODULE module, LANGID language);

/// Dialogs and levels of menus in exactly this language.
std::vector<TextGroup> groupsOf(HMODULE module, LANGID language);

/// A string in exactly this language; empty when it is missing.
std::wstring stringOf(HMODULE module, UINT id, LANGID language);

/// The numbers of the dialogs, in any language.
std::vector<UINT> dialogsOf(HMODULE module);
