#include <ovoui/tree/core/DropEffect.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

namespace
{

constexpr unsigned kAll = kDropAny;

unsigned resolve(unsigned keys, unsigned answer = kDropMove, unsigned allowed = kAll, bool right = false)
{
    return resolveDropEffect(keys, answer, allowed, right);
}

} // namespace

TEST(DropEffect, WithoutKeysTheAnswerStands)
{
    EXPECT_EQ(resolve(0, kDropMove), kDropMove);
    EXPECT_EQ(resolve(0, kDropCopy), kDropCopy);
    EXPECT_EQ(resolve(0, kDropNone), kDropNone);
    EXPECT_EQ(resolve(0x01), kDropMove);                    // the left button is no modifier
    EXPECT_EQ(resolve(0, kDropMove, kDropCopy), kDropMove); // it need not be one to choose from
    EXPECT_EQ(resolve(0, kDropMove, kDropCopy, true), kDropMove);
}

TEST(DropEffect, KeysChoose)
{
    EXPECT_EQ(resolve(kKeyShift, kDropCopy), kDropMove);
    EXPECT_EQ(resolve(kKeyCtrl), kDropCopy);
    EXPECT_EQ(resolve(kKeyCtrl | kKeyShift), kDropLink);
    EXPECT_EQ(resolve(kKeyAlt), kDropLink);
}

TEST(DropEffect, OtherCombinationsAreNoDrop)
{
    EXPECT_EQ(resolve(kKeyAlt | kKeyShift), kDropNone);
    EXPECT_EQ(resolve(kKeyAlt | kKeyCtrl), kDropNone);
    EXPECT_EQ(resolve(kKeyAlt | kKeyCtrl | kKeyShift), kDropNone);
}

TEST(DropEffect, AKeyForWhatIsNotAllowedIsNoDrop)
{
    EXPECT_EQ(resolve(kKeyShift, kDropCopy, kDropCopy), kDropNone);
    EXPECT_EQ(resolve(kKeyCtrl, kDropMove, kDropMove | kDropLink), kDropNone);
    EXPECT_EQ(resolve(kKeyAlt, kDropMove, kDropMove | kDropCopy), kDropNone);
}

TEST(DropEffect, TheRightButtonTakesWhateverIsAllowed)
{
    EXPECT_EQ(resolve(0, kDropNone, kAll, true), kDropMove);
    EXPECT_EQ(resolve(0, kDropNone, kDropCopy | kDropLink, true), kDropCopy);
    EXPECT_EQ(resolve(0, kDropNone, kDropLink, true), kDropLink);
    EXPECT_EQ(resolve(0, kDropCopy, kAll, true), kDropCopy);
    EXPECT_EQ(resolve(kKeyAlt | kKeyCtrl, kDropNone, kAll, true), kDropMove);
}

TEST(DropEffect, WhereNothingIsAllowedThereIsNoDrop)
{
    EXPECT_EQ(resolve(kKeyCtrl, kDropCopy, 0), kDropNone);
    EXPECT_EQ(resolve(0, kDropCopy, 0), kDropNone); // it would be refused in the end
    EXPECT_EQ(resolve(0, kDropNone, 0, true), kDropNone);
}

TEST(PasteEffect, IsWhatTheOwnerPrefersIfAllowed)
{
    EXPECT_EQ(resolvePasteEffect(kDropMove, kDropMove, kAll), kDropMove);
    EXPECT_EQ(resolvePasteEffect(kDropMove, kDropCopy, kDropCopy), kDropCopy);
    EXPECT_EQ(resolvePasteEffect(0, kDropMove, kAll), kDropCopy);
    EXPECT_EQ(resolvePasteEffect(0, kDropNone, 0), kDropNone);
}

TEST(DropEffect, WhatIsAroundIsAskedWhenTheItemLeavesTheDataToOthers)
{
    for (const bool beside : {false, true})
        for (unsigned answer = 0; answer <= kDropAny; ++answer)
            EXPECT_EQ(asksAround(beside, answer), beside && answer == kDropNone) << answer;
}
