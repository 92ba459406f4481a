// Sorting rows.
#include <ovoui/lists/core/RowOrder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace ovoui::lists;

TEST(RowOrder, SortsStably)
{
    std::mt19937 random(3);
    for (int count = 0; count < 200; ++count) {
        std::vector<int> keys;
        for (int i = 0; i < count; ++i)
            keys.push_back(static_cast<int>(random() % 10));
        const auto before = [&](int a, int b) {
            return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
        };
        std::vector<int> expected(keys.size());
        std::iota(expected.begin(), expected.end(), 0);
        std::stable_sort(expected.begin(), expected.end(), before);
        EXPECT_EQ(orderOfRows(count, before), expected);
    }
}

TEST(RowOrder, AComparisonThatContradictsItselfDoesNoHarm)
{
    std::mt19937 random(4);
    for (int count = 0; count < 100; ++count) {
        std::vector<int> rows = orderOfRows(count, [&](int, int) { return random() % 2 == 0; });
        std::sort(rows.begin(), rows.end());
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(rows[static_cast<std::size_t>(i)], i);
    }
}
