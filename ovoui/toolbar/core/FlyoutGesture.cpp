#include <ovoui/toolbar/core/FlyoutGesture.h>

namespace ovoui::toolbar
{

MoveOutcome onPress(const Press& now, const ButtonUnderPointer& under)
{
    if (now.dragging || under.index == kNoButton || !under.hasFlyout)
        return {FlyoutAction::Keep, now, false};
    return {FlyoutAction::OpenHeld, {true, under.index, true}, false};
}

MoveOutcome onMove(const Press& now, const ButtonUnderPointer& under, bool overFlyout)
{
    if (!now.dragging)
        return {FlyoutAction::Keep, now, false};
    if (overFlyout || under.index == kNoButton || under.index == now.button)
        return {FlyoutAction::Keep, now, now.open};
    if (!under.hasFlyout)
        return {now.open ? FlyoutAction::Close : FlyoutAction::Keep, {true, kNoButton, false}, false};
    return {FlyoutAction::OpenNow, {true, under.index, true}, true};
}

ReleaseOutcome onRelease(const Press& now, EntryState entry)
{
    const bool chooses = now.dragging && now.open && now.button != kNoButton && entry != EntryState::None;
    return {chooses, chooses && entry == EntryState::Enabled};
}

EntryState entryState(bool isEntry, bool enabled)
{
    if (!isEntry)
        return EntryState::None;
    return enabled ? EntryState::Enabled : EntryState::Disabled;
}

bool endsPress(Interruption interruption, const Press& now, bool ofThisBar)
{
    switch (interruption) {
    case Interruption::AppDeactivated:
        return now.dragging;
    case Interruption::CaptureLost:
        return now.dragging && ofThisBar;
    case Interruption::KeyboardLeft: // a flyout that the mouse has opened stays
        return !now.dragging && ofThisBar;
    case Interruption::BarGone:
        break;
    }
    return ofThisBar;
}

bool takesMouse(const Press& now, bool ofThisBar, bool hasMouse)
{
    return now.dragging && ofThisBar && !hasMouse;
}

int afterInsertion(int button, int inserted)
{
    return button != kNoButton && inserted <= button ? button + 1 : button;
}

int afterDeletion(int button, int deleted)
{
    if (button == kNoButton || deleted > button)
        return button;
    return deleted == button ? kNoButton : button - 1;
}

bool losesFlyout(int button, int deleted)
{
    return button != kNoButton && deleted == button;
}

} // namespace ovoui::toolbar
