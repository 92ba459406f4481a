// Looks that stay with their items.
#include <ovoui/lists/core/ItemLooks.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

namespace
{

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
