// Check boxes by node, where the host asks for them.
#include "TreeScene.h"

#include <support/Perishing.h>

#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>

#include <ovocor/OvoError.h>

#include <uxtheme.h>
#include <vssym32.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

using namespace ovo::testkit;

namespace
{

using Extra = MultiTreeCtrl::Extra;
using Check = MultiTreeCtrl::Checkable::Check;

/// A node with a check box.
class CheckedNode : public TestNode, public MultiTreeCtrl::Checkable
{
public:
    using TestNode::TestNode;

    Check shown = Check::Off;
    bool obeys = true;
    std::function<void()> checking; ///< at setCheck
    std::function<void()> asking;   ///< at check

    Check check() const override
    {
        if (asking)
            asking();
        return shown;
    }
    void setCheck(MultiTreeCtrl&, bool on) override
    {
        if (journal)
            journal->push_back((on ? "check " : "uncheck ") + name);
        if (obeys)
            shown = on ? Check::On : Check::Off;
        if (checking)
            checking();
    }
};

int WINAPI largeMenus(int metric)
{
    return metric == SM_CXMENUCHECK ? 60 : ::GetSystemMetrics(metric);
}

CheckedNode& addChecked(Scene& scene, const std::string& name)
{
    auto* const node = new CheckedNode(name, &scene.journal);
    node->insert(scene.tree, TVI_ROOT, TVI_LAST);
    return *node;
}

Check shownBy(Scene& scene, const std::string& name)
{
    return static_cast<Check>(scene.tree.GetItemState(scene.item(name), TVIS_STATEIMAGEMASK) >> 12);
}

/// Where the check box of an item is.
Spot boxOf(Scene& scene, const std::string& name)
{
    return Spot([&scene, name] {
        const CPoint label = scene.labelPoint(name);
        for (int x = 0; x < label.x; ++x) {
            UINT flags = 0;
            scene.tree.CTreeCtrl::HitTest(CPoint(x, label.y), &flags);
            if (flags & TVHT_ONITEMSTATEICON) {
                CPoint point(x + 3, label.y);
                scene.tree.ClientToScreen(&point);
                return point;
            }
        }
        throw std::runtime_error("no check box at " + name);
    });
}

/// The state images that a tree view has.
HIMAGELIST stateImages(HWND treeView)
{
    return reinterpret_cast<HIMAGELIST>(::SendMessageW(treeView, TVM_GETIMAGELIST, TVSIL_STATE, 0));
}

/// The height of the check boxes.
int boxHeight(Scene& scene)
{
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(stateImages(scene.tree), &width, &height);
    return height;
}

} // namespace

TEST(TreeCheckBoxes, AreShownOnlyWhereTheHostAsksAndTheNodeHasOne)
{
    Scene scene{{"plain"}};
    addChecked(scene, "box").shown = Check::On;
    EXPECT_EQ(shownBy(scene, "box"), Check::None);
    scene.tree.setExtras(Extra::CheckBoxes);
    EXPECT_EQ(shownBy(scene, "box"), Check::On);
    EXPECT_EQ(shownBy(scene, "plain"), Check::None);
    addChecked(scene, "later");
    EXPECT_EQ(shownBy(scene, "later"), Check::Off);
    scene.tree.setExtras(0);
    EXPECT_EQ(shownBy(scene, "box"), Check::None);
    EXPECT_EQ(scene.tree.GetImageList(TVSIL_STATE), nullptr);
}

/// The boxes are drawn with another theme than the tree.
TEST(TreeCheckBoxes, LeaveTheTreeTheThemeThatItDrawsWith)
{
    Scene scene;
    const HTHEME theme = ::GetWindowTheme(scene.tree);
    ASSERT_NE(theme, nullptr);
    scene.tree.setExtras(Extra::CheckBoxes);
    EXPECT_EQ(::GetWindowTheme(scene.tree), theme);
}

TEST(TreeCheckBoxes, AreNoHigherThanTheRowsWhereTheFontOfMenusIsLarge)
{
    const ImportPatch large(L"ovoui.dll", "GetSystemMetrics", reinterpret_cast<void*>(&largeMenus));
    Scene scene{{"a"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    IMAGEINFO box{};
    ASSERT_TRUE(scene.tree.GetImageList(TVSIL_STATE)->GetImageInfo(1, &box));
    EXPECT_EQ(box.rcImage.bottom - box.rcImage.top, static_cast<LONG>(scene.tree.GetItemHeight()));
}

/// Each as the system draws it, by the theme of the tree where it has one.
TEST(TreeCheckBoxes, ShowHowTheyStand)
{
    struct Look
    {
        Check check;
        int themed;
        UINT classic;
    };
    const Look looks[] = {{Check::Off, CBS_UNCHECKEDNORMAL, DFCS_BUTTONCHECK},
                          {Check::On, CBS_CHECKEDNORMAL, DFCS_BUTTONCHECK | DFCS_CHECKED},
                          {Check::Mixed, CBS_MIXEDNORMAL, DFCS_BUTTON3STATE | DFCS_CHECKED}};
    for (const bool classic : {false, true}) {
        SCOPED_TRACE(classic);
        Scene scene;
        if (classic)
            ::SetWindowTheme(scene.tree, L" ", L" "); // of no class that there is
        scene.tree.setExtras(Extra::CheckBoxes);
        CheckedNode& node = addChecked(scene, "box");
        const int size = boxHeight(scene);
        std::vector<Picture> systems;
        // The classic grey is a pattern, whose beginning depends on where it is drawn.
        const auto fromSystem = [&](const Look& look, int patternBegins) {
            Picture system(size, size, ::GetSysColor(COLOR_WINDOW));
            RECT all{0, 0, size, size};
            ::SetBrushOrgEx(system.dc(), patternBegins, 0, nullptr);
            if (::GetWindowTheme(scene.tree)) {
                const HTHEME theme = ::OpenThemeData(nullptr, L"Button");
                ::DrawThemeBackground(theme, system.dc(), BP_CHECKBOX, look.themed, &all, nullptr);
                ::CloseThemeData(theme);
            } else {
                ::DrawFrameControl(system.dc(), &all, DFC_BUTTON, look.classic | DFCS_FLAT);
            }
            return system;
        };
        for (const Look& look : looks) {
            node.shown = look.check;
            scene.tree.updateUI(node);
            Picture shown(size, size);
            ::ImageList_Draw(stateImages(scene.tree), static_cast<int>(shownBy(scene, "box")), shown.dc(), 0,
                             0, ILD_NORMAL);
            systems.push_back(fromSystem(look, 0));
            EXPECT_EQ(
                std::min(shown.differences(systems.back(), 8), shown.differences(fromSystem(look, 1), 8)), 0)
                << look.themed;
        }
        EXPECT_GT(systems[0].differences(systems[1], 8), 0);
        EXPECT_GT(systems[1].differences(systems[2], 8), 0);
    }
}

TEST(TreeCheckBoxes, AreDrawnAnewWhenTheLooksOfTheSystemChange)
{
    for (const UINT change : {WM_THEMECHANGED, WM_SYSCOLORCHANGE}) {
        SCOPED_TRACE(change);
        Scene scene{{"a"}};
        scene.tree.setExtras(Extra::CheckBoxes);
        const int rows = static_cast<int>(scene.tree.GetItemHeight());
        ASSERT_LT(boxHeight(scene), rows);
        {
            const ImportPatch large(L"ovoui.dll", "GetSystemMetrics", reinterpret_cast<void*>(&largeMenus));
            scene.tree.SendMessage(change);
        }
        EXPECT_EQ(boxHeight(scene), rows);
        scene.tree.setExtras(0);
        scene.tree.SendMessage(change);
        EXPECT_EQ(stateImages(scene.tree), nullptr) << "there are no boxes any more";
    }
}

TEST(TreeCheckBoxes, GiveTheHostItsOwnStateImagesBack)
{
    CImageList own;
    own.Create(12, 12, ILC_COLOR24, 4, 0);
    Scene scene{{"plain"}};
    const HTREEITEM plain = scene.item("plain");
    scene.tree.SetImageList(&own, TVSIL_STATE);
    scene.tree.SetItemState(plain, INDEXTOSTATEIMAGEMASK(2), TVIS_STATEIMAGEMASK);
    for (int i = 0; i < 2; ++i) {
        scene.tree.setExtras(Extra::CheckBoxes);
        EXPECT_NE(stateImages(scene.tree), own.GetSafeHandle());
        scene.tree.setExtras(0);
        EXPECT_EQ(stateImages(scene.tree), own.GetSafeHandle());
        EXPECT_EQ(scene.tree.GetItemState(plain, TVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(2u));
    }
}

/// As in a dialog, whose class asks for them when it is made, and which takes its controls over later.
TEST(TreeCheckBoxes, CanBeAskedForBeforeATreeViewIsTakenOver)
{
    RecordingParent parent;
    CImageList own;
    own.Create(12, 12, ILC_COLOR24, 4, 0);
    TestTree tree;
    tree.setExtras(Extra::CheckBoxes);
    for (const bool hasImages : {true, false}) {
        SCOPED_TRACE(hasImages);
        const HWND plain = ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200,
                                             parent.m_hWnd, reinterpret_cast<HMENU>(5), nullptr, nullptr);
        const HIMAGELIST before = hasImages ? own.GetSafeHandle() : nullptr;
        ::SendMessageW(plain, TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(before));
        for (int i = 0; i < 2; ++i) { // let go of and taken over again, it has them still
            ASSERT_TRUE(tree.SubclassWindow(plain));
            EXPECT_NE(stateImages(plain), nullptr);
            EXPECT_NE(stateImages(plain), own.GetSafeHandle());
            if (i == 0)
                tree.UnsubclassWindow();
        }
        tree.setExtras(0);
        EXPECT_EQ(stateImages(plain), before);
        tree.setExtras(Extra::CheckBoxes);
        tree.DestroyWindow();
    }
}

TEST(TreeCheckBoxes, CanBeAskedForBeforeThereIsAWindow)
{
    RecordingParent parent;
    TestTree tree;
    tree.setExtras(Extra::CheckBoxes);
    tree.Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    EXPECT_NE(tree.GetImageList(TVSIL_STATE), nullptr);
    auto* const node = new CheckedNode("a");
    const HTREEITEM item = node->insert(tree, TVI_ROOT, TVI_LAST);
    EXPECT_EQ(tree.GetItemState(item, TVIS_STATEIMAGEMASK), INDEXTOSTATEIMAGEMASK(1));
}

TEST(TreeCheckBoxes, AClickTogglesTheBoxAndLeavesTheSelectionAlone)
{
    Scene scene{{"plain"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.user.click(scene.label("plain"));
    scene.forget();
    scene.journal.clear();
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, Journal{"check box"});
    EXPECT_EQ(shownBy(scene, "box"), Check::On);
    EXPECT_EQ(scene.selected(), Names{"plain"});
    EXPECT_EQ(scene.changes(), Changes{});
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(shownBy(scene, "box"), Check::Off);
}

TEST(TreeCheckBoxes, ARightClickOnTheBoxIsOneOnTheItem)
{
    Scene scene{{"plain"}};
    scene.tree.swallowsContextMenu = true;
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.journal.clear();
    scene.user.rightClick(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, Journal{}) << "not toggled";
    EXPECT_EQ(scene.selected(), Names{"box"});
    EXPECT_EQ(scene.tree.contextMenus, 1);
}

TEST(TreeCheckBoxes, ADoubleClickTogglesTwiceAndActivatesNothing)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    addChecked(scene, "box");
    scene.journal.clear();
    scene.user.doubleClick(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal, (Journal{"check box", "uncheck box"}));
}

TEST(TreeCheckBoxes, AMixedBoxBecomesCheckedAndANodeMayRefuse)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& node = addChecked(scene, "box");
    node.shown = Check::Mixed;
    scene.tree.updateUI(node);
    EXPECT_EQ(shownBy(scene, "box"), Check::Mixed);
    node.obeys = false;
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.journal.back(), "check box");
    EXPECT_EQ(shownBy(scene, "box"), Check::Mixed);
}

TEST(TreeCheckBoxes, SpaceLetsAllSelectedBoxesFollowTheCarets)
{
    Scene scene{{"plain"}};
    scene.tree.setExtras(Extra::CheckBoxes);
    for (const char* const name : {"x", "y", "z"})
        addChecked(scene, name);
    scene.user.click(boxOf(scene, "y"));
    scene.user.click(scene.label("plain"));
    scene.user.holding(VK_SHIFT).click(scene.label("y")); // the caret at y, which is checked
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(shownBy(scene, "x"), Check::Off);
    EXPECT_EQ(shownBy(scene, "y"), Check::Off);
    scene.user.key(VK_SPACE);
    EXPECT_EQ(shownBy(scene, "x"), Check::On);
    EXPECT_EQ(shownBy(scene, "y"), Check::On);
    EXPECT_EQ(shownBy(scene, "z"), Check::Off);
    EXPECT_EQ(scene.selected(), (Names{"plain", "x", "y"}));
}

TEST(TreeCheckBoxes, ANodeMayHaveNoneAtTheMoment)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& x = addChecked(scene, "x");
    addChecked(scene, "y");
    x.shown = Check::None;
    scene.tree.updateUI(x);
    scene.user.click(scene.label("x"));
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, (Journal{"gesture 1118", "activate x", "gesture 0"}));
    scene.user.holding(VK_SHIFT).click(scene.label("y")); // the caret at y
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, Journal{"check y"});
    EXPECT_EQ(shownBy(scene, "x"), Check::None);
}

TEST(TreeCheckBoxes, SpaceTogglesACaretThatIsNotSelectedAlone)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    for (const char* const name : {"x", "y"})
        addChecked(scene, name);
    scene.user.click(scene.label("x"));
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    ASSERT_EQ(scene.caret(), "y");
    scene.journal.clear();
    scene.user.key(VK_SPACE);
    EXPECT_EQ(scene.journal, Journal{"check y"});
    EXPECT_EQ(scene.selected(), Names{"x"});
}

TEST(TreeCheckBoxes, WhatANodeRaisesIsReported)
{
    Scene scene;
    scene.tree.setExtras(Extra::CheckBoxes);
    CheckedNode& node = addChecked(scene, "box");
    node.checking = [] { throw OvoError(L"locked"); };
    scene.user.click(boxOf(scene, "box"));
    EXPECT_EQ(scene.tree.errors, Journal{"locked"});
    node.checking = nullptr;
    scene.journal.clear();
    for (const bool byKey : {false, true}) {
        node.asking = [] { throw std::runtime_error("unknown"); };
        scene.tree.SelectItem(scene.item("box"));
        scene.tree.errors.clear();
        if (byKey)
            scene.user.key(VK_SPACE);
        else
            scene.user.click(boxOf(scene, "box"));
        EXPECT_EQ(scene.tree.errors, Journal{"unknown"});
        EXPECT_EQ(scene.journal, Journal{}) << "what it is to become is not known";
        node.asking = nullptr;
    }
}

/// Not only its window.
TEST(TreeCheckBoxes, OutliveATreeThatIsDeletedWhenANodeIsAsked)
{
    for (const bool byKey : {false, true}) {
        RecordingParent parent;
        auto tree = std::make_unique<TestTree>();
        tree->setExtras(Extra::CheckBoxes);
        tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
        auto* const node = new CheckedNode("box");
        const HTREEITEM item = node->insert(*tree, TVI_ROOT, TVI_LAST);
        tree->SelectItem(item);
        CRect label;
        tree->GetItemRect(item, &label, TRUE);
        const int y = label.CenterPoint().y;
        const auto isOnBox = [&](int x) {
            UINT flags = 0;
            tree->CTreeCtrl::HitTest(CPoint(x, y), &flags);
            return (flags & TVHT_ONITEMSTATEICON) != 0;
        };
        int x = 0;
        while (x < label.left && !isOnBox(x))
            ++x;
        ASSERT_LT(x, label.left);
        node->asking = [&] { tree.reset(); };
        if (byKey)
            tree->SendMessage(WM_KEYDOWN, VK_SPACE, 1);
        else
            tree->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        EXPECT_EQ(tree, nullptr);
        EXPECT_EQ(TestNode::live(), 0);
    }
}

/// A tree whose host does a deed when the tree view gets images.
class ImagesTree : public TestTree
{
public:
    std::function<void()> deed;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != TVM_SETIMAGELIST || !deed)
            return TestTree::WindowProc(message, wParam, lParam);
        const std::function<void()> own = deed;
        own();
        return 0;
    }
};

TEST(TreeCheckBoxes, OutliveAHostThatDestroysTheTreeWhenItGetsItsImages)
{
    for (const bool wholeObject : {false, true})
        for (const bool on : {false, true}) {
            SCOPED_TRACE(std::string(wholeObject ? "object" : "window") + (on ? " on" : " off"));
            RecordingParent parent;
            std::unique_ptr<ImagesTree> tree = std::make_unique<Perishing<ImagesTree>>();
            tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
            (new CheckedNode("box"))->insert(*tree, TVI_ROOT, TVI_LAST);
            if (!on)
                tree->setExtras(Extra::CheckBoxes);
            tree->deed = [&] {
                if (wholeObject)
                    tree.reset();
                else
                    tree->DestroyWindow();
            };
            tree->setExtras(on ? unsigned{Extra::CheckBoxes} : 0u);
            EXPECT_EQ(TestNode::live(), 0);
        }
}

TEST(TreeCheckBoxes, OutliveWhatANodeDoes)
{
    const std::function<void(Scene&)> misdeeds[] = {
        [](Scene& scene) { scene.tree.DeleteItem(scene.item("box")); },
        [](Scene& scene) { scene.tree.DeleteAllItems(); },
        [](Scene& scene) { scene.tree.setExtras(0); },
        [](Scene& scene) { scene.tree.SendMessage(WM_KEYDOWN, VK_SPACE, 1); },
        [](Scene& scene) { scene.tree.DestroyWindow(); },
    };
    for (const auto& misdeed : misdeeds)
        for (const bool byKey : {false, true})
            for (const bool asked : {false, true}) {
                Scene scene{{"plain"}};
                scene.tree.setExtras(Extra::CheckBoxes);
                CheckedNode& node = addChecked(scene, "box");
                addChecked(scene, "other");
                scene.tree.SelectItem(scene.item("box"));
                scene.tree.selectRange(scene.item("box"), scene.item("other"));
                bool committed = false;
                (asked ? node.asking : node.checking) = [&] {
                    if (!std::exchange(committed, true))
                        misdeed(scene);
                };
                if (byKey)
                    scene.tree.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
                else
                    scene.user.click(boxOf(scene, "box"));
                EXPECT_TRUE(committed);
                EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? static_cast<int>(scene.tree.GetCount()) : 0);
            }
}
