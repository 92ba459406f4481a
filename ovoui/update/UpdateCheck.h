/// Asks a list on the web whether there is a newer version of a program.
///
///     const int version[4] = {11, 2, 0, 1234};
///     checkForUpdates(L"https://example.org/updates.csv", L"Drawing Board", L"Professional", version);
#pragma once

#include <ovoui/export.h>

#include <optional>
#include <string>

/// A newer version that a list offers.
struct AvailableUpdate
{
    std::wstring version;     ///< as the list has it
    std::wstring description; ///< the version where the list has no description
    std::wstring page;        ///< address of the page that describes the update
};

/// Reads the update list at `address` and gives the newer version that it offers for this `product`, these
/// `options`, and this installed `version` (four numbers) on Windows for Intel64 processors; none when there
/// is no newer one. Where several rows of the list apply, the last one counts.
///
/// Waits for the server. Throws OvoError, with the address, when the list cannot be fetched or a row lacks a
/// column that every row must have; with the file or the line, when what came cannot be read or is not in
/// the form of a list. Keeps no copy of the list.
OVOUI_API std::optional<AvailableUpdate> findUpdate(const std::wstring& address, const std::wstring& product,
                                                    const std::wstring& options, const int version[4]);

/// Asks with `address`, `product`, `options` and `version` as findUpdate does, and tells the user the result
/// in a modal dialog. The wait cursor is shown until it has been asked. When the user accepts an update, its
/// page is opened with `browseUrl`, whose errors come out of here too.
OVOUI_API void checkForUpdates(const std::wstring& address, const std::wstring& product,
                               const std::wstring& options, const int version[4]);
