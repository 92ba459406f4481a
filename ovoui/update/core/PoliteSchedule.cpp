#include <ovoui/update/core/PoliteSchedule.h>

namespace ovoui::update
{
namespace
{

constexpr std::int64_t kDay = 24 * 60 * 60;
constexpr std::int64_t kYear = 366 * kDay;
constexpr std::int64_t kLatest = 100'000'000'000; // thousands of years ahead

} // namespace

bool PoliteSchedule::isDue(std::int64_t now, int days) const
{
    if (remindAt > now && remindAt - now <= kYear)
        return false;
    if (remindAt > lastCheck && remindAt <= now)
        return true;
    return lastCheck == 0 || lastCheck > now || now - lastCheck >= days * kDay;
}

std::int64_t daysLater(std::int64_t now, int days)
{
    return now + days * kDay;
}

std::int64_t timeOf(std::wstring_view text)
{
    std::int64_t time = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9' || time > kLatest)
            return 0;
        time = time * 10 + (c - L'0');
    }
    return time;
}

} // namespace ovoui::update
