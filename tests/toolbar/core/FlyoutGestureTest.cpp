// The gesture of press, slide and release: every state with every event.
#include <ovoui/toolbar/core/FlyoutGesture.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::toolbar;

namespace
{

const std::vector<Press> kStates{
    kIdle,
    {true, kNoButton, false}, // over a plain button
    {true, 2, true},
    {true, 5, true},
};

const std::vector<ButtonUnderPointer> kButtons{
    {kNoButton, false}, {2, true}, {5, true}, {2, false}, {3, false}, {0, true},
};

constexpr EntryState kEntries[] = {EntryState::None, EntryState::Disabled, EntryState::Enabled};

/// The gesture as a whole, step by step.
class Hand
{
public:
    FlyoutAction press(ButtonUnderPointer under) { return take(onPress(m_press, under)); }
    FlyoutAction slide(ButtonUnderPointer under, bool overFlyout = false)
    {
        return take(onMove(m_press, under, overFlyout));
    }
    const Press& state() const { return m_press; }

private:
    FlyoutAction take(const MoveOutcome& outcome)
    {
        m_press = outcome.next;
        return outcome.action;
    }

    Press m_press;
};

} // namespace

TEST(FlyoutGesture, APressOpensHeldOnlyOnAFlyoutButtonWhenIdle)
{
    for (const Press& state : kStates)
        for (const ButtonUnderPointer& under : kButtons) {
            const MoveOutcome outcome = onPress(state, under);
            const bool opens = !state.dragging && under.index != kNoButton && under.hasFlyout;
            EXPECT_EQ(outcome.action, opens ? FlyoutAction::OpenHeld : FlyoutAction::Keep);
            EXPECT_EQ(outcome.next, opens ? (Press{true, under.index, true}) : state);
            EXPECT_FALSE(outcome.tracks);
        }
}

TEST(FlyoutGesture, WithoutAPressAMoveDoesNothing)
{
    for (const ButtonUnderPointer& under : kButtons)
        for (const bool overFlyout : {false, true}) {
            const MoveOutcome outcome = onMove(kIdle, under, overFlyout);
            EXPECT_EQ(outcome.action, FlyoutAction::Keep);
            EXPECT_EQ(outcome.next, kIdle);
            EXPECT_FALSE(outcome.tracks);
        }
}

TEST(FlyoutGesture, OverAPlainButtonTheFlyoutClosesAndThePressGoesOn)
{
    for (const Press& state : kStates) {
        if (!state.dragging)
            continue;
        const MoveOutcome outcome = onMove(state, {3, false}, false);
        EXPECT_EQ(outcome.action, state.open ? FlyoutAction::Close : FlyoutAction::Keep);
        EXPECT_EQ(outcome.next, (Press{true, kNoButton, false}));
        EXPECT_FALSE(outcome.tracks);
    }
}

TEST(FlyoutGesture, OverAnotherFlyoutButtonItsFlyoutOpensAtOnce)
{
    for (const Press& state : kStates)
        for (const int index : {0, 2, 5}) {
            if (!state.dragging || state.button == index)
                continue;
            const MoveOutcome outcome = onMove(state, {index, true}, false);
            EXPECT_EQ(outcome.action, FlyoutAction::OpenNow);
            EXPECT_EQ(outcome.next, (Press{true, index, true}));
            EXPECT_TRUE(outcome.tracks);
        }
}

TEST(FlyoutGesture, OverItsOwnButtonOutsideTheBarOrOverTheFlyoutItStaysAndTracks)
{
    for (const Press& state : kStates) {
        if (!state.dragging)
            continue;
        for (const MoveOutcome& outcome : {onMove(state, {kNoButton, false}, false),
                                           onMove(state, {3, false}, true), onMove(state, {0, true}, true)}) {
            EXPECT_EQ(outcome.action, FlyoutAction::Keep);
            EXPECT_EQ(outcome.next, state);
            EXPECT_EQ(outcome.tracks, state.open);
        }
    }
    EXPECT_EQ(onMove({true, 2, true}, {2, true}, false).action, FlyoutAction::Keep);
}

TEST(FlyoutGesture, BackFromAPlainButtonTheFlyoutOpensAgainAtOnce)
{
    Hand hand;
    EXPECT_EQ(hand.press({2, true}), FlyoutAction::OpenHeld);
    EXPECT_EQ(hand.slide({3, false}), FlyoutAction::Close);
    EXPECT_EQ(hand.slide({3, false}), FlyoutAction::Keep);
    EXPECT_EQ(hand.slide({2, true}), FlyoutAction::OpenNow);
    EXPECT_EQ(hand.state(), (Press{true, 2, true}));
}

TEST(FlyoutGesture, AReleaseChoosesAnEntryOfAnOpenFlyoutOnly)
{
    for (const Press& state : kStates)
        for (const EntryState entry : kEntries) {
            const ReleaseOutcome outcome = onRelease(state, entry);
            const bool chooses = state.open && entry != EntryState::None;
            EXPECT_EQ(outcome.chooses, chooses);
            EXPECT_EQ(outcome.sendsCommand, chooses && entry == EntryState::Enabled);
        }
}

TEST(FlyoutGesture, TheOpenFlyoutsButtonMovesWithInsertionsAndDeletions)
{
    EXPECT_EQ(afterInsertion(kNoButton, 0), kNoButton);
    EXPECT_EQ(afterInsertion(3, 3), 4);
    EXPECT_EQ(afterInsertion(3, 0), 4);
    EXPECT_EQ(afterInsertion(3, 4), 3);
    EXPECT_EQ(afterDeletion(kNoButton, 0), kNoButton);
    EXPECT_EQ(afterDeletion(3, 3), kNoButton);
    EXPECT_EQ(afterDeletion(3, 0), 2);
    EXPECT_EQ(afterDeletion(3, 4), 3);
}

TEST(FlyoutGesture, ADeletionClosesTheFlyoutOfThatButton)
{
    for (int button = kNoButton; button < 4; ++button)
        for (int deleted = kNoButton; deleted < 4; ++deleted)
            EXPECT_EQ(losesFlyout(button, deleted), button == deleted && button >= 0);
}

TEST(FlyoutGesture, WhatEndsAPressWithoutAChoice)
{
    for (const Press& state : kStates)
        for (const bool ofThisBar : {false, true}) {
            EXPECT_EQ(endsPress(Interruption::AppDeactivated, state, ofThisBar), state.dragging);
            EXPECT_EQ(endsPress(Interruption::CaptureLost, state, ofThisBar), state.dragging && ofThisBar);
            EXPECT_EQ(endsPress(Interruption::KeyboardLeft, state, ofThisBar), !state.dragging && ofThisBar);
            EXPECT_EQ(endsPress(Interruption::BarGone, state, ofThisBar), ofThisBar);
        }
}

TEST(FlyoutGesture, DuringItsPressTheBarHasTheMouse)
{
    for (const Press& state : kStates)
        for (const bool ofThisBar : {false, true})
            for (const bool hasMouse : {false, true})
                EXPECT_EQ(takesMouse(state, ofThisBar, hasMouse), state.dragging && ofThisBar && !hasMouse);
}

TEST(FlyoutGesture, AnEntryIsOfThreeStates)
{
    EXPECT_EQ(entryState(false, false), EntryState::None);
    EXPECT_EQ(entryState(false, true), EntryState::None);
    EXPECT_EQ(entryState(true, false), EntryState::Disabled);
    EXPECT_EQ(entryState(true, true), EntryState::Enabled);
}
