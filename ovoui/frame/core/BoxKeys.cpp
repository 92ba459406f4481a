#include <ovoui/frame/core/BoxKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::frame
{

using namespace keys;

bool isCopyKey(unsigned key, const HeldKeys& held)
{
    return (key == kVkC || key == kVkInsert) && held.ctrl && !held.shift && !held.alt;
}

BoxKey boxKey(unsigned key, const HeldKeys& held)
{
    if (key == kVkEscape)
        return BoxKey::Cancel;
    return isCopyKey(key, held) ? BoxKey::Copy : BoxKey::None;
}

} // namespace ovoui::frame
