/// Which addresses may be opened, and which a signed list may come from. Plain values, no windows.
#pragma once

#include <string>
#include <string_view>

namespace ovoui::update
{

/// Whether the system sees all of an address: what it is given ends at a zero.
bool isSeenWhole(std::wstring_view address);

/// Whether pages of a scheme may be opened, by WinINet's number for it: those of ftp, http and https.
bool mayBeOpened(int scheme);

/// Whether an address in its canonical form is that of an encrypted connection.
bool isSecure(std::wstring_view canonical);

/// Where the signature of a list is.
std::wstring signatureAddress(const std::wstring& list);

} // namespace ovoui::update
