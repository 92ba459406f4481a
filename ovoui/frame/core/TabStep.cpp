#include <ovoui/frame/core/TabStep.h>

namespace ovoui::frame
{

std::int64_t nextTab(std::int64_t current, std::int64_t count, TabDirection direction)
{
    const std::int64_t step = direction == TabDirection::Forward ? 1 : count - 1;
    return (current + step) % count;
}

} // namespace ovoui::frame
