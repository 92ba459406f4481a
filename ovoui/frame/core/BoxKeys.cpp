#include <ovoui/frame/core/BoxKeys.h>

namespace ovoui::frame
{
namespace
{

// The platform's virtual keys
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kInsert = 0x2D;

} // namespace

bool isCopyKey(unsigned key, const HeldKeys& held)
{
    return (key == 'C' || key == kInsert) && held.ctrl && !held.shift && !held.alt;
}

BoxKey boxKey(unsigned key, const HeldKeys& held)
{
    if (key == kEscape)
        return BoxKey::Cancel;
    return isCopyKey(key, held) ? BoxKey::Copy : BoxKey::None;
}

} // namespace ovoui::frame
