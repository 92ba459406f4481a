#include <ovoui/toolbar/core/BarWalk.h>

#include <ovoui/frame/core/VirtualKeys.h>

#include <cstdlib>

namespace ovoui::toolbar
{

using namespace keys;

namespace
{

WalkKey walkOf(unsigned key)
{
    switch (key) {
    case kVkLeft:
        return WalkKey::Left;
    case kVkRight:
        return WalkKey::Right;
    case kVkUp:
        return WalkKey::Up;
    case kVkDown:
        return WalkKey::Down;
    case kVkHome:
        return WalkKey::First;
    case kVkEnd:
        return WalkKey::Last;
    default:
        return WalkKey::None;
    }
}

/// The next reachable stop in the order, or against it; from the end it goes on at the other end.
int inOrder(std::span<const Stop> stops, int from, bool forwards)
{
    const int count = static_cast<int>(stops.size());
    if (from == kNoStop)
        from = forwards ? -1 : count;
    for (int step = 1; step <= count; ++step) {
        const int at = ((from + (forwards ? step : -step)) % count + count) % count;
        if (stops[static_cast<std::size_t>(at)].reachable)
            return at;
    }
    return kNoStop;
}

int distanceAcross(const frame::Box& one, const frame::Box& other)
{
    return std::abs((one.left + one.right) - (other.left + other.right));
}

/// The stop of the nearest row above or below that lies closest; kNoStop when there is no such row.
int inNextRow(std::span<const Stop> stops, int from, bool down)
{
    const frame::Box& here = stops[static_cast<std::size_t>(from)].place;
    int best = kNoStop;
    for (int i = 0; i < static_cast<int>(stops.size()); ++i) {
        const Stop& stop = stops[static_cast<std::size_t>(i)];
        const int rows = down ? stop.place.top - here.top : here.top - stop.place.top;
        if (!stop.reachable || rows <= 0)
            continue;
        if (best == kNoStop) {
            best = i;
            continue;
        }
        const frame::Box& found = stops[static_cast<std::size_t>(best)].place;
        const int foundRows = std::abs(found.top - here.top);
        if (rows < foundRows ||
            (rows == foundRows && distanceAcross(stop.place, here) < distanceAcross(found, here)))
            best = i;
    }
    return best;
}

BarKeyOutcome onArrowWithAlt(WalkKey walk, const KeyView& view)
{
    if (walk == WalkKey::Down && view.hasFlyout && !view.flyoutOpen)
        return {BarKeyAction::Open};
    if (walk == WalkKey::Up && view.flyoutOpen)
        return {BarKeyAction::Close};
    return {};
}

/// Whether the arrow points to where the flyout opens, and to no other button.
bool pointsToFlyout(WalkKey walk, const KeyView& view)
{
    if (view.horizontal)
        return walk == WalkKey::Down;
    return view.oneColumn && walk == (view.mirrored ? WalkKey::Left : WalkKey::Right);
}

} // namespace

int nextStop(std::span<const Stop> stops, int from, WalkKey key, bool mirrored)
{
    if (from >= static_cast<int>(stops.size()))
        from = kNoStop;
    switch (key) {
    case WalkKey::Left:
    case WalkKey::Right:
        return inOrder(stops, from, (key == WalkKey::Right) != mirrored);
    case WalkKey::Up:
    case WalkKey::Down: {
        const bool down = key == WalkKey::Down;
        const int row = from == kNoStop ? kNoStop : inNextRow(stops, from, down);
        return row != kNoStop ? row : inOrder(stops, from, down);
    }
    case WalkKey::First:
        return inOrder(stops, kNoStop, true);
    case WalkKey::Last:
        return inOrder(stops, kNoStop, false);
    case WalkKey::None:
        break;
    }
    return from;
}

BarKeyOutcome onBarKey(const PressedKey& pressed, const KeyView& view)
{
    const WalkKey walk = walkOf(pressed.key);
    if (pressed.alt)
        return onArrowWithAlt(walk, view);
    switch (pressed.key) {
    case kVkEscape:
        return {view.flyoutOpen ? BarKeyAction::Close : BarKeyAction::Leave};
    case kVkReturn:
    case kVkSpace:
        if (view.flyoutOpen)
            return {BarKeyAction::Choose};
        return {view.pressable ? BarKeyAction::Press : BarKeyAction::None};
    case kVkTab:
        if (view.flyoutOpen)
            return {};
        return {pressed.shift ? BarKeyAction::PreviousControl : BarKeyAction::NextControl};
    }
    if (walk == WalkKey::None)
        return {};
    if (view.flyoutOpen)
        return {BarKeyAction::WalkFlyout, walk};
    if (view.hasFlyout && pointsToFlyout(walk, view))
        return {BarKeyAction::Open};
    return {BarKeyAction::WalkBar, walk};
}

} // namespace ovoui::toolbar
