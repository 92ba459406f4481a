// What keys and a loss of focus lead to: every case there is.
#include <ovoui/lists/core/ComboRules.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

ComboSettings settings(bool autoComplete, bool confirmAnyText, bool notifyEditReturn)
{
    return {autoComplete, confirmAnyText, notifyEditReturn};
}

using Words = std::vector<Told>;

/// Calls `check(flag, flag, ...)` with every combination.
template <class Check>
void forAllOf3(Check check)
{
    for (int bits = 0; bits < 8; ++bits)
        check((bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0);
}

} // namespace

TEST(ComboRules, EnterIsAlwaysTaken)
{
    for (int bits = 0; bits < 4; ++bits)
        EXPECT_EQ(effectOf(ComboKey::Return, bits & 1, bits & 2), KeyEffect::Return);
}

TEST(ComboRules, EscapeIsTakenWhenThereIsSomethingToUndo)
{
    for (const bool dropped : {false, true}) {
        EXPECT_EQ(effectOf(ComboKey::Escape, true, dropped), KeyEffect::Escape);
        EXPECT_EQ(effectOf(ComboKey::Escape, false, dropped), KeyEffect::PassOn);
    }
}

TEST(ComboRules, ArrowsAreTakenWhileTheListIsClosed)
{
    for (const bool changed : {false, true}) {
        EXPECT_EQ(effectOf(ComboKey::Up, changed, false), KeyEffect::Up);
        EXPECT_EQ(effectOf(ComboKey::Down, changed, false), KeyEffect::Down);
        EXPECT_EQ(effectOf(ComboKey::Up, changed, true), KeyEffect::PassOn);
        EXPECT_EQ(effectOf(ComboKey::Down, changed, true), KeyEffect::PassOn);
    }
}

TEST(ComboRules, OtherKeysPass)
{
    for (int bits = 0; bits < 4; ++bits)
        EXPECT_EQ(effectOf(ComboKey::Other, bits & 1, bits & 2), KeyEffect::PassOn);
}

TEST(ComboRules, EscapeRestoresAndAChosenHitIsAccepted)
{
    const Verdict escaped = afterEscape();
    EXPECT_TRUE(escaped.restores);
    EXPECT_EQ(escaped.told, (Words{Told::SelChange, Told::SelEndCancel}));
    const Verdict chosen = afterChoice();
    EXPECT_FALSE(chosen.restores);
    EXPECT_EQ(chosen.told, (Words{Told::SelChange, Told::SelEndOk}));
}

TEST(ComboRules, AnOpenListGivesItsSelectionOrElseTheTextIsLookedUp)
{
    forAllOf3([](bool a, bool b, bool c) {
        EXPECT_EQ(takingOf(true, true, settings(a, b, c)), (Taking{true, true, false}));
        EXPECT_EQ(takingOf(true, false, settings(a, b, c)), (Taking{true, false, true}));
    });
}

TEST(ComboRules, WithTheListClosedTheTextIsLookedUpWhenCompletionIsOn)
{
    for (const bool selection : {false, true})
        for (const bool complete : {false, true})
            EXPECT_EQ(takingOf(false, selection, settings(complete, true, true)),
                      (Taking{false, false, complete}));
}

TEST(ComboRules, EnterAcceptsWhatMatchesOrAnyText)
{
    forAllOf3([](bool match, bool any, bool notify) {
        for (const bool dropped : {false, true}) {
            Words expected;
            if (match || any)
                expected = {Told::SelChange, Told::SelEndOk};
            if (notify && !dropped)
                expected.push_back(Told::Return);
            EXPECT_EQ(afterReturn(match, dropped, settings(true, any, notify)), (Verdict{false, expected}));
        }
    });
}

TEST(ComboRules, EscapeRestores)
{
    EXPECT_EQ(afterEscape(), (Verdict{true, {Told::SelChange, Told::SelEndCancel}}));
}

TEST(ComboRules, ArrowsAcceptAndSayWhichOneItWas)
{
    forAllOf3([](bool match, bool any, bool notify) {
        for (const Told arrow : {Told::Up, Told::Down}) {
            Words expected;
            if (match || any)
                expected = {Told::SelChange, Told::SelEndOk};
            if (notify)
                expected.push_back(arrow);
            EXPECT_EQ(afterArrow(match, arrow, settings(true, any, notify)), (Verdict{false, expected}));
        }
    });
}

TEST(ComboRules, FocusLostWithoutAChangeIsACancel)
{
    forAllOf3([](bool match, bool any, bool notify) {
        EXPECT_EQ(afterFocusLost(match, false, settings(true, any, notify)),
                  (Verdict{false, {Told::SelEndCancel}}));
    });
}

TEST(ComboRules, FocusLostWithAChangeAcceptsOrRestores)
{
    forAllOf3([](bool match, bool any, bool notify) {
        const Verdict verdict = afterFocusLost(match, true, settings(true, any, notify));
        if (match || any)
            EXPECT_EQ(verdict, (Verdict{false, {Told::SelChange, Told::SelEndOk}}));
        else
            EXPECT_EQ(verdict, (Verdict{true, {Told::SelChange, Told::SelEndCancel}}));
    });
}

TEST(ComboRules, WhatEveryKeyIsToTheComboBox)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        ComboKey expected = ComboKey::Other;
        if (key == 0x0D)
            expected = ComboKey::Return;
        if (key == 0x1B)
            expected = ComboKey::Escape;
        if (key == 0x26)
            expected = ComboKey::Up;
        if (key == 0x28)
            expected = ComboKey::Down;
        EXPECT_EQ(comboKeyOf(key), expected) << key;
        EXPECT_EQ(completesAfter(key), key != 0x08 && key != 0x2E) << key;
        const bool page = key == 0x21 || key == 0x22;
        EXPECT_EQ(stepsThroughItems(key), page || key == 0x26 || key == 0x28) << key;
        for (int bits = 0; bits < 8; ++bits)
            EXPECT_EQ(forgetsText(key, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0),
                      key == 0x2E && bits == 5)
                << key << " " << bits;
    }
}

TEST(ComboRules, WhatWasAddedIsSelectedUnlessAPartFurtherLeftWas)
{
    for (int typed = 0; typed < 5; ++typed) {
        EXPECT_EQ(selectionAfterCompletion(std::nullopt, typed), (TextPart{typed, -1}));
        for (int end = 0; end < 7; ++end)
            for (int begin = 0; begin <= end; ++begin) {
                const TextPart before{begin, end};
                EXPECT_EQ(selectionAfterCompletion(before, typed),
                          end < typed ? before : (TextPart{typed, -1}));
            }
    }
}
