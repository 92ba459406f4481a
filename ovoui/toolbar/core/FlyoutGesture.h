/// What a press on a button with a flyout, the moves after it and the release lead to. Plain values, no
/// windows.
#pragma once

namespace ovoui::toolbar
{

inline constexpr int kNoButton = -1;

/// How far the gesture has come.
struct Press
{
    bool dragging = false;  ///< from the press to the release
    int button = kNoButton; ///< whose flyout is open, shown or about to be
    bool open = false;

    friend bool operator==(const Press&, const Press&) = default;
};

/// The bar's button under the pointer.
struct ButtonUnderPointer
{
    int index = kNoButton;
    bool hasFlyout = false;
};

enum class FlyoutAction
{
    Keep,
    OpenHeld, ///< it shows itself after the hold delay
    OpenNow,
    Close
};

struct MoveOutcome
{
    FlyoutAction action = FlyoutAction::Keep;
    Press next;
    bool tracks = false; ///< the flyout follows the pointer
};

/// The left button goes down on the bar. During another press nothing changes.
MoveOutcome onPress(const Press& now, const ButtonUnderPointer& under);

/// The pointer moves. A flyout that is shown lies in front of the bar: what it covers is not under the
/// pointer.
MoveOutcome onMove(const Press& now, const ButtonUnderPointer& under, bool overFlyout);

/// The gesture is over.
inline constexpr Press kIdle{};

/// The entry under the pointer at the release.
enum class EntryState
{
    None, ///< outside the flyout, on a separator, no flyout shown
    Disabled,
    Enabled
};

struct ReleaseOutcome
{
    bool chooses = false;      ///< the pressed button becomes the entry
    bool sendsCommand = false; ///< and its command is issued
};

EntryState entryState(bool isEntry, bool enabled);

ReleaseOutcome onRelease(const Press& now, EntryState entry);

/// What may end a press without a choice, or close the flyout that the keyboard has opened.
enum class Interruption
{
    AppDeactivated,
    CaptureLost,  ///< another window has the mouse
    KeyboardLeft, ///< the focus has left the bar
    BarGone
};

/// `ofThisBar`: the pressed button or the open flyout are those of the bar that hears of the interruption.
bool endsPress(Interruption interruption, const Press& now, bool ofThisBar);

/// Whether the bar is to capture the mouse when the control has had the press: the control leaves the mouse
/// alone on a disabled button, for one.
bool takesMouse(const Press& now, bool ofThisBar, bool hasMouse);

/// The button of an open flyout after a button of the bar was inserted.
int afterInsertion(int button, int inserted);
/// The same after a deletion; kNoButton when it was that button.
int afterDeletion(int button, int deleted);
/// Whether that deletion closes the flyout of `button`.
bool losesFlyout(int button, int deleted);

} // namespace ovoui::toolbar
