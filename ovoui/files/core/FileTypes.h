/// Not exported: a typed list of file types in the form that the system's dialogs take.
#pragma once

#include <ovoui/files/FileType.h>

#include <string>
#include <string_view>
#include <vector>

namespace ovoui
{

/// Pairs of a description and patterns, each ended by a zero, and an empty text. Whatever the list holds, the
/// pairs stay pairs: zeros are left out; a type without a name is called by its patterns, one without
/// patterns means all files.
std::wstring filterTextOf(const std::vector<FileType>& types);

/// The number, from 1, of the first type with the pattern "*" and the extension, in any case of ASCII
/// letters; 0 when there is none.
int typeWith(const std::vector<FileType>& types, std::wstring_view extension);

/// The extension as a dialog adds it to names; the rest of the same text.
std::wstring_view withoutPeriod(std::wstring_view extension);

} // namespace ovoui
