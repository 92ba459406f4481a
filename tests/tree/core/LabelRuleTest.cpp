#include <ovoui/tree/core/LabelRule.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovoui::tree;

namespace
{

const std::wstring kTexts[] = {L"", L"a", L"b", L"A"};

} // namespace

TEST(LabelRule, WhatTheNodeHasOfferedIsNoNewName)
{
    for (const std::wstring& offered : kTexts)
        for (const std::wstring& typed : kTexts)
            EXPECT_EQ(isRenamed(offered, typed), offered != typed);
}

TEST(LabelRule, TheNodesTextTellsWhatItHasMadeOfTheName)
{
    for (const std::wstring& before : kTexts)
        for (const std::wstring& after : kTexts)
            for (const std::wstring& typed : kTexts) {
                AfterRename expected = AfterRename::ShowNodes;
                if (after == typed)
                    expected = AfterRename::TakeTyped;
                if (after == before)
                    expected = AfterRename::EditAgain;
                EXPECT_EQ(afterRename(before, after, typed), expected);
            }
}

TEST(LabelRule, TheEditorIsClosedBeforeItsItemGoes)
{
    for (const bool isItem : {false, true})
        for (const bool isBelow : {false, true}) {
            EXPECT_FALSE(closesEditor(ToBeDeleted::Nothing, isItem, isBelow));
            EXPECT_TRUE(closesEditor(ToBeDeleted::Everything, isItem, isBelow));
            EXPECT_EQ(closesEditor(ToBeDeleted::Item, isItem, isBelow), isItem || isBelow);
            EXPECT_EQ(closesEditor(ToBeDeleted::Children, isItem, isBelow), isBelow);
        }
}

TEST(LabelRule, AMessageDeletesEverythingAnItemOrWhatIsBelowIt)
{
    for (const bool destroys : {false, true})
        for (const bool deletes : {false, true})
            for (const bool empties : {false, true})
                for (const bool all : {false, true}) {
                    ToBeDeleted expected = ToBeDeleted::Nothing;
                    if (destroys || (all && (deletes || empties)))
                        expected = ToBeDeleted::Everything;
                    else if (deletes)
                        expected = ToBeDeleted::Item;
                    else if (empties)
                        expected = ToBeDeleted::Children;
                    EXPECT_EQ(toBeDeleted({destroys, deletes, empties, all}), expected)
                        << destroys << deletes << empties << all;
                }
}
