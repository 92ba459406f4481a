#include <ovoui/tree/core/KeyRules.h>

namespace ovoui::tree
{

namespace
{

using enum Action;

/// What must hold for a row to fit.
enum class When
{
    Always,
    Alt,
    Ctrl,
    CtrlAlone, ///< without Alt: both together, or AltGr, type a character
    Shift,
    AddingRange, ///< Ctrl and Shift, where they add ranges
    CheckBox,    ///< the caret has one
    Caret,       ///< there is one
    NoCaret
};

bool holds(When when, const KeyPress& press)
{
    switch (when) {
    case When::Alt:
        return press.alt;
    case When::Ctrl:
        return press.ctrl;
    case When::CtrlAlone:
        return press.ctrl && !press.alt;
    case When::Shift:
        return press.shift;
    case When::AddingRange:
        return press.addsRanges && press.ctrl && press.shift;
    case When::CheckBox:
        return press.hasCheckBox;
    case When::Caret:
        return press.hasCaret;
    case When::NoCaret:
        return !press.hasCaret;
    default:
        return true;
    }
}

struct Row
{
    std::vector<unsigned> keys;
    When when;
    Actions actions;
};

/// The keys that the tree moves with; all others that move are the tree view's.
const std::vector<unsigned> kArrows{kVkUp, kVkDown};
const std::vector<unsigned> kMoving{kVkHome, kVkUp, kVkDown};
const std::vector<unsigned> kRanging{kVkHome, kVkUp, kVkDown, kVkEnd, kVkPageUp, kVkPageDown};
const std::vector<unsigned> kMovingByTreeView{kVkEnd, kVkPageUp, kVkPageDown, kVkLeft, kVkRight, kVkBack};

/// The first row that fits applies.
const Row kRows[] = {
    {{kVkReturn}, When::Alt, {}},
    {{kVkReturn}, When::Always, {DefaultAction}},

    {{kVkSpace}, When::Ctrl, {ToggleCaret}},
    {{kVkSpace}, When::CheckBox, {ToggleCheck}},
    {{kVkSpace}, When::Always, {DefaultAction}},

    {kArrows, When::NoCaret, {}},
    {kRanging, When::AddingRange, {ScrollTo, AddRange}},
    {kMoving, When::Shift, {ScrollTo, SelectRange}},
    {kMoving, When::Ctrl, {ScrollTo, MoveAnchor, MoveCaret}},
    {kMoving, When::Always, {ScrollTo, MoveAnchor, SelectAlone}},

    {kMovingByTreeView, When::Ctrl, {LeaveToTreeView}},
    {kMovingByTreeView, When::Shift, {FollowRange}},
    {kMovingByTreeView, When::Always, {FollowAlone}},

    {{kVkDelete}, When::Always, {Delete}},
    {{kVkA}, When::CtrlAlone, {SelectAll}},
    {{kVkF2}, When::Caret, {Rename}},
    {{kVkF5}, When::Always, {Redraw, LeaveToTreeView}},
};

bool isAmong(const std::vector<unsigned>& keys, unsigned key)
{
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

Aim aimOf(unsigned key)
{
    switch (key) {
    case kVkHome:
        return Aim::First;
    case kVkUp:
        return Aim::Above;
    case kVkDown:
        return Aim::Below;
    case kVkEnd:
        return Aim::Last;
    case kVkPageUp:
        return Aim::PageAbove;
    case kVkPageDown:
        return Aim::PageBelow;
    default:
        return Aim::None;
    }
}

} // namespace

KeyRule keyPressed(const KeyPress& press)
{
    for (const Row& row : kRows)
        if (isAmong(row.keys, press.key) && holds(row.when, press))
            return {contains(row.actions, ScrollTo) ? aimOf(press.key) : Aim::None, row.actions};
    return {Aim::None, {LeaveToTreeView}};
}

/// The tree view would activate its item at Enter.
Actions systemKeyPressed(unsigned key)
{
    return key == kVkReturn ? Actions{} : Actions{LeaveToTreeView};
}

/// The characters of keys that were handled when they went down must not be searched for.
Actions characterTyped(wchar_t character, bool ctrl)
{
    constexpr wchar_t kCtrlA = 1;
    if (character == L'\r' || character == L' ' || character == kCtrlA)
        return {};
    return ctrl ? Actions{LeaveToTreeView} : Actions{FollowAlone};
}

} // namespace ovoui::tree
