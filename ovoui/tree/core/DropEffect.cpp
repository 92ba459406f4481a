#include <ovoui/tree/core/DropEffect.h>

#include <initializer_list>

namespace ovoui::tree
{

namespace
{

/// What the keys ask for, whether it is allowed or not.
unsigned wanted(unsigned keyState, unsigned answer)
{
    switch (keyState & (kKeyShift | kKeyCtrl | kKeyAlt)) {
    case 0:
        return answer;
    case kKeyShift:
        return kDropMove;
    case kKeyCtrl:
        return kDropCopy;
    case kKeyCtrl | kKeyShift:
    case kKeyAlt:
        return kDropLink;
    default:
        return kDropNone;
    }
}

unsigned firstAllowed(unsigned allowed)
{
    for (const unsigned effect : {kDropMove, kDropCopy, kDropLink})
        if (allowed & effect)
            return effect;
    return kDropNone;
}

} // namespace

unsigned resolveDropEffect(unsigned keyState, unsigned answer, unsigned allowed, bool rightButton)
{
    if (!(allowed & kDropAny))
        return kDropNone;
    unsigned effect = wanted(keyState, answer);
    const bool asked = (keyState & (kKeyShift | kKeyCtrl | kKeyAlt)) != 0;
    if (asked)
        effect &= allowed;
    if (effect == kDropNone && rightButton)
        effect = firstAllowed(allowed);
    return effect;
}

unsigned resolvePasteEffect(unsigned preferred, unsigned answer, unsigned allowed)
{
    for (const unsigned effect : {preferred & allowed & kDropAny, allowed & kDropCopy, answer & kDropAny})
        if (effect)
            return firstAllowed(effect);
    return firstAllowed(allowed);
}

} // namespace ovoui::tree
