#include <ovoui/tree/core/BlockList.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using ovoui::tree::BlockList;

namespace
{

template <std::size_t Size>
std::vector<int> valuesOf(const BlockList<int, Size>& list)
{
    std::vector<int> values;
    list.visit([&](int value) {
        values.push_back(value);
        return true;
    });
    return values;
}

} // namespace

TEST(BlockList, AnEmptyListHasOnePlace)
{
    BlockList<int, 4> list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.after(list.end()), nullptr);
    EXPECT_EQ(list.before(list.end()), nullptr);
    list.insert(list.partitionPoint([](int) { return true; }), 1);
    EXPECT_EQ(valuesOf(list), std::vector<int>{1});
}

TEST(BlockList, SortsAsAVectorDoes)
{
    std::mt19937 random(7);
    BlockList<int, 8> list;
    std::vector<int> expected;
    for (int i = 0; i < 3000; ++i) {
        const int value = static_cast<int>(random() % 1000);
        const auto place = list.partitionPoint([value](int other) { return other < value; });
        const auto at = std::lower_bound(expected.begin(), expected.end(), value);
        ASSERT_EQ(list.after(place) ? *list.after(place) : -1, at == expected.end() ? -1 : *at);
        ASSERT_EQ(list.before(place) ? *list.before(place) : -1, at == expected.begin() ? -1 : *(at - 1));
        list.insert(place, value);
        expected.insert(at, value);
    }
    EXPECT_EQ(valuesOf(list), expected);
    EXPECT_EQ(list.size(), expected.size());
}

TEST(BlockList, PlacesByIndexAreThoseOfAVector)
{
    std::mt19937 random(8);
    BlockList<int, 4> list;
    std::vector<int> expected;
    for (int i = 0; i < 500; ++i) {
        const std::size_t index = random() % (expected.size() + 2);
        list.insert(list.placeAt(index), i);
        expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(std::min(index, expected.size())), i);
    }
    EXPECT_EQ(valuesOf(list), expected);
}

TEST(BlockList, AVisitEndsWhenItIsToldTo)
{
    BlockList<int, 2> list;
    for (int i = 0; i < 10; ++i)
        list.push_back(i);
    int seen = 0;
    list.visit([&](int value) {
        ++seen;
        return value < 4;
    });
    EXPECT_EQ(seen, 5);
    list.clear();
    EXPECT_TRUE(list.empty());
    EXPECT_TRUE(valuesOf(list).empty());
}
