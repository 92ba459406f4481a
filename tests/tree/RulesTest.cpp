// Rules of selection, commands and drags that show in the corners only.
#include "TreeScene.h"

#include <ovoui/tree/PlainText.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace ovo::testkit;

TEST(TreeRules, ADragOfASelectedItemKeepsTheAnchor)
{
    Scene scene{{"a", "b", "c", "d"}};
    scene.user.click(scene.label("b"));
    scene.user.holding(VK_SHIFT).click(scene.label("d"));
    bool dragged = false;
    scene.parent().answer(static_cast<UINT>(TVN_BEGINDRAGW), [&](NMHDR*) -> LRESULT {
        dragged = true;
        return 0;
    });
    scene.user.press(scene.label("c")).moveBy(0, 30).waitFor("the drag", [&] { return dragged; }).release();
    scene.tree.SelectItem(nullptr);
    scene.tree.selectItemAnchor(scene.item("b"));
    scene.tree.SelectItem(scene.item("b"));
    scene.tree.selectRange(scene.item("b"), scene.item("d"));
    dragged = false;
    scene.user.press(scene.label("c")).moveBy(0, 30).waitFor("the drag", [&] { return dragged; }).release();
    scene.user.holding(VK_SHIFT).click(scene.label("a"));
    EXPECT_EQ(scene.selected(), (Names{"a", "b"})); // from b, not from c
}

TEST(TreeRules, ARangeWithNeitherEndDisplayedSelectsNothing)
{
    Scene scene{{"a", "b"}};
    scene.add("x", "a");
    scene.add("y", "b");
    scene.tree.selectRange(scene.item("x"), scene.item("y"));
    EXPECT_EQ(scene.selected(), Names{});
    scene.tree.selectRange(scene.item("y"), scene.item("x"));
    EXPECT_EQ(scene.selected(), Names{});
    scene.tree.selectRange(scene.item("x"), nullptr);
    EXPECT_EQ(scene.selected(), Names{});
    scene.tree.selectRange(scene.item("y"), scene.item("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
}

TEST(TreeRules, RefusingToOpenTakesTheExpandedOnceBitAway)
{
    Scene scene{{"a"}};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    scene.tree.SetItemState(scene.item("a"), TVIS_EXPANDEDONCE, TVIS_EXPANDEDONCE);
    scene.node("a").expanding = [](MultiTreeCtrl&) { return false; };
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.SendMessage(WM_KEYDOWN, VK_ADD, 1);
    ASSERT_EQ(scene.journal, Journal{"expand a"});
    EXPECT_EQ(scene.tree.GetItemState(scene.item("a"), TVIS_EXPANDEDONCE), 0u);
}

TEST(TreeRules, KeysOfTheTreeViewLeaveOneItemSelected)
{
    Scene scene{{"a", "b", "c", "d"}};
    const auto select = [&] {
        scene.tree.SelectItem(scene.item("a"));
        scene.tree.selectItemAnchor(scene.item("a"));
        scene.tree.selectRange(scene.item("a"), scene.item("c"));
        scene.forget();
    };
    scene.tree.SetFocus();
    select();
    scene.user.key(VK_END);
    EXPECT_EQ(scene.selected(), Names{"d"});
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "a", "d"}}));
    select();
    scene.user.holding(VK_SHIFT).key(VK_END);
    EXPECT_EQ(scene.selected(), (Names{"a", "b", "c", "d"}));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "a", "d"}}));
}

TEST(TreeRules, ShiftWithPageKeysSelectsFromTheAnchor)
{
    Names names;
    for (int i = 0; i < 60; ++i)
        names.push_back(std::to_string(100 + i));
    const auto range = [&](const std::string& first, const std::string& last) {
        return Names(std::ranges::find(names, first), std::next(std::ranges::find(names, last)));
    };
    Scene scene{names};
    scene.tree.SetFocus();
    scene.user.click(scene.label("105"));
    scene.forget();
    scene.user.holding(VK_SHIFT).key(VK_NEXT);
    const std::string below = scene.caret();
    EXPECT_GT(below, "106");
    EXPECT_EQ(scene.selected(), range("105", below));
    EXPECT_EQ(scene.changes(), (Changes{{TVC_BYKEYBOARD, "105", below}}));
    scene.user.holding(VK_SHIFT).key(VK_END);
    EXPECT_EQ(scene.selected(), range("105", "159"));
    for (int i = 0; i < 60 && scene.caret() != "100"; ++i)
        scene.user.holding(VK_SHIFT).key(VK_PRIOR);
    EXPECT_EQ(scene.selected(), range("100", "105"));
}

TEST(TreeRules, ACommandThatANodeOffersIsTheNodesThoughTheParentDisablesIt)
{
    class Parent : public RecordingParent
    {
    public:
        using RecordingParent::RecordingParent;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
        {
            if (id == 4001 && static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI && !info) {
                static_cast<CCmdUI*>(extra)->Enable(FALSE);
                return TRUE;
            }
            return RecordingParent::OnCmdMsg(id, code, extra, info);
        }
    };
    Parent parent;
    TestTree tree;
    tree.Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
    Journal journal;
    auto* const node = new TestNode("a", &journal);
    node->insert(tree, TVI_ROOT, TVI_LAST);
    node->offer(4001);
    tree.SelectItem(tree.GetRootItem());
    const auto state = [&] {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 4001, L"command");
        tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
        return menu.GetMenuState(4001, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED);
    };
    EXPECT_EQ(state(), 0u);
    journal.clear();
    tree.SendMessage(WM_COMMAND, 4001);
    EXPECT_EQ(journal, Journal{"doCommand 4001 a"});
    // Not selected, the node has no say.
    tree.SelectItem(nullptr);
    EXPECT_NE(state(), 0u);
    tree.DestroyWindow();
}

// The button of a drag

TEST(TreeRules, TheButtonOfADragIsTheOneThatItCameInWithAtEveryEdge)
{
    Scene scene;
    for (int i = 0; i < 60; ++i)
        scene.add("n" + std::to_string(i));
    for (auto at = scene.tree.beginAll(); at != scene.tree.end(); ++at)
        static_cast<TestNode&>(*at).draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) -> DWORD {
            effects = DROPEFFECT_COPY;
            return DROPEFFECT_NONE;
        };
    scene.tree.EnsureVisible(scene.item("n59"));
    scene.tree.EnsureVisible(scene.item("n30"));
    CRect client;
    scene.tree.GetClientRect(&client);
    auto& target = scene.tree.m_pDropTarget->m_xDropTarget;
    COleDataSource source;
    cachePlaintext(source, L"text");
    const auto place = [&](CPoint point) {
        scene.tree.ClientToScreen(&point);
        return POINTL{point.x, point.y};
    };
    // At the edge, where the tree may scroll, and in the middle.
    const auto comeIn = [&](DWORD keys, CPoint point) {
        DWORD atEdge = DROPEFFECT_COPY;
        target.DragEnter(&source.m_xDataObject, keys, place(point), &atEdge);
        DWORD inside = DROPEFFECT_COPY;
        target.DragOver(keys, place(client.CenterPoint()), &inside);
        target.DragLeave();
        return std::pair(atEdge & ~DROPEFFECT_SCROLL, inside);
    };
    const std::pair<DWORD, DWORD> copies(DROPEFFECT_COPY, DROPEFFECT_COPY);
    const std::pair<DWORD, DWORD> refuses(DROPEFFECT_NONE, DROPEFFECT_NONE);
    const CPoint middle = client.CenterPoint();
    for (const CPoint edge : {CPoint(middle.x, client.top + 1), CPoint(middle.x, client.bottom - 2),
                              CPoint(client.left + 1, middle.y), CPoint(client.right - 2, middle.y)}) {
        // Only the right button makes something of what the node allows without wanting it.
        EXPECT_EQ(comeIn(MK_RBUTTON, edge), copies) << edge.x << ' ' << edge.y;
        EXPECT_EQ(comeIn(MK_LBUTTON, edge), refuses) << edge.x << ' ' << edge.y;
        EXPECT_EQ(comeIn(MK_RBUTTON, edge), copies) << edge.x << ' ' << edge.y;
    }
}
