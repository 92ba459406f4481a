#include <ovoui/lists/core/HitRules.h>

#include <ovoui/frame/core/VirtualKeys.h>

#include <algorithm>

namespace ovoui::lists
{

using namespace keys;

HitEffect afterHitKey(HitKey key, int count, int selected, int page)
{
    const int last = count - 1;
    const int step = std::max(page - 1, 1);
    switch (key) {
    case HitKey::Down:
        return {true, false, selected >= last ? -1 : selected + 1};
    case HitKey::Up:
        return {true, false, selected < 0 ? last : selected - 1};
    case HitKey::PageDown:
        return {true, false, std::min(std::max(selected, 0) + step, last)};
    case HitKey::PageUp:
        return {true, false, std::max(selected - step, 0)};
    case HitKey::Return:
        return {false, true, selected};
    case HitKey::Escape:
        return {true, true, selected};
    case HitKey::Other:
        break;
    }
    return {false, false, selected};
}

HitKey hitKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkUp:
        return HitKey::Up;
    case kVkDown:
        return HitKey::Down;
    case kVkPageUp:
        return HitKey::PageUp;
    case kVkPageDown:
        return HitKey::PageDown;
    case kVkReturn:
        return HitKey::Return;
    case kVkEscape:
        return HitKey::Escape;
    default:
        return HitKey::Other;
    }
}

} // namespace ovoui::lists
