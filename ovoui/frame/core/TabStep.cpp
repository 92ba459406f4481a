#include <ovoui/frame/core/TabStep.h>

namespace ovoui::frame
{
namespace
{

// The platform's virtual keys
constexpr unsigned kTab = 0x09;
constexpr unsigned kPageUp = 0x21;
constexpr unsigned kPageDown = 0x22;

} // namespace

std::optional<TabDirection> tabDirection(unsigned key, const HeldKeys& held)
{
    if (!held.ctrl)
        return std::nullopt;
    switch (key) {
    case kTab:
        return held.shift ? TabDirection::Backward : TabDirection::Forward;
    case kPageUp:
        return TabDirection::Backward;
    case kPageDown:
        return TabDirection::Forward;
    default:
        return std::nullopt;
    }
}

std::int64_t nextTab(std::int64_t current, std::int64_t count, TabDirection direction)
{
    const std::int64_t step = direction == TabDirection::Forward ? 1 : count - 1;
    return (current + step) % count;
}

} // namespace ovoui::frame
