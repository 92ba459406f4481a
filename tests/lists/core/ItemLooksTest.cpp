// Looks that stay with their items.
#include <ovoui/lists/core/ItemLooks.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ovoui::lists;

namespace
{

using Names = std::vector<std::string>;

const ItemLook kRed{0xFF0000FFu, -1};
const ItemLook kImage{std::nullopt, 3};

} // namespace

TEST(ItemLooks, EmptyUntilGiven)
{
    ItemLooks looks;
    EXPECT_EQ(looks.at(0), ItemLook{});
    EXPECT_EQ(looks.at(-1), ItemLook{});
    looks.set(2, kRed);
    looks.set(-1, kRed);
    EXPECT_EQ(looks.at(2), kRed);
    EXPECT_EQ(looks.at(1), ItemLook{});
    EXPECT_EQ(looks.at(3), ItemLook{});
}

TEST(ItemLooks, GoWithTheirItems)
{
    ItemLooks looks;
    looks.set(1, kRed);
    looks.set(2, kImage);
    looks.inserted(1);
    EXPECT_EQ(looks.at(1), ItemLook{});
    EXPECT_EQ(looks.at(2), kRed);
    looks.deleted(0);
    EXPECT_EQ(looks.at(1), kRed);
    EXPECT_EQ(looks.at(2), kImage);
    looks.deleted(1);
    EXPECT_EQ(looks.at(1), kImage);
    looks.clear();
    EXPECT_EQ(looks.at(1), ItemLook{});
}

TEST(ItemLooks, ItemsBehindTheLastLookHaveNone)
{
    ItemLooks looks;
    looks.set(0, kRed);
    looks.inserted(1);
    looks.inserted(-1);
    looks.deleted(5);
    looks.deleted(-1);
    EXPECT_EQ(looks.at(0), kRed);
    EXPECT_EQ(looks.at(1), ItemLook{});
}

TEST(ItemLooks, StayWithTheirItemsAmongMore)
{
    ItemLooks looks;
    looks.set(0, kRed);
    looks.set(2, kImage);
    const ItemLooks now =
        looks.amongMore(Names{"b", "c", "d", "e"}, Names{"a", "b", "bb", "c", "d", "e", "f"});
    for (int item = 0; item < 8; ++item)
        EXPECT_EQ(now.at(item), item == 1 ? kRed : item == 4 ? kImage : ItemLook{}) << item;
}

TEST(ItemLooks, OfItemsThatAreTheSameTheFirstHasTheLook)
{
    ItemLooks looks;
    looks.set(1, kRed);
    const ItemLooks now = looks.amongMore(Names{"a", "a"}, Names{"a", "a", "a"});
    for (int item = 0; item < 3; ++item)
        EXPECT_EQ(now.at(item), item == 1 ? kRed : ItemLook{}) << item;
}

TEST(ItemLooks, GoWithItemsThatAreNotAmongMore)
{
    ItemLooks looks;
    looks.set(0, kRed);
    looks.set(2, kImage);
    const ItemLooks now = looks.amongMore(Names{"a", "b", "c"}, Names{"b", "c"});
    EXPECT_EQ(now.at(0), ItemLook{});
    EXPECT_EQ(now.at(1), kImage);
    EXPECT_FALSE(now.haveColours());
    EXPECT_FALSE(looks.amongMore(Names{}, Names{"a"}).haveColours()) << "there was no item";
}

TEST(ItemLooks, KnowWhetherThereAreAny)
{
    ItemLooks looks;
    EXPECT_TRUE(looks.empty());
    looks.set(0, kImage);
    EXPECT_FALSE(looks.empty());
    looks.clear();
    EXPECT_TRUE(looks.empty());
}

TEST(ItemLooks, KnowWhetherAnyHasAColour)
{
    ItemLooks looks;
    looks.set(4, kImage);
    EXPECT_FALSE(looks.haveColours());
    looks.set(1, kRed);
    EXPECT_TRUE(looks.haveColours());
    looks.deleted(1);
    EXPECT_FALSE(looks.haveColours());
}
