#include <ovoui/tree/core/FilterRule.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

/// Every tree of up to six items, with every set of hits.
TEST(FilterRule, KeepsTheHitsAndAllThatTheyAreInAndNothingElse)
{
    constexpr std::size_t kMost = 6;
    int cases = 0;
    for (std::size_t count = 0; count <= kMost; ++count) {
        std::vector<FilteredItem> items(count);
        // Each item has one of those before it for a parent, or none.
        int shapes = 1;
        for (std::size_t i = 0; i < count; ++i)
            shapes *= static_cast<int>(i) + 1;
        for (int shape = 0; shape < shapes; ++shape) {
            int rest = shape;
            for (std::size_t i = 0; i < count; ++i) {
                items[i].parent = rest % (static_cast<int>(i) + 1) - 1;
                rest /= static_cast<int>(i) + 1;
            }
            for (unsigned hits = 0; hits < 1u << count; ++hits) {
                for (std::size_t i = 0; i < count; ++i)
                    items[i].hit = (hits & 1u << i) != 0;
                std::vector<bool> right(count);
                for (std::size_t i = 0; i < count; ++i)
                    for (auto at = static_cast<std::ptrdiff_t>(i); items[i].hit && at >= 0;
                         at = items[static_cast<std::size_t>(at)].parent)
                        right[static_cast<std::size_t>(at)] = true;
                ASSERT_EQ(keptByFilter(items), right) << count << ' ' << shape << ' ' << hits;
                ++cases;
            }
        }
    }
    EXPECT_EQ(cases, 1 + 2 + 2 * 4 + 6 * 8 + 24 * 16 + 120 * 32 + 720 * 64);
}
