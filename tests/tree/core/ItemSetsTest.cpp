#include <ovoui/tree/core/ItemSets.h>

#include <gtest/gtest.h>

using namespace ovoui::tree;

namespace
{

constexpr int kItems = 4;

/// The items whose bits are set.
std::vector<int> itemsOf(unsigned bits)
{
    std::vector<int> items;
    for (int item = 0; item < kItems; ++item)
        if (bits >> item & 1)
            items.push_back(item);
    return items;
}

constexpr unsigned kAll = 1u << kItems;

} // namespace

TEST(ItemSets, ASetHasEachItemOnceInOrder)
{
    EXPECT_EQ(setOf(std::vector{3, 1, 3, 2, 1}), (std::vector{1, 2, 3}));
    EXPECT_TRUE(setOf(std::vector<int>()).empty());
}

TEST(ItemSets, WhatIsInASetIsFound)
{
    for (unsigned bits = 0; bits < kAll; ++bits)
        for (int item = 0; item < kItems; ++item)
            EXPECT_EQ(isIn(itemsOf(bits), item), (bits >> item & 1) != 0) << bits << ' ' << item;
}

TEST(ItemSets, TheDifferenceIsWhatOneOfBothHas)
{
    for (unsigned one = 0; one < kAll; ++one)
        for (unsigned other = 0; other < kAll; ++other)
            EXPECT_EQ(differing(itemsOf(one), itemsOf(other)), itemsOf(one ^ other)) << one << ' ' << other;
}

TEST(ItemSets, ABandSelectsWhatItTouchesAndWithCtrlTurnsItOver)
{
    for (unsigned before = 0; before < kAll; ++before)
        for (unsigned touched = 0; touched < kAll; ++touched)
            for (unsigned gone = 0; gone < kAll; ++gone) {
                const auto isGone = [gone](int item) { return (gone >> item & 1) != 0; };
                const auto selection = [&](bool ctrl) {
                    return bandSelection(itemsOf(before), itemsOf(touched), ctrl, isGone);
                };
                EXPECT_EQ(selection(false), itemsOf(touched)) << before << ' ' << touched << ' ' << gone;
                EXPECT_EQ(selection(true), itemsOf((before & ~gone) ^ touched))
                    << before << ' ' << touched << ' ' << gone;
            }
}
