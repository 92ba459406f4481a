/// Not exported. An update list, fetched from its address and gone through row by row.
#pragma once

#include <ovoui/update/core/UpdateRow.h>

#include <optional>
#include <string>

namespace ovoui::update
{

/// What the last row offers that is for the running product; none without such a row. Throws OvoError.
/// Neither the list nor its copy in the system's cache is kept, whatever happens.
std::optional<Offer> lastOffer(const std::wstring& address, const RunningProduct& running);

} // namespace ovoui::update
