// What a click on a heading leads to.
#include <ovoui/lists/core/HeadingRule.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(HeadingRule, TheSecondClickSortsDescending)
{
    for (int column = 0; column < 3; ++column)
        for (int sorted = -1; sorted < 3; ++sorted)
            for (const bool ascending : {false, true})
                EXPECT_EQ(sortsAscending(column, sorted, ascending), !(column == sorted && ascending));
}
