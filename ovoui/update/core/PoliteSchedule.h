/// When a check that the user did not ask for is welcome. Plain values, no windows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovoui::update
{

/// Times are seconds since 1970; 0 is never.
struct PoliteSchedule
{
    std::int64_t lastCheck = 0;
    std::int64_t remindAt = 0;
    std::wstring skipped; ///< a version that the user does not want to hear of

    /// Whether a check every so many days is due, or the reminder that the user wants. None is due before the
    /// reminder. A clock that was set back does not put checks off for ever: a last check in the future, or a
    /// reminder more than a year ahead, does not count.
    bool isDue(std::int64_t now, int days) const;

    /// Whether this version is the one that the user does not want to hear of.
    bool isSkipped(std::wstring_view version) const { return !version.empty() && version == skipped; }
};

/// The time of a reminder after so many days.
std::int64_t daysLater(std::int64_t now, int days);

/// Reads a time from the profile; 0 when it is none.
std::int64_t timeOf(std::wstring_view text);

} // namespace ovoui::update
