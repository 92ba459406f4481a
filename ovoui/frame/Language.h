/// The language of the library's texts: dialogs, menus, strings, and the messages of the catalogue.
///
/// Without a call it is the user's own where the library has it, and English where not. A program with a
/// choice of its own makes it before it creates windows:
///
///     setTextLanguage(MAKELANGID(LANG_POLISH, SUBLANG_DEFAULT));
#pragma once

#include <ovoui/export.h>

#include <windows.h>

#include <string>
#include <vector>

/// The languages that there are texts in, without a region, as in MAKELANGID(LANG_GERMAN, SUBLANG_NEUTRAL).
/// English is the first.
OVOUI_API std::vector<LANGID> textLanguages();

/// Chooses the language for all that the calling thread loads from now on, in whatever region; it is the
/// thread's language, so the host's own resources follow. 0 goes back to the user's. False, without a change,
/// when there are no texts in the language or the system refuses.
OVOUI_API bool setTextLanguage(LANGID language);

/// The language that the calling thread gets, as a tag such as "de".
OVOUI_API std::wstring textLanguage();
