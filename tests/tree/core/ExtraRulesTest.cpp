// The rules of clicks and keys that a host has to ask for.
#include "SelectionModel.h"

#include <ovoui/tree/core/ClickRules.h>
#include <ovoui/tree/core/HitParts.h>
#include <ovoui/tree/core/KeyRules.h>

using namespace ovoui::tree;
using enum Action;

namespace
{

constexpr int kNone = SelectionModel::kNone;
constexpr int kLast = SelectionModel::kItems - 1;

/// Ranges are added by Ctrl and Shift with one of these keys.
const std::vector<unsigned> kRangeKeys{kVkHome, kVkUp, kVkDown, kVkEnd, kVkPageUp, kVkPageDown};

bool isRangeKey(unsigned key)
{
    return std::find(kRangeKeys.begin(), kRangeKeys.end(), key) != kRangeKeys.end();
}

SelectionModel withRangeAdded(const SelectionModel& before, int end)
{
    SelectionModel model = before;
    model.selected.merge(SelectionModel::range(before.anchor, end));
    model.caret = end;
    return model;
}

} // namespace

// Ctrl+Shift

TEST(ExtraRules, CtrlWithShiftCountsOnlyWhereItAddsRanges)
{
    for (const bool shift : {false, true})
        for (const bool ctrl : {false, true}) {
            EXPECT_EQ(held(shift, ctrl, true), shift && ctrl ? Held::CtrlShift
                                               : shift       ? Held::Shift
                                               : ctrl        ? Held::Ctrl
                                                             : Held::Nothing);
            EXPECT_NE(held(shift, ctrl, false), Held::CtrlShift);
        }
}

TEST(ExtraRules, ACtrlShiftClickAddsTheRangeAndKeepsTheAnchor)
{
    forEveryModel([&](const SelectionModel& before) {
        for (int item = kNone; item <= kLast; ++item)
            for (const Where where : {Where::Item, Where::Beside, Where::Empty}) {
                if ((item == kNone) != (where == Where::Empty))
                    continue;
                const bool selected = before.selected.contains(item);
                const Actions press = pressed({Held::CtrlShift, where, selected});
                SelectionModel model = before;
                model.act(press, item, kLast);
                ASSERT_EQ(model, withRangeAdded(before, item == kNone ? kLast : item)) << before;
                ASSERT_EQ(press.back(), TakeFocus);
                ASSERT_FALSE(contains(press, AwaitDrag));
                for (const bool right : {false, true}) {
                    const Actions release =
                        released({Held::CtrlShift, where, right, isSettledBy(press), false});
                    ASSERT_EQ(release, right ? Actions{AskForMenu} : Actions{});
                }
            }
    });
}

TEST(ExtraRules, AKeyWithCtrlAndShiftAddsTheRange)
{
    forEveryModel([&](const SelectionModel& before) {
        for (unsigned key = 0; key < 256; ++key)
            for (const bool alt : {false, true}) {
                const KeyPress press{key, true, true, alt, before.caret != kNone, true};
                KeyPress plain = press;
                plain.addsRanges = false;
                const KeyRule rule = keyPressed(press);
                const bool arrow = key == kVkUp || key == kVkDown;
                if (!isRangeKey(key) || (arrow && !press.hasCaret)) {
                    ASSERT_EQ(rule.actions, keyPressed(plain).actions) << key;
                    continue;
                }
                ASSERT_NE(rule.aim, Aim::None) << key;
                ASSERT_EQ(rule.actions.front(), ScrollTo) << key;
                for (int goal = 0; goal <= kLast; ++goal) {
                    SelectionModel model = before;
                    model.act(rule.actions, goal);
                    ASSERT_EQ(model, withRangeAdded(before, goal)) << key << " from " << before;
                }
            }
    });
}

TEST(ExtraRules, OtherKeysStayAsTheyAreWhereRangesAreAdded)
{
    for (unsigned key = 0; key < 256; ++key)
        for (int bits = 0; bits < 16; ++bits) {
            const KeyPress plain{key, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
            KeyPress press = plain;
            press.addsRanges = true;
            if (press.shift && press.ctrl)
                continue;
            ASSERT_EQ(keyPressed(press).actions, keyPressed(plain).actions) << key;
            ASSERT_EQ(keyPressed(press).aim, keyPressed(plain).aim) << key;
        }
}

// Shift with the keys of the tree view

TEST(ExtraRules, ShiftWithEndAndPageKeysExtends)
{
    for (const unsigned key : {kVkEnd, kVkPageUp, kVkPageDown})
        for (const bool addsRanges : {false, true})
            EXPECT_EQ(keyPressed({key, true, false, false, true, addsRanges}).actions, Actions{FollowRange});
}

// The band

TEST(ExtraRules, ABandIsDrawnWithTheLeftButtonFromBesideTheItems)
{
    for (const Where where : {Where::Item, Where::Beside, Where::Empty, Where::Elsewhere, Where::CheckBox})
        for (const bool right : {false, true})
            for (const bool bands : {false, true}) {
                const bool band = bands && !right && (where == Where::Beside || where == Where::Empty);
                EXPECT_EQ(dragged({where, right, bands}), Actions{band ? SelectByBand : BeginDrag});
            }
}

// Check boxes

TEST(ExtraRules, TheCheckBoxIsWhereTheStateIconIs)
{
    for (unsigned bit = 0; bit < 16; ++bit)
        for (const bool hasItem : {false, true}) {
            const unsigned flags = 1u << bit;
            const bool box = hasItem && flags == kHitStateIcon;
            EXPECT_EQ(placeOfPress(hasItem, flags, true) == Where::CheckBox, box);
            EXPECT_EQ(placeOfRelease(hasItem, flags, true) == Where::CheckBox, box);
            EXPECT_NE(placeOfPress(hasItem, flags, false), Where::CheckBox);
            EXPECT_NE(placeOfRelease(hasItem, flags, false), Where::CheckBox);
        }
}

TEST(ExtraRules, AClickOnACheckBoxTogglesItAndLeavesTheSelectionAlone)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift, Held::CtrlShift})
        for (const bool selected : {false, true})
            for (const bool settled : {false, true}) {
                EXPECT_EQ(pressed({held, Where::CheckBox, selected}), (Actions{TakeFocus, ToggleCheck}));
                EXPECT_EQ(released({held, Where::CheckBox, false, settled, false}), Actions{});
                EXPECT_EQ(doubleClicked({held, Where::CheckBox, false}), Actions{ToggleCheck});
            }
}

TEST(ExtraRules, SpaceTogglesTheCaretsCheckBox)
{
    for (int bits = 0; bits < 8; ++bits) {
        const bool ctrl = (bits & 2) != 0;
        const KeyPress press{kVkSpace, (bits & 1) != 0, ctrl, (bits & 4) != 0, true, false, true};
        EXPECT_EQ(keyPressed(press).actions, ctrl ? Actions{ToggleCaret} : Actions{ToggleCheck});
    }
    for (unsigned key = 0; key < 256; ++key)
        if (key != kVkSpace) {
            EXPECT_FALSE(
                contains(keyPressed({key, false, false, false, true, false, true}).actions, ToggleCheck));
        }
}
