/// What the keys do in a bar that has the keyboard. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>

#include <span>

namespace ovoui::toolbar
{

enum class WalkKey
{
    None,
    Left,
    Right,
    Up,
    Down,
    First,
    Last
};

/// A button of the bar, or an entry of the flyout.
struct Stop
{
    frame::Box place;
    bool reachable = false; ///< no separator, not hidden
};

inline constexpr int kNoStop = -1;

/// Where a key leads from a stop, or from kNoStop. Left and right follow the order of the stops, and from the
/// last to the first; up and down go to the nearest one of the next row, where there is one. In a mirrored
/// bar left and right change places. A stop that is not there any more counts as kNoStop. kNoStop when
/// nothing is reachable.
int nextStop(std::span<const Stop> stops, int from, WalkKey key, bool mirrored);

/// The bar as the key finds it.
struct KeyView
{
    bool flyoutOpen = false;
    bool hasFlyout = false; ///< the button that the keyboard is at
    bool horizontal = true;
    bool oneColumn = false; ///< a bar with one button in each row
    bool mirrored = false;
    bool pressable = true; ///< the button that the keyboard is at is enabled
};

enum class BarKeyAction
{
    None,
    WalkBar,
    WalkFlyout,
    Open,        ///< the button's flyout
    Close,       ///< the flyout, nothing is chosen
    Press,       ///< the button
    Choose,      ///< the entry
    Leave,       ///< the focus goes back to where it was
    NextControl, ///< that lies in the bar
    PreviousControl
};

struct BarKeyOutcome
{
    BarKeyAction action = BarKeyAction::None;
    WalkKey walk = WalkKey::None;

    friend bool operator==(const BarKeyOutcome&, const BarKeyOutcome&) = default;
};

struct PressedKey
{
    unsigned key = 0; ///< virtual key
    bool alt = false;
    bool shift = false;
};

BarKeyOutcome onBarKey(const PressedKey& pressed, const KeyView& view);

} // namespace ovoui::toolbar
