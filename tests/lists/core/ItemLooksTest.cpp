// Looks that stay with their items, and where they are drawn.
#include <ovoui/lists/core/ComboItemLayout.h>
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

TEST(ComboItemLayout, FromLeftToRight)
{
    const Box item{10, 100, 210, 120};
    EXPECT_EQ(layOutComboItem(item, false, 0, 0).text, (Box{13, 100, 208, 120}));
    const ComboItemLayout all = layOutComboItem(item, true, 16, 12);
    EXPECT_EQ(all.swatch, (Box{12, 102, 36, 118}));
    EXPECT_EQ(all.image, (Box{38, 104, 54, 116}));
    EXPECT_EQ(all.text, (Box{57, 100, 208, 120}));
    EXPECT_TRUE(layOutComboItem(item, false, 16, 16).swatch.empty());
    EXPECT_TRUE(layOutComboItem(item, true, 0, 0).image.empty());
}

TEST(ComboItemLayout, AsHighAsTextAndImage)
{
    EXPECT_EQ(comboItemHeight(13, 0), 15);
    EXPECT_EQ(comboItemHeight(13, 16), 18);
}

TEST(ComboItemLayout, BelowTheFieldOrAbove)
{
    const Box area{0, 0, 1000, 800};
    EXPECT_EQ(placeBeside({10, 100, 200, 120}, area, 300), (Box{10, 120, 200, 420}));
    EXPECT_EQ(placeBeside({10, 700, 200, 720}, area, 300), (Box{10, 400, 200, 700}));
    EXPECT_EQ(placeBeside({10, 300, 200, 320}, area, 900), (Box{10, 320, 200, 800})) << "cut to the room";
    EXPECT_EQ(placeBeside({10, 500, 200, 520}, area, 900), (Box{10, 0, 200, 500}));
    EXPECT_EQ(placeBeside({10, 720, 200, 740}, area, 60), (Box{10, 740, 200, 800})) << "just enough below";
}
