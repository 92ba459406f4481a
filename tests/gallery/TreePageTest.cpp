// The page of the tree, used as a person would.
#include "GalleryScene.h"

#include "resource.h"

#include <testkit/TemporaryProfile.h>

#include <ovoui/tree/MultiTreeCtrl.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class GalleryTree : public ::testing::Test
{
protected:
    GalleryTree() { scene.open(L"tree"); }

    MultiTreeCtrl& project()
    {
        const HWND tree = ::GetDlgItem(scene.control(IDC_TREE_PROJECT), IDC_PROJECT_TREE);
        return dynamic_cast<MultiTreeCtrl&>(*CWnd::FromHandle(tree));
    }

    TemporaryProfile profile;
    GalleryScene scene;
    Robot robot;
};

} // namespace

TEST_F(GalleryTree, BringsBackWhatItShowedWhenThePageIsOpenedAgain)
{
    project().selectPath(L"/Garden/Beds (sorted)/Roses.plan");
    const std::wstring shown = project().saveView();
    robot.click(Spot{scene.control(IDC_TREE_SAVE_VIEW)});
    scene.open(L"lists");
    scene.open(L"tree");
    ASSERT_NE(project().saveView(), shown);
    robot.click(Spot{scene.control(IDC_TREE_RESTORE_VIEW)});
    EXPECT_EQ(project().saveView(), shown);
}

TEST_F(GalleryTree, WithNothingSavedIsLeftAlone)
{
    project().selectPath(L"/Garden/Beds (sorted)/Roses.plan");
    const std::wstring shown = project().saveView();
    robot.click(Spot{scene.control(IDC_TREE_RESTORE_VIEW)});
    EXPECT_EQ(project().saveView(), shown);
}
