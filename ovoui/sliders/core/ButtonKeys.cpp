#include <ovoui/sliders/core/ButtonKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::sliders
{

using namespace keys;

namespace
{

constexpr double kFineStep = 0.1;

} // namespace

ButtonKey buttonKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkLeft:
        return ButtonKey::Left;
    case kVkRight:
        return ButtonKey::Right;
    case kVkUp:
        return ButtonKey::Up;
    case kVkDown:
        return ButtonKey::Down;
    case kVkPageUp:
    case kVkPageDown:
    case kVkHome:
    case kVkEnd:
        return ButtonKey::Travel;
    case kVkEscape:
        return ButtonKey::Escape;
    case kVkSpace:
        return ButtonKey::Space;
    case kVkTab:
    case kVkReturn:
        return ButtonKey::Done;
    default:
        return ButtonKey::Other;
    }
}

KeyMeaning meaningOf(ButtonKey key, bool pressed, bool fine)
{
    if (!pressed)
        return key == ButtonKey::Down ? KeyMeaning::Open : KeyMeaning::Nothing;
    switch (key) {
    case ButtonKey::Right:
    case ButtonKey::Down:
        return fine ? KeyMeaning::FineMore : KeyMeaning::Slider;
    case ButtonKey::Left:
    case ButtonKey::Up:
        return fine ? KeyMeaning::FineLess : KeyMeaning::Slider;
    case ButtonKey::Travel:
        return KeyMeaning::Slider;
    case ButtonKey::Escape:
        return KeyMeaning::Cancel;
    case ButtonKey::Done:
        return KeyMeaning::Close;
    case ButtonKey::Space:
    case ButtonKey::Other:
        break;
    }
    return KeyMeaning::Nothing;
}

double stepsOfKey(KeyMeaning meaning)
{
    switch (meaning) {
    case KeyMeaning::FineMore:
        return kFineStep;
    case KeyMeaning::FineLess:
        return -kFineStep;
    default:
        return 0;
    }
}

double stepsOfWheel(int notches, bool fine)
{
    return notches * (fine ? kFineStep : 1.0);
}

} // namespace ovoui::sliders
