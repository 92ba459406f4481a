// Sorting by comparisons of hosts, which may be wrong.
#include <ovoui/tree/core/StableOrder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <utility>

using ovoui::tree::sortStably;

TEST(StableOrder, IsThatOfTheStandardLibrary)
{
    std::mt19937 random(11);
    for (std::size_t size = 0; size < 200; ++size) {
        std::vector<std::pair<int, int>> values;
        for (std::size_t i = 0; i < size; ++i)
            values.emplace_back(static_cast<int>(random() % 20), static_cast<int>(i));
        auto expected = values;
        std::stable_sort(expected.begin(), expected.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        sortStably(values, [](const auto& a, const auto& b) { return a.first - b.first; });
        EXPECT_EQ(values, expected);
    }
}

TEST(StableOrder, AComparisonThatContradictsItselfLosesNothing)
{
    std::mt19937 random(12);
    std::vector<int> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<int>(i);
    const std::vector<int> before = values;
    sortStably(values, [&](int, int) { return static_cast<int>(random() % 3) - 1; });
    std::sort(values.begin(), values.end());
    EXPECT_EQ(values, before);
}

TEST(StableOrder, AnExceptionLeavesTheValuesAsTheyWere)
{
    std::vector<int> values{5, 4, 3, 2, 1};
    const std::vector<int> before = values;
    int calls = 0;
    EXPECT_THROW(sortStably(values,
                            [&](int a, int b) {
                                if (++calls == 4)
                                    throw std::runtime_error("cannot compare");
                                return a - b;
                            }),
                 std::runtime_error);
    EXPECT_EQ(values, before);
}
