/// Versions of up to four numbers, and patterns of them. Plain values, no windows.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace ovoui::update
{

/// The numbers from the most important one on; -1 where any number will do.
using Version = std::array<int, 4>;

/// Reads up to four decimal numbers with dots between them. A "*" and what is not given are -1; an empty
/// number is 0. None when there are more than four, or one of them is anything else or larger than
/// 2147483647.
std::optional<Version> parseVersion(std::wstring_view text);

/// Whether every number that the pattern gives is the same in `version`.
bool matches(const Version& pattern, const Version& version);

/// Whether `offered` is newer than `installed`: the first number that it gives and that differs is the
/// greater one.
bool isNewer(const Version& offered, const Version& installed);

/// Whether one list was issued before another, by their numbers as versions; what is no number was issued
/// before all that have one.
bool wasIssuedBefore(std::wstring_view issue, std::wstring_view seen);

} // namespace ovoui::update
