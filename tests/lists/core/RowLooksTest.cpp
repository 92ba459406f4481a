#include <ovoui/lists/core/RowLooks.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(RowLooks, ARowLooksSelectedWhenItIsAndTheListShowsItOrWhenItIsADropTarget)
{
    for (const bool selected : {false, true})
        for (const bool dropTarget : {false, true})
            for (const bool listFocused : {false, true})
                for (const bool alwaysShown : {false, true}) {
                    bool expected = false;
                    if (dropTarget)
                        expected = true;
                    else if (!selected)
                        expected = false;
                    else if (listFocused || alwaysShown)
                        expected = true;
                    EXPECT_EQ(looksSelected({selected, dropTarget, listFocused, alwaysShown}), expected)
                        << selected << dropTarget << listFocused << alwaysShown;
                }
}
