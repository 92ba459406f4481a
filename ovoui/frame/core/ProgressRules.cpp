#include <ovoui/frame/core/ProgressRules.h>

#include <algorithm>

namespace ovoui::frame
{
namespace
{

// Milliseconds
constexpr std::uint64_t kPause = 20;    // for which the work is left alone
constexpr std::uint64_t kLongest = 200; // for which it waits, beside the last message

} // namespace

std::optional<int> barPosition(std::uint64_t done, std::uint64_t total)
{
    if (total == 0)
        return std::nullopt;
    const double share = static_cast<double>(std::min(done, total)) / static_cast<double>(total);
    return static_cast<int>(share * kBarSteps);
}

bool letsMessagesThrough(std::uint64_t now, std::uint64_t last)
{
    return now - last >= kPause;
}

bool goesOnWithMessages(std::uint64_t now, std::uint64_t begin)
{
    return now - begin < kLongest;
}

} // namespace ovoui::frame
