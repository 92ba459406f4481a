#include <ovoui/colour/core/WheelKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>

#include <algorithm>

namespace ovoui::colour
{

using namespace keys;

namespace
{

constexpr int kTurn = 360;
constexpr int kPercent = 100;
constexpr int kLargeStep = 10;

int stepOf(frame::HeldKeys held)
{
    return held.shift ? kLargeStep : 1;
}

int turned(int hue, int by)
{
    const int sum = (hue + by) % kTurn;
    return sum < 0 ? sum + kTurn : sum;
}

int percent(int value)
{
    return std::clamp(value, 0, kPercent);
}

} // namespace

std::optional<WheelKey> wheelKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkLeft:
        return WheelKey::Left;
    case kVkRight:
        return WheelKey::Right;
    case kVkUp:
        return WheelKey::Up;
    case kVkDown:
        return WheelKey::Down;
    case kVkPageUp:
        return WheelKey::PageUp;
    case kVkPageDown:
        return WheelKey::PageDown;
    case kVkHome:
        return WheelKey::Home;
    case kVkEnd:
        return WheelKey::End;
    default:
        return std::nullopt;
    }
}

WheelKey mirrored(WheelKey key)
{
    if (key == WheelKey::Left)
        return WheelKey::Right;
    return key == WheelKey::Right ? WheelKey::Left : key;
}

int hueAfter(int hue, WheelKey key, frame::HeldKeys held)
{
    switch (key) {
    case WheelKey::Right:
    case WheelKey::Up:
        return turned(hue, stepOf(held));
    case WheelKey::Left:
    case WheelKey::Down:
        return turned(hue, -stepOf(held));
    case WheelKey::PageUp:
        return turned(hue, kLargeStep);
    case WheelKey::PageDown:
        return turned(hue, -kLargeStep);
    case WheelKey::Home:
        return 0;
    case WheelKey::End:
        return kTurn - 1;
    }
    return hue;
}

Shade shadeAfter(Shade shade, WheelKey key, frame::HeldKeys held)
{
    const auto lighter = [&](int by) { return Shade{percent(shade.lightness + by), shade.saturation}; };
    const auto purer = [&](int by) { return Shade{shade.lightness, percent(shade.saturation + by)}; };
    switch (key) {
    case WheelKey::Left:
        return lighter(-stepOf(held));
    case WheelKey::Right:
        return lighter(stepOf(held));
    case WheelKey::Up:
        return purer(stepOf(held));
    case WheelKey::Down:
        return purer(-stepOf(held));
    case WheelKey::PageUp:
        return purer(kLargeStep);
    case WheelKey::PageDown:
        return purer(-kLargeStep);
    case WheelKey::Home:
        return held.ctrl ? purer(-kPercent) : lighter(-kPercent);
    case WheelKey::End:
        return held.ctrl ? purer(kPercent) : lighter(kPercent);
    }
    return shade;
}

int cellAfter(int cell, int count, int columns, WheelKey key)
{
    if (count <= 0 || columns <= 0)
        return cell;
    const int column = cell % columns;
    const int lastRow = (count - 1) / columns;
    const int inLastRow = lastRow * columns + column;
    const auto ifThere = [&](int other) { return other >= 0 && other < count ? other : cell; };
    switch (key) {
    case WheelKey::Left:
        return ifThere(cell - 1);
    case WheelKey::Right:
        return ifThere(cell + 1);
    case WheelKey::Up:
        return ifThere(cell - columns);
    case WheelKey::Down:
        return ifThere(cell + columns);
    case WheelKey::PageUp:
        return column;
    case WheelKey::PageDown:
        return inLastRow < count ? inLastRow : ifThere(inLastRow - columns);
    case WheelKey::Home:
        return 0;
    case WheelKey::End:
        return count - 1;
    }
    return cell;
}

} // namespace ovoui::colour
