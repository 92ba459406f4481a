#include <ovoui/colour/core/ControlKeys.h>

#include <ovoui/colour/core/WheelKeys.h>
#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::colour
{

using namespace keys;

namespace
{

bool isArrow(unsigned key)
{
    return key >= kVkLeft && key <= kVkDown;
}

bool moves(unsigned key)
{
    return wheelKeyOf(key).has_value();
}

bool presses(unsigned key)
{
    return key == kVkSpace || key == kVkReturn;
}

/// What a key means to a button with a palette when it goes down.
DropButtonKey pressedOnDropButton(unsigned key, bool alt, bool open)
{
    const bool upOrDown = key == kVkUp || key == kVkDown;
    if (alt && !upOrDown)
        return DropButtonKey::Platform;
    if (alt)
        return open ? DropButtonKey::Close : DropButtonKey::Open;
    if (!open)
        return key == kVkSpace || key == kVkDown || key == kVkF4 ? DropButtonKey::Open
                                                                 : DropButtonKey::Platform;
    if (paletteKey(key, true) != PaletteKey::None)
        return DropButtonKey::ToPalette;
    if (key == kVkTab)
        return DropButtonKey::CloseAndGoOn;
    return key == kVkEscape || key == kVkF4 ? DropButtonKey::Close : DropButtonKey::Ignore;
}

} // namespace

SwatchKey swatchKey(unsigned key)
{
    if (key == kVkSpace)
        return SwatchKey::Take;
    if (key == kVkInsert)
        return SwatchKey::Keep;
    return moves(key) ? SwatchKey::Move : SwatchKey::None;
}

GridKey gridKey(unsigned key, bool empty)
{
    if (empty)
        return GridKey::None;
    if (moves(key))
        return GridKey::Move;
    return presses(key) ? GridKey::Choose : GridKey::None;
}

PaletteKey paletteKey(unsigned key, bool marked)
{
    if (moves(key))
        return PaletteKey::Move;
    if (!presses(key))
        return PaletteKey::None;
    return marked ? PaletteKey::Choose : PaletteKey::Close;
}

DropButtonKey dropButtonKey(unsigned key, bool alt, bool again, bool open)
{
    const DropButtonKey meaning = pressedOnDropButton(key, alt, open);
    const bool onlyOnce =
        meaning != DropButtonKey::Platform && !(meaning == DropButtonKey::ToPalette && moves(key));
    return again && onlyOnce ? DropButtonKey::Ignore : meaning;
}

DropperKey dropperKey(unsigned key, bool again, bool picking)
{
    if (presses(key))
        return again ? DropperKey::Ignore : DropperKey::Press;
    if (!picking)
        return DropperKey::Platform;
    if (key == kVkEscape)
        return DropperKey::GiveUp;
    return isArrow(key) ? DropperKey::MovePointer : DropperKey::Ignore;
}

bool actsOnPressAlone(unsigned key)
{
    return key == kVkSpace;
}

bool gridWantsKey(bool asksEnter, bool empty)
{
    return asksEnter && !empty;
}

bool dropperWantsKeys(bool asksEnter, bool picking)
{
    return asksEnter || picking;
}

DialogKey dialogKey(unsigned key)
{
    switch (key) {
    case kVkEscape:
        return DialogKey::CancelDrag;
    case kVkReturn:
        return DialogKey::TakeNumbers;
    default:
        return DialogKey::None;
    }
}

PointerStep pointerStep(unsigned key, bool shift)
{
    const int length = shift ? 10 : 1;
    switch (key) {
    case kVkLeft:
        return {-length, 0};
    case kVkRight:
        return {length, 0};
    case kVkUp:
        return {0, -length};
    case kVkDown:
        return {0, length};
    default:
        return {};
    }
}

} // namespace ovoui::colour
