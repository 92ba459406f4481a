#include "SelectionModel.h"

#include <ovoui/tree/core/KeyRules.h>

namespace ovoui::tree
{

static std::ostream& operator<<(std::ostream& out, const KeyPress& press)
{
    return out << "key " << press.key << (press.shift ? " Shift" : "") << (press.ctrl ? " Ctrl" : "")
               << (press.alt ? " Alt" : "") << (press.hasCaret ? "" : ", no caret");
}

} // namespace ovoui::tree

using namespace ovoui::tree;
using enum Action;

namespace
{

constexpr int kNone = SelectionModel::kNone;
constexpr int kItems = SelectionModel::kItems;

template <class Visit>
void forEveryPress(Visit visit)
{
    for (unsigned key = 0; key < 256; ++key)
        for (int bits = 0; bits < 16; ++bits)
            visit(KeyPress{key, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0});
}

bool moves(unsigned key)
{
    return key == kVkHome || key == kVkUp || key == kVkDown;
}

/// The item that a key goes to, in a row of them.
int goalOf(const KeyPress& press, int caret)
{
    if (press.key == kVkHome)
        return 0;
    if (caret == kNone)
        return kNone;
    const int goal = press.key == kVkUp ? caret - 1 : caret + 1;
    return goal < 0 || goal >= kItems ? kNone : goal;
}

int goalOf(Aim aim, int caret)
{
    switch (aim) {
    case Aim::First:
        return 0;
    case Aim::Above:
        return caret > 0 ? caret - 1 : kNone;
    case Aim::Below:
        return caret + 1 < kItems ? caret + 1 : kNone;
    default:
        return kNone;
    }
}

} // namespace

TEST(KeyRules, ArrowsAndHomeMoveAsTheUserExpects)
{
    int cases = 0;
    forEveryModel([&](const SelectionModel& before) {
        forEveryPress([&](KeyPress press) {
            press.hasCaret = before.caret != kNone;
            if (!moves(press.key))
                return;
            ++cases;
            const KeyRule rule = keyPressed(press);
            const int goal = goalOf(press, before.caret);
            if (!press.hasCaret && press.key != kVkHome) {
                ASSERT_EQ(rule.actions, Actions{}) << press;
                return;
            }
            ASSERT_EQ(goalOf(rule.aim, before.caret), goal) << press;
            if (goal == kNone)
                return; // the tree does nothing then
            SelectionModel model = before;
            model.act(rule.actions, goal);
            SelectionModel right = before;
            right.caret = goal;
            if (press.shift) {
                right.selected = SelectionModel::range(before.anchor, goal);
            } else {
                right.anchor = goal;
                if (!press.ctrl)
                    right.selected = {goal};
            }
            ASSERT_EQ(model, right) << press << " from " << before;
            ASSERT_EQ(rule.actions.front(), ScrollTo) << press; // before anything is said of it
        });
    });
    EXPECT_EQ(cases, 16 * 5 * 5 * 3 * 16);
}

TEST(KeyRules, OnlyArrowsAndHomeGoToAnItem)
{
    forEveryPress([](const KeyPress& press) {
        if (moves(press.key))
            return;
        const KeyRule rule = keyPressed(press);
        ASSERT_EQ(rule.aim, Aim::None) << press;
        for (const Action action : {SelectAlone, SelectRange, MoveCaret, MoveAnchor, ScrollTo})
            ASSERT_FALSE(contains(rule.actions, action)) << press;
    });
}

TEST(KeyRules, EnterAndSpaceRunTheDefaultAction)
{
    forEveryPress([](const KeyPress& press) {
        const bool enter = press.key == kVkReturn && !press.alt;
        const bool space = press.key == kVkSpace && !press.ctrl;
        ASSERT_EQ(contains(keyPressed(press).actions, DefaultAction), enter || space) << press;
        if (press.key == kVkReturn && press.alt) {
            ASSERT_EQ(keyPressed(press).actions, Actions{}) << press;
        }
    });
}

TEST(KeyRules, CommandsHaveTheirKeys)
{
    forEveryPress([](const KeyPress& press) {
        const Actions actions = keyPressed(press).actions;
        ASSERT_EQ(contains(actions, ToggleCaret), press.key == kVkSpace && press.ctrl) << press;
        ASSERT_EQ(contains(actions, SelectAll), press.key == kVkA && press.ctrl && !press.alt) << press;
        ASSERT_EQ(contains(actions, Delete), press.key == kVkDelete) << press;
        ASSERT_EQ(contains(actions, Rename), press.key == kVkF2 && press.hasCaret) << press;
        ASSERT_EQ(contains(actions, Redraw), press.key == kVkF5) << press;
    });
}

TEST(KeyRules, TheTreeViewGetsEveryKeyThatTheTreeDoesNotTake)
{
    forEveryPress([](const KeyPress& press) {
        const Actions actions = keyPressed(press).actions;
        const bool taken = press.key == kVkReturn || press.key == kVkSpace || moves(press.key) ||
                           press.key == kVkDelete || (press.key == kVkA && press.ctrl && !press.alt) ||
                           (press.key == kVkF2 && press.hasCaret);
        int left = 0;
        for (const Action action : {LeaveToTreeView, FollowAlone, FollowRange})
            left += countOf(actions, action);
        ASSERT_EQ(left, taken ? 0 : 1) << press;
    });
}

TEST(KeyRules, TheSelectionFollowsTheKeysOfTheTreeView)
{
    forEveryPress([](const KeyPress& press) {
        const Actions actions = keyPressed(press).actions;
        const bool goes = press.key == kVkEnd || press.key == kVkPageUp || press.key == kVkPageDown ||
                          press.key == kVkLeft || press.key == kVkRight || press.key == kVkBack;
        const bool follows = goes && !press.ctrl;
        ASSERT_EQ(contains(actions, FollowRange), follows && press.shift) << press;
        ASSERT_EQ(contains(actions, FollowAlone), follows && !press.shift) << press;
    });
}

TEST(KeyRules, WithAltTheTreeViewNeverGetsEnter)
{
    for (unsigned key = 0; key < 256; ++key)
        EXPECT_EQ(systemKeyPressed(key), key == kVkReturn ? Actions{} : Actions{LeaveToTreeView});
}

TEST(KeyRules, TheTreeViewSearchesForWhatIsTyped)
{
    for (unsigned character = 0; character < 0x10000; ++character)
        for (const bool ctrl : {false, true}) {
            const Actions actions = characterTyped(static_cast<wchar_t>(character), ctrl);
            const bool handled = character == '\r' || character == ' ' || character == 1; // Ctrl+A
            ASSERT_EQ(contains(actions, LeaveToTreeView), !handled && ctrl) << character;
            ASSERT_EQ(contains(actions, FollowAlone), !handled && !ctrl) << character;
            ASSERT_EQ(actions.size(), handled ? 0u : 1u) << character;
        }
}
