// The page of the tree, used as a person would.
#include "GalleryScene.h"

#include "resource.h"

#include <testkit/TemporaryProfile.h>

#include <ovoui/tree/MultiTreeCtrl.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

    /// The labels of the items that are in no other.
    std::vector<std::wstring> outermost()
    {
        std::vector<std::wstring> labels;
        for (HTREEITEM item = project().GetRootItem(); item; item = project().GetNextItem(item, TVGN_NEXT))
            labels.push_back(project().node(item)->text(project()));
        return labels;
    }

    UINT checkBoxOf(HTREEITEM item) { return project().GetItemState(item, TVIS_STATEIMAGEMASK); }

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

TEST_F(GalleryTree, ShowsCheckBoxesAndFindsAnywhereWhenItIsAsked)
{
    project().selectPath(L"/Notes.txt");
    const HTREEITEM notes = project().GetSelectedItem();
    EXPECT_EQ(checkBoxOf(notes), 0u);
    robot.click(Spot{scene.control(IDC_TREE_EXTRAS)});
    const UINT off = checkBoxOf(notes);
    EXPECT_NE(off, 0u);
    project().SetFocus();
    robot.key(VK_SPACE);
    EXPECT_NE(checkBoxOf(notes), off);
    robot.type(L"cence");
    EXPECT_EQ(project().selectedPath(), L"/Garden/Licence.txt");
}

TEST_F(GalleryTree, TheFilterLeavesWhatHasTheTypedText)
{
    const std::vector<std::wstring> all = outermost();
    ASSERT_EQ(all.size(), 3u);
    robot.click(Spot{scene.control(IDC_TREE_FILTER)});
    robot.type(L"notes");
    EXPECT_EQ(outermost(), (std::vector<std::wstring>{L"Notes.txt"}));
    robot.key(VK_BACK, 5);
    EXPECT_EQ(outermost(), all);
}
