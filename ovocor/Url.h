/// Web addresses and downloads. Where the system has no WinINet, all functions here throw a WinError that
/// names it.
#pragma once

#include <ovocor/DownloadControl.h>
#include <ovocor/export.h>

#include <string>

/// The canonical form of the address `url`: unsafe characters escaped, "." and ".." resolved. Throws
/// OvoError, naming the address, when it has none.
OVOCOR_API std::wstring canonicalizeUrl(const std::wstring& url);

/// Downloads an http or https address into the system's URL cache, always anew, and gives the full name
/// of the local file. The cache entry is kept under `url`: ::DeleteUrlCacheEntryW(url) removes it with the
/// file. A name and a password in the address may have escapes, such as %40 for @.
///
/// Returns when the download is complete. Throws OvoError with a text that names the address, what went wrong
/// and what to try: the address is not valid, the server is not found, cannot be reached or does not answer
/// (30 seconds for each step), it answers with an error, the connection ends before all of the announced size
/// has come, the disk is full. Then nothing new is kept; a file of an earlier download stays.
OVOCOR_API std::wstring downloadUrlToCache(const std::wstring& url);

/// The same for `url` on a thread of the caller's choice, watched and ended with `control`. Throws
/// DownloadCancelled when that ends it.
OVOCOR_API std::wstring downloadUrlToCache(const std::wstring& url, DownloadControl& control);
