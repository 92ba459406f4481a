// Names of files as menus show them.
#pragma once

#include <string>

namespace afxdetail
{

/// A path in at most `room` characters. Folders are left out from the front and stand as "...", after the
/// drive or the share: "C:\...\letters\mother.txt". When no folder fits, it is the name alone, then the name
/// without its ending. A name that does not fit even so is given all the same with `atLeastName`; without,
/// the answer is empty.
std::wstring abbreviatedPath(const std::wstring& path, std::size_t room, bool atLeastName);

/// Whether a path lies in a folder itself, not in one below. Case does not count. The folder ends with a
/// backslash.
bool liesIn(const std::wstring& path, const std::wstring& folder);

/// The name with its number before it, which is the key that chooses it: "&1 name" to "&9 name", then "1&0
/// name", then without a key. An ampersand of the name is shown as one.
std::wstring numberedItem(int number, const std::wstring& name);

} // namespace afxdetail
