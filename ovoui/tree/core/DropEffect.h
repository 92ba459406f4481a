/// What a drop does, from the keys that are held. Plain values, no windows.
#pragma once

namespace ovoui::tree
{

// OLE's drop effects.
inline constexpr unsigned kDropNone = 0;
inline constexpr unsigned kDropCopy = 1;
inline constexpr unsigned kDropMove = 2;
inline constexpr unsigned kDropLink = 4;
inline constexpr unsigned kDropAny = kDropCopy | kDropMove | kDropLink;

// OLE's key state.
inline constexpr unsigned kKeyRightButton = 0x02;
inline constexpr unsigned kKeyShift = 0x04;
inline constexpr unsigned kKeyCtrl = 0x08;
inline constexpr unsigned kKeyAlt = 0x20;

/// The effect of a drop with these keys held. `answer` is what the target would do by itself, `allowed` what
/// it lets the user choose from. A drag with the right button, which ends in a menu, has an effect whenever
/// anything is allowed.
unsigned resolveDropEffect(unsigned keyState, unsigned answer, unsigned allowed, bool rightButton);

/// Whether what is around an item is asked next, for a place beside it: the item has not taken the data, and
/// lets others have them.
constexpr bool asksAround(bool beside, unsigned answer)
{
    return beside && answer == kDropNone;
}

/// The effect of pasting, which has no keys: what the data's owner prefers (0 for no preference), else a
/// copy, else what the target would do by itself.
unsigned resolvePasteEffect(unsigned preferred, unsigned answer, unsigned allowed);

} // namespace ovoui::tree
