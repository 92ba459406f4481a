#include <ovoui/tree/core/ClickRules.h>

#include <ovoui/tree/core/HitParts.h>

namespace ovoui::tree
{

namespace
{

using enum Action;

/// One or more values of an enumeration, whose values are bits.
template <class Value>
class OneOf
{
public:
    constexpr OneOf(Value value)
        : m_bits(static_cast<unsigned>(value))
    {
    }
    constexpr OneOf operator|(OneOf other) const { return OneOf(m_bits | other.m_bits); }
    constexpr bool has(Value value) const { return (m_bits & static_cast<unsigned>(value)) != 0; }

private:
    constexpr explicit OneOf(unsigned bits)
        : m_bits(bits)
    {
    }
    unsigned m_bits;
};

enum class Is
{
    No = 1,
    Yes = 2
};

constexpr Is is(bool yes)
{
    return yes ? Is::Yes : Is::No;
}

constexpr OneOf<Is> kEither = OneOf(Is::No) | Is::Yes;

constexpr OneOf<Held> kNothing = Held::Nothing;
constexpr OneOf<Held> kCtrl = Held::Ctrl;
constexpr OneOf<Held> kShift = Held::Shift;
constexpr OneOf<Held> kCtrlShift = Held::CtrlShift;
constexpr OneOf<Held> kAnyKey = kNothing | kCtrl | kShift | kCtrlShift;

constexpr OneOf<Where> kItem = Where::Item;
constexpr OneOf<Where> kBeside = Where::Beside;
constexpr OneOf<Where> kEmpty = Where::Empty;
constexpr OneOf<Where> kElsewhere = Where::Elsewhere;
constexpr OneOf<Where> kCheckBox = Where::CheckBox;
constexpr OneOf<Where> kInRow = kItem | kBeside;
constexpr OneOf<Where> kAnywhere = kInRow | kEmpty;

// The tables. The first row that fits applies.

struct PressRule
{
    OneOf<Held> held;
    OneOf<Where> where;
    OneOf<Is> selected;
    Actions actions;
};

const PressRule kPresses[] = {
    {kAnyKey, kElsewhere, kEither, {LeaveToTreeView}},

    {kAnyKey, kCheckBox, kEither, {TakeFocus, ToggleCheck}},

    {kShift, kAnywhere, kEither, {SelectRange, TakeFocus}},
    {kCtrlShift, kAnywhere, kEither, {AddRange, TakeFocus}},

    // A selected item leaves the selection when the button goes up: it may be about to be dragged.
    {kCtrl, kInRow, Is::No, {MoveAnchor, Add, TakeFocus, AwaitDrag}},
    {kCtrl, kInRow, Is::Yes, {MoveAnchor, TakeFocus, AwaitDrag}},
    {kCtrl, kEmpty, kEither, {MoveAnchor, TakeFocus, AwaitDrag}},

    // One that is selected with others stays so until the button goes up, and so does the anchor.
    {kNothing, kItem, Is::No, {MoveAnchor, SelectAlone, TakeFocus, AwaitDrag}},
    {kNothing, kItem, Is::Yes, {TakeFocus, AwaitDrag}},
    {kNothing, kBeside, Is::No, {MoveAnchor, Clear, TakeFocus, AwaitDrag}},
    {kNothing, kBeside, Is::Yes, {Clear, TakeFocus, AwaitDrag}},
    {kNothing, kEmpty, kEither, {MoveAnchor, Clear, TakeFocus, AwaitDrag}},
};

struct ReleaseRule
{
    OneOf<Held> held;
    OneOf<Where> where;
    OneOf<Is> right;
    OneOf<Is> settled;
    OneOf<Is> editable;
    Actions actions;
};

const ReleaseRule kReleasesAfterPress[] = {
    // held    where    right    settled  editable
    {kCtrl, kInRow, Is::No, Is::No, kEither, {MoveAnchor, Remove}},
    {kCtrl, kInRow, Is::No, Is::Yes, kEither, {MoveAnchor}},
    {kCtrl, kInRow, Is::Yes, Is::No, kEither, {MoveAnchor, Remove, AskForMenu}},
    {kCtrl, kInRow, Is::Yes, Is::Yes, kEither, {MoveAnchor, AskForMenu}},
    {kCtrl, kEmpty, Is::Yes, kEither, kEither, {AskForMenu}},

    {kNothing, kInRow, Is::No, Is::No, Is::Yes, {MoveAnchor, SelectForCertain, EditLater}},
    {kNothing, kInRow, Is::No, kEither, kEither, {MoveAnchor, SelectForCertain}},
    {kNothing, kEmpty, Is::No, kEither, kEither, {SelectForCertain}},
    {kNothing, kInRow, Is::Yes, Is::Yes, kEither, {MoveAnchor, SelectForCertain, AskForMenu}},
    {kNothing, kInRow, Is::Yes, Is::No, kEither, {MoveAnchor, AskForMenu}},
    {kNothing, kEmpty, Is::Yes, Is::Yes, kEither, {SelectForCertain, AskForMenu}},
    {kNothing, kEmpty, Is::Yes, Is::No, kEither, {AskForMenu}},
};

const ReleaseRule kReleases[] = {
    // held    where    right    settled  editable
    {kAnyKey, kElsewhere, kEither, kEither, kEither, {LeaveToTreeView}},

    {kShift | kCtrlShift, kAnywhere, Is::Yes, kEither, kEither, {AskForMenu}},

    {kCtrl, kInRow, Is::No, Is::No, kEither, {MoveAnchor, Remove}},
    {kCtrl, kInRow, Is::No, Is::Yes, kEither, {MoveAnchor}},

    {kNothing, kInRow, Is::No, kEither, kEither, {MoveAnchor, SelectAlone}},
    {kNothing, kEmpty, Is::No, kEither, kEither, {SelectAlone}},
};

template <class Rules, class Fits>
Actions firstFitting(const Rules& rules, Fits fits)
{
    for (const auto& rule : rules)
        if (fits(rule))
            return rule.actions;
    return {};
}

template <class Rules>
Actions firstFitting(const Rules& rules, const ButtonRelease& release)
{
    return firstFitting(rules, [&](const ReleaseRule& rule) {
        return rule.held.has(release.held) && rule.where.has(release.where) &&
               rule.right.has(is(release.right)) && rule.settled.has(is(release.settled)) &&
               rule.editable.has(is(release.editable));
    });
}

Where place(bool hasItem, bool taken, unsigned flags, bool hasCheckBox)
{
    if (hasItem && hasCheckBox && (flags & kHitStateIcon))
        return Where::CheckBox;
    if (!taken)
        return Where::Elsewhere;
    if (!hasItem)
        return Where::Empty;
    return hitsItem(flags) ? Where::Item : Where::Beside;
}

} // namespace

Where placeOfPress(bool hasItem, unsigned flags, bool hasCheckBox)
{
    return place(hasItem, takesPress(flags), flags, hasCheckBox);
}

Where placeOfRelease(bool hasItem, unsigned flags, bool hasCheckBox)
{
    return place(hasItem, takesRelease(flags), flags, hasCheckBox);
}

Actions pressed(const ButtonPress& press)
{
    return firstFitting(kPresses, [&](const PressRule& rule) {
        return rule.held.has(press.held) && rule.where.has(press.where) &&
               rule.selected.has(is(press.selected));
    });
}

bool isSettledBy(const Actions& press)
{
    return contains(press, Clear) || contains(press, SelectAlone) || contains(press, Add);
}

Actions dragged(const Drag& drag)
{
    const bool besideItems = drag.where == Where::Beside || drag.where == Where::Empty;
    return {drag.bands && besideItems && !drag.right ? SelectByBand : BeginDrag};
}

Actions releasedAfterPress(const ButtonRelease& release)
{
    return firstFitting(kReleasesAfterPress, release);
}

Actions released(const ButtonRelease& release)
{
    return firstFitting(kReleases, release);
}

Actions doubleClicked(const DoubleClick& click)
{
    if (click.where == Where::Elsewhere)
        return {LeaveToTreeView};
    if (click.where == Where::CheckBox)
        return {ToggleCheck};
    if (click.onEmptySpace && click.held == Held::Nothing)
        return {};
    return {DefaultAction};
}

} // namespace ovoui::tree
