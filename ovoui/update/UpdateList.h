/// Not exported. An update list, fetched from its address and gone through row by row.
#pragma once

#include <ovoui/update/UpdateTrust.h>
#include <ovoui/update/core/UpdateRow.h>

#include <ovocor/DownloadControl.h>

#include <optional>
#include <string>

namespace ovoui::update
{

/// What the last row offers that is for the running product; none without such a row. With `trust`, which may
/// be null, the list must be signed (see UpdateTrust.h). Throws OvoError. Neither the list nor its copy in
/// the system's cache is kept, whatever happens.
std::optional<Offer> lastOffer(const std::wstring& address, const RunningProduct& running, UpdateTrust* trust,
                               DownloadControl& control);

/// The same, if it is newer than the running product, in the form for hosts.
std::optional<AvailableUpdate> newerVersion(const std::wstring& address, const RunningProduct& running,
                                            UpdateTrust* trust, DownloadControl& control);

RunningProduct runningProduct(const std::wstring& product, const std::wstring& options, const int version[4]);

} // namespace ovoui::update
