// What a host has to ask for.
#include "TreeScene.h"

#include <gtest/gtest.h>

using Extra = MultiTreeCtrl::Extra;

TEST(TreeExtras, AreOffAtFirst)
{
    Scene scene{{"a"}};
    EXPECT_EQ(scene.tree.extras(), 0u);
    scene.tree.setExtras(Extra::RubberBand | Extra::CheckBoxes);
    EXPECT_EQ(scene.tree.extras(), 9u);
}
