#include <ovoui/lists/core/ShortText.h>

#include <algorithm>

namespace ovoui::lists
{

ShortText shorten(std::span<const int> extents, int dots, int width, int offset)
{
    if (width < 1)
        return {};
    const std::size_t length = extents.size();
    if (length == 1)
        return {1, false};
    std::size_t kept = std::min(length - 1, kShortTextRoom - kDots.size() - 1);
    while (kept > 1 && !fits(extents[kept - 1] + dots, width, offset))
        --kept;
    if (kept == 1 && !fits(extents[0], width, offset))
        return {};
    return {kept, true};
}

} // namespace ovoui::lists
