// Where swatch, image and text of an item lie, and where a list goes beside its field.
#include <ovoui/lists/core/ComboItemLayout.h>

#include <gtest/gtest.h>

using namespace ovoui::lists;

TEST(ComboItemLayout, TextAloneBeginsAtTheLeft)
{
    const ComboItemLayout layout = layOutComboItem({10, 20, 110, 38}, false, 0, 0, 96);
    EXPECT_TRUE(layout.swatch.empty());
    EXPECT_TRUE(layout.image.empty());
    EXPECT_EQ(layout.text, (Box{13, 20, 108, 38}));
}

TEST(ComboItemLayout, TheTextStandsBehindSwatchAndImage)
{
    const Box item{10, 20, 110, 38};
    const ComboItemLayout swatch = layOutComboItem(item, true, 0, 0, 96);
    EXPECT_EQ(swatch.swatch, (Box{12, 22, 33, 36})) << "half as wide again as it is high";
    EXPECT_EQ(swatch.text.left, 36);

    const ComboItemLayout image = layOutComboItem(item, false, 16, 12, 96);
    EXPECT_EQ(image.image, (Box{12, 23, 28, 35})) << "in the middle";
    EXPECT_EQ(image.text.left, 31);

    const ComboItemLayout both = layOutComboItem(item, true, 16, 16, 96);
    EXPECT_EQ(both.swatch, swatch.swatch);
    EXPECT_EQ(both.image, (Box{35, 21, 51, 37}));
    EXPECT_EQ(both.text, (Box{54, 20, 108, 38}));
}

TEST(ComboItemLayout, TheGapsGrowWithTheResolution)
{
    const ComboItemLayout layout = layOutComboItem({10, 20, 210, 47}, true, 24, 24, 144);
    EXPECT_EQ(layout.swatch, (Box{13, 23, 44, 44}));
    EXPECT_EQ(layout.image, (Box{47, 21, 71, 45}));
    EXPECT_EQ(layout.text, (Box{76, 20, 207, 47}));
    EXPECT_EQ(comboItemHeight(20, 24, 144), 27);
    EXPECT_EQ(layOutComboItem({0, 0, 200, 40}, false, 0, 0, 192).text, (Box{6, 0, 196, 40}));
}

TEST(ComboItemLayout, AnItemWithoutHeightHasNoSwatch)
{
    EXPECT_TRUE(layOutComboItem({0, 0, 100, 3}, true, 0, 0, 96).swatch.empty());
}

TEST(ComboItemLayout, ItemsAreAsHighAsTheHigherOfTextAndImage)
{
    EXPECT_EQ(comboItemHeight(13, 0, 96), 15);
    EXPECT_EQ(comboItemHeight(13, 16, 96), 18);
    EXPECT_EQ(comboItemHeight(20, 16, 96), 22);
}

TEST(ComboItemLayout, AListGoesBelowItsField)
{
    const Box work{0, 0, 800, 600};
    EXPECT_EQ(placeBeside({100, 50, 300, 70}, work, 200), (Box{100, 70, 300, 270}));
    EXPECT_EQ(placeBeside({100, 50, 300, 400}, work, 200), (Box{100, 400, 300, 600})) << "just enough";
}

TEST(ComboItemLayout, OrAboveItWhereThereIsMoreRoom)
{
    const Box work{0, 0, 800, 600};
    EXPECT_EQ(placeBeside({100, 500, 300, 520}, work, 200), (Box{100, 300, 300, 500}));
    EXPECT_EQ(placeBeside({100, 500, 300, 520}, work, 2000), (Box{100, 0, 300, 500})) << "cut to the room";
    EXPECT_EQ(placeBeside({100, 200, 300, 220}, work, 2000), (Box{100, 220, 300, 600})) << "more room below";
    EXPECT_EQ(placeBeside({100, 700, 300, 720}, work, 50), (Box{100, 650, 300, 700}))
        << "field off the screen";
}
