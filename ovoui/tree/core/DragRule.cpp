#include <ovoui/tree/core/DragRule.h>

#include <ovoui/frame/core/BoxParts.h>
#include <ovoui/frame/core/MessageNumbers.h>
#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::tree
{

using namespace messages;

namespace
{

// The buttons of the mouse among the keys that a message tells of
constexpr unsigned kLeft = 0x01;
constexpr unsigned kRight = 0x02;
constexpr unsigned kMiddle = 0x10;

bool isMouse(unsigned message)
{
    return message >= kFirstOfMouse && message <= kLastOfMouse;
}

bool isEscape(const MouseMessage& message)
{
    return message.message == kKeyDown && message.keys == keys::kVkEscape;
}

} // namespace

frame::Box dragArea(int x, int y, int width, int height)
{
    const int left = x - width / 2;
    const int top = y - width / 2;
    return {left, top, left + width, top + height};
}

bool endsWithoutDrag(const MouseMessage& message)
{
    if (isMouse(message.message))
        return !(message.keys & (kLeft | kRight | kMiddle));
    return isEscape(message);
}

bool leaves(const MouseMessage& message, const frame::Box& area)
{
    const bool wheel = message.message == kWheel || message.message == kSidewaysWheel;
    return isMouse(message.message) && !wheel && !contains(area, message.x, message.y);
}

bool isLate(std::uint32_t time, std::uint32_t end)
{
    return static_cast<std::int32_t>(time - end) >= 0;
}

BandStep bandStep(const MouseMessage& message)
{
    if (isEscape(message))
        return BandStep::GiveUp;
    if (!isMouse(message.message))
        return BandStep::PassOn;
    if (message.message != kMouseMove && message.message != kReleaseLeft)
        return BandStep::Ignore;
    return (message.keys & kLeft) ? BandStep::Show : BandStep::Finish;
}

} // namespace ovoui::tree
