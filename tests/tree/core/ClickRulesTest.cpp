#include "SelectionModel.h"

#include <ovoui/tree/core/ClickRules.h>
#include <ovoui/tree/core/HitParts.h>

using namespace ovoui::tree;
using enum Action;

namespace
{

constexpr int kNone = SelectionModel::kNone;
constexpr int kLast = SelectionModel::kItems - 1; ///< what empty space stands for: the pointer is below

/// A click as a user makes it.
struct Click
{
    Held held;
    Where where;
    bool right;
    int item; ///< in whose row; none on empty space

    bool inRow() const { return item != kNone; }

    friend std::ostream& operator<<(std::ostream& out, const Click& click)
    {
        return out << (click.right ? "right" : "left") << ", keys " << static_cast<int>(click.held)
                   << ", where " << static_cast<int>(click.where) << ", item " << click.item;
    }
};

template <class Visit>
void forEveryClick(Visit visit)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift})
        for (const bool right : {false, true})
            for (int item = kNone; item <= kLast; ++item) {
                if (item == kNone) {
                    visit(Click{held, Where::Empty, right, item});
                    continue;
                }
                visit(Click{held, Where::Item, right, item});
                visit(Click{held, Where::Beside, right, item});
            }
}

Actions press(const Click& click, const SelectionModel& before)
{
    return pressed({click.held, click.where, before.selected.contains(click.item)});
}

SelectionModel afterPress(const Click& click, const SelectionModel& before)
{
    SelectionModel model = before;
    model.act(press(click, before), click.item, kLast);
    return model;
}

/// Press and release without a drag in between.
SelectionModel afterClick(const Click& click, const SelectionModel& before, bool editable)
{
    const Actions first = press(click, before);
    SelectionModel model = afterPress(click, before);
    const ButtonRelease release{click.held, click.where, click.right, isSettledBy(first), editable};
    model.act(contains(first, AwaitDrag) ? releasedAfterPress(release) : released(release), click.item);
    return model;
}

/// What the user finds after a click.
SelectionModel expected(const Click& click, const SelectionModel& before)
{
    SelectionModel model = before;
    const int end = click.inRow() ? click.item : kLast;
    const bool hitSelected = before.selected.contains(click.item);
    model.menus = click.right ? 1 : 0;
    switch (click.held) {
    case Held::Shift:
        model.selected = SelectionModel::range(before.anchor, end);
        model.caret = end;
        break;
    case Held::Ctrl:
        model.anchor = end;
        if (hitSelected)
            model.selected.erase(click.item);
        else if (click.inRow())
            model.selected.insert(click.item);
        break;
    case Held::CtrlShift: // ExtraRulesTest
        break;
    case Held::Nothing:
        model.anchor = end;
        // The right button leaves a selection alone that it was pressed on: its menu is about all of it.
        if (!(click.right && click.where == Where::Item && hitSelected))
            model.selectAlone(click.item);
    }
    return model;
}

} // namespace

TEST(ClickRules, AClickEndsAsTheUserExpects)
{
    int cases = 0;
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            ++cases;
            for (const bool editable : {false, true})
                ASSERT_EQ(afterClick(click, before, editable), expected(click, before))
                    << click << " from " << before;
        });
    });
    EXPECT_EQ(cases, 16 * 5 * 5 * 6 * 9);
}

TEST(ClickRules, UntilTheReleaseWhatIsPressedOnCanBeDragged)
{
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            if (!before.selected.contains(click.item) || click.held == Held::Shift)
                return;
            const SelectionModel model = afterPress(click, before);
            if (click.where == Where::Item || click.held == Held::Ctrl) {
                ASSERT_EQ(model.selected, before.selected) << click << " from " << before;
            }
            // A drag of the selection keeps the anchor.
            if (click.held == Held::Nothing) {
                ASSERT_EQ(model.anchor, before.anchor) << click << " from " << before;
            }
        });
    });
}

TEST(ClickRules, APressMovesTheAnchorUnlessItMayDragTheSelection)
{
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            const bool drags = click.held == Held::Nothing && before.selected.contains(click.item);
            const bool stays = click.held == Held::Shift || drags;
            const int end = click.inRow() ? click.item : kLast;
            ASSERT_EQ(afterPress(click, before).anchor, stays ? before.anchor : end)
                << click << " from " << before;
        });
    });
}

/// The host may have changed anything between the press and the release.
TEST(ClickRules, AReleaseAfterThePressDoesTheSameWhateverThereIs)
{
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            if (click.held == Held::Shift)
                return;
            for (const bool settled : {false, true}) {
                SelectionModel model = before;
                model.act(releasedAfterPress({click.held, click.where, click.right, settled, false}),
                          click.item);
                SelectionModel right = before;
                right.menus = click.right ? 1 : 0;
                if (click.inRow())
                    right.anchor = click.item;
                if (click.held == Held::Ctrl && !settled)
                    right.selected.erase(click.item);
                if (click.held == Held::Nothing && (!click.right || settled))
                    right.selectAlone(click.item);
                ASSERT_EQ(model, right) << click << " from " << before;
            }
        });
    });
}

TEST(ClickRules, APressOnWhatIsNotSelectedShowsAtOnce)
{
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            if (click.where != Where::Item || before.selected.contains(click.item))
                return;
            ASSERT_TRUE(afterPress(click, before).selected.contains(click.item))
                << click << " from " << before;
        });
    });
}

TEST(ClickRules, EveryPressTakesTheFocusAndWaitsForADragExceptWithShift)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift})
        for (const Where where : {Where::Item, Where::Beside, Where::Empty})
            for (const bool selected : {false, true}) {
                const Actions actions = pressed({held, where, selected});
                EXPECT_EQ(countOf(actions, TakeFocus), 1);
                EXPECT_EQ(countOf(actions, AwaitDrag), held == Held::Shift ? 0 : 1);
                // First the selection, then the focus, then the wait.
                EXPECT_EQ(actions.back(), held == Held::Shift ? TakeFocus : AwaitDrag);
                EXPECT_EQ(countOf(actions, LeaveToTreeView), 0);
                EXPECT_EQ(countOf(actions, AskForMenu), 0);
            }
}

TEST(ClickRules, TheParentHearsOfAClickAtMostOncePerStep)
{
    const auto changes = [](const Actions& actions) {
        int count = 0;
        for (const Action action : {SelectAlone, SelectForCertain, Clear, SelectRange, Add, Remove})
            count += countOf(actions, action);
        return count;
    };
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            const Actions first = press(click, before);
            ASSERT_LE(changes(first), 1);
            for (const bool editable : {false, true})
                ASSERT_LE(changes(releasedAfterPress(
                              {click.held, click.where, click.right, isSettledBy(first), editable})),
                          1);
        });
    });
}

TEST(ClickRules, WhatIsThePlatformsIsLeftToIt)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift})
        for (const bool yes : {false, true}) {
            EXPECT_EQ(pressed({held, Where::Elsewhere, yes}), Actions{LeaveToTreeView});
            for (const bool right : {false, true})
                EXPECT_EQ(released({held, Where::Elsewhere, right, yes, false}), Actions{LeaveToTreeView});
            EXPECT_EQ(doubleClicked({held, Where::Elsewhere, yes}), Actions{LeaveToTreeView});
        }
}

TEST(ClickRules, TheLabelIsEditedAfterASecondPlainLeftClickOnly)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift})
        for (const Where where : {Where::Item, Where::Beside, Where::Empty})
            for (const bool right : {false, true})
                for (const bool settled : {false, true})
                    for (const bool editable : {false, true}) {
                        const ButtonRelease release{held, where, right, settled, editable};
                        const bool edits =
                            held == Held::Nothing && where != Where::Empty && !right && !settled && editable;
                        EXPECT_EQ(contains(releasedAfterPress(release), EditLater), edits);
                        EXPECT_FALSE(contains(released(release), EditLater));
                    }
}

TEST(ClickRules, AReleaseByItselfSelectsTogglesOrAsksForTheMenu)
{
    forEveryModel([&](const SelectionModel& before) {
        forEveryClick([&](const Click& click) {
            for (const bool settled : {false, true}) {
                SelectionModel model = before;
                model.act(released({click.held, click.where, click.right, settled, false}), click.item);
                SelectionModel right = before;
                if (click.right) {
                    right.menus = click.held == Held::Shift ? 1 : 0;
                } else if (click.held != Held::Shift && click.inRow()) {
                    right.anchor = click.item;
                    if (click.held == Held::Nothing)
                        right.selectAlone(click.item);
                    else if (!settled)
                        right.selected.erase(click.item);
                } else if (click.held == Held::Nothing) {
                    right.selectAlone(kNone);
                }
                ASSERT_EQ(model, right) << click << " from " << before;
            }
        });
    });
}

TEST(ClickRules, ADoubleClickRunsTheDefaultActionUnlessItHitsNothing)
{
    for (const Held held : {Held::Nothing, Held::Ctrl, Held::Shift})
        for (const Where where : {Where::Item, Where::Beside, Where::Empty})
            for (const bool onEmptySpace : {false, true}) {
                const bool runs = !onEmptySpace || held != Held::Nothing;
                EXPECT_EQ(doubleClicked({held, where, onEmptySpace}),
                          runs ? Actions{DefaultAction} : Actions{});
            }
}

TEST(ClickRules, ShiftCountsBeforeCtrl)
{
    EXPECT_EQ(held(false, false), Held::Nothing);
    EXPECT_EQ(held(false, true), Held::Ctrl);
    EXPECT_EQ(held(true, false), Held::Shift);
    EXPECT_EQ(held(true, true), Held::Shift);
}

TEST(ClickRules, ThePlaceOfAClickComesFromTheHitTest)
{
    for (unsigned flags = 0; flags < 0x1000; ++flags)
        for (const bool hasItem : {false, true}) {
            const auto expectedPlace = [&](unsigned mask) {
                if (!(flags & mask))
                    return Where::Elsewhere;
                if (!hasItem)
                    return Where::Empty;
                return (flags & (kHitIcon | kHitLabel | kHitStateIcon)) ? Where::Item : Where::Beside;
            };
            ASSERT_EQ(placeOfPress(hasItem, flags), expectedPlace(0x36F)) << flags;
            ASSERT_EQ(placeOfRelease(hasItem, flags), expectedPlace(0x347)) << flags;
        }
}
