// What may change while the tree calls its host: items, their order, the selection, the tree itself.
#include "TreeScene.h"

#include <ovoui/tree/PlainText.h>
#include <ovoui/tree/Platform.h>

#include <ovocor/OvoError.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <type_traits>

using namespace ovotest;

namespace
{

/// "p" is open and has the child "c", which is open too and has "x" and "y"; "q" stands behind "p".
class Nested : public Scene
{
public:
    Nested()
        : Scene({"p", "q"})
    {
        grow("p", {"c"});
        open("p");
        grow("c", {"x", "y"});
    }

    void grow(const std::string& name, const Names& children)
    {
        node(name).children = 1;
        node(name).childNames = children;
        tree.updateUI(item(name));
    }
    void closeParent() { tree.Expand(item("p"), TVE_COLLAPSE); }
    int items() { return static_cast<int>(tree.GetCount()); }
};

void sendKey(Scene& scene, const std::string& name, UINT key)
{
    scene.tree.SelectItem(scene.item(name));
    scene.tree.SendMessage(WM_KEYDOWN, key, 1);
}

void expectParentClosed(Nested& scene)
{
    EXPECT_EQ(scene.all(), (Names{"p", "q"}));
    EXPECT_FALSE(scene.isExpanded("p"));
    EXPECT_EQ(TestNode::live(), 2);
    TVITEM item{};
    item.mask = TVIF_HANDLE | TVIF_CHILDREN;
    item.hItem = scene.item("p");
    scene.tree.GetItem(&item);
    EXPECT_EQ(item.cChildren, 1); // it can be opened again
    scene.node("p").expanding = nullptr;
    scene.open("p");
    EXPECT_EQ(scene.childrenOf("p"), Names{"c"});
}

struct Way
{
    const char* name;
    std::function<void(Nested&)> close;
};

const Way kWaysOfClosing[] = {
    {"ByMessage", [](Nested& scene) { scene.tree.Expand(scene.item("c"), TVE_COLLAPSE); }},
    {"ByResetting",
     [](Nested& scene) { scene.tree.Expand(scene.item("c"), TVE_COLLAPSE | TVE_COLLAPSERESET); }},
    {"ByClick", [](Nested& scene) { scene.user.click(scene.button("c")); }},
    {"ByKey", [](Nested& scene) { sendKey(scene, "c", VK_SUBTRACT); }},
    {"ByLeft", [](Nested& scene) { sendKey(scene, "c", VK_LEFT); }},
};

class ClosingTheParent : public ::testing::TestWithParam<Way>
{
};

} // namespace

// Closing what is above

TEST_P(ClosingTheParent, InCollapseDoesNoHarm)
{
    Nested scene;
    scene.open("c");
    scene.node("c").collapsing = [&](MultiTreeCtrl&) { scene.closeParent(); };
    GetParam().close(scene);
    expectParentClosed(scene);
}

INSTANTIATE_TEST_SUITE_P(Ways, ClosingTheParent, ::testing::ValuesIn(kWaysOfClosing),
                         [](const auto& info) { return info.param.name; });

TEST(TreeChanges, ANodeThatClosesItsParentWhileAllIsOpenedDoesNoHarm)
{
    Nested scene;
    scene.node("c").expanding = [&](MultiTreeCtrl&) {
        scene.closeParent();
        return true;
    };
    sendKey(scene, "p", VK_MULTIPLY);
    expectParentClosed(scene);
}

TEST(TreeChanges, ANodeThatDeletesItsParentWhileItClosesDoesNoHarm)
{
    Nested scene;
    scene.open("c");
    scene.node("c").collapsing = [&](MultiTreeCtrl& tree) { tree.DeleteItem(scene.item("p")); };
    scene.user.click(scene.button("c"));
    EXPECT_EQ(scene.all(), Names{"q"});
    EXPECT_EQ(TestNode::live(), 1);
}

TEST(TreeChanges, ClosingAnItemAboveTheFirstRowDoesNoHarm)
{
    Scene scene{{"p"}};
    Names many;
    for (int i = 0; i < 60; ++i)
        many.push_back("c" + std::to_string(i));
    scene.node("p").children = 1;
    scene.node("p").childNames = many;
    scene.tree.updateUI(scene.item("p"));
    scene.open("p");
    scene.tree.SelectItem(scene.item("p"));
    scene.tree.EnsureVisible(scene.item("c59"));
    ASSERT_NE(scene.tree.GetFirstVisibleItem(), scene.item("p"));
    scene.tree.SendMessage(WM_KEYDOWN, VK_SUBTRACT, 1);
    EXPECT_EQ(scene.all(), Names{"p"});
    EXPECT_EQ(scene.tree.GetFirstVisibleItem(), scene.item("p"));
}

// The order of the tree

TEST(TreeChanges, TheSelectedItemsKeepTheOrderOfTheTreeWhateverIsHidden)
{
    Scene scene{{"a", "b", "c", "d", "e", "f", "g", "h"}};
    scene.add("d1", "d");
    scene.add("d11", "d1");
    ::SendMessageW(scene.tree.m_hWnd, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(scene.item("d1")));
    ::SendMessageW(scene.tree.m_hWnd, TVM_EXPAND, TVE_COLLAPSE, reinterpret_cast<LPARAM>(scene.item("d1")));
    const CPoint inE = scene.labelPoint("e");
    EXPECT_EQ(scene.nameOf(scene.tree.HitTest(inE)), "e");
    for (const char* name : {"e", "c"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    Names walked;
    for (auto at = scene.tree.beginSelected(); at != scene.tree.end(); ++at)
        walked.push_back(static_cast<TestNode&>(*at).name);
    EXPECT_EQ(walked, (Names{"c", "e"}));
}

TEST(TreeChanges, TheOrderDoesNotComeFromTheRows)
{
    // Without the fresh layout the rows of the tree view under Wine are wrong; the walk is right all the
    // same.
    struct Rows
    {
        Rows() { ovoui::tree::platform().losesRows = false; }
        ~Rows() { ovoui::tree::platform().losesRows = before; }
        bool before = ovoui::tree::platform().losesRows;
    } const rows;
    Scene scene{{"a", "b", "c", "d", "e", "f"}};
    scene.add("d1", "d");
    scene.add("d11", "d1");
    scene.tree.Expand(scene.item("d1"), TVE_EXPAND);
    scene.tree.Expand(scene.item("d1"), TVE_COLLAPSE);
    for (const char* name : {"e", "c"})
        scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
    Names walked;
    for (auto at = scene.tree.beginSelected(); at != scene.tree.end(); ++at)
        walked.push_back(static_cast<TestNode&>(*at).name);
    EXPECT_EQ(walked, (Names{"c", "e"}));
}

// Walks

TEST(TreeChanges, AnIteratorGoesOnBehindADeletedItem)
{
    for (const bool selectedOnly : {false, true}) {
        Scene scene{{"a", "b", "c", "d"}};
        scene.add("b1", "b");
        for (const char* name : {"a", "b", "b1", "c", "d"})
            scene.tree.SetItemState(scene.item(name), TVIS_SELECTED, TVIS_SELECTED);
        Names walked;
        for (auto at = scene.tree.begin(selectedOnly); at != scene.tree.end(); ++at) {
            walked.push_back(static_cast<TestNode&>(*at).name);
            if (walked.back() == "b")
                scene.tree.DeleteItem(scene.item("b"));
            if (walked.back() == "c")
                scene.tree.DeleteAllItems();
        }
        EXPECT_EQ(walked, (Names{"a", "b", "c"}));
    }
}

TEST(TreeChanges, AWalkInsideExpandLeavesOutWhatIsDeleted)
{
    Scene scene{{"a", "b", "c"}};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    Names walked;
    scene.node("a").expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("b"));
        for (auto at = tree.beginAll(); at != tree.end(); ++at)
            walked.push_back(static_cast<TestNode&>(*at).name);
        return false;
    };
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    EXPECT_EQ(walked, (Names{"a", "c"}));
    EXPECT_EQ(scene.all(), (Names{"a", "c"}));
    EXPECT_EQ(TestNode::live(), 2);
}

TEST(TreeChanges, AnIteratorEndsWithTheTree)
{
    RecordingParent parent;
    auto tree = std::make_unique<TestTree>();
    tree->Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    for (const char* name : {"a", "b"})
        (new TestNode(name))->insert(*tree, TVI_ROOT, TVI_LAST);
    auto at = tree->beginAll();
    const auto end = tree->end();
    tree.reset();
    EXPECT_FALSE(at == end);
    ++at;
    EXPECT_TRUE(at == end);
}

// Insertion

TEST(TreeChanges, ATextThatDeletesTheChildComparedWithDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    auto* const node = new TestNode("bb");
    bool done = false;
    node->texting = [&] {
        if (!std::exchange(done, true))
            scene.tree.DeleteItem(scene.item("a"));
        return std::wstring(L"bb");
    };
    TestPlace root;
    EXPECT_NE(scene.tree.insert(node, root, 0), nullptr);
    EXPECT_EQ(scene.all(), (Names{"b", "bb", "c"}));
    EXPECT_EQ(TestNode::live(), 3);
}

TEST(TreeChanges, ATextThatDeletesWhereTheNodeGoesDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    auto* const behindB = new TestNode("n");
    behindB->texting = [&] {
        if (scene.tree.GetCount() == 3)
            scene.tree.DeleteItem(scene.item("b"));
        return std::wstring(L"n");
    };
    behindB->insert(scene.tree, TVI_ROOT, scene.item("b"));
    EXPECT_EQ(scene.all(), (Names{"a", "n", "c"}));

    const OVO::Handle<TestNode> underC(new TestNode("m"));
    underC->texting = [&] {
        scene.tree.DeleteAllItems();
        return std::wstring(L"m");
    };
    EXPECT_EQ(underC->insert(scene.tree, scene.item("c"), TVI_LAST), nullptr);
    EXPECT_EQ(scene.all(), Names{});
    EXPECT_EQ(TestNode::live(), 1);
}

TEST(TreeChanges, APlaceThatGoesWhileItIsAskedTakesNothing)
{
    class Place : public TestPlace
    {
    public:
        using TestPlace::TestPlace;
        std::function<void()> asked;
        bool canCompare() const override
        {
            asked();
            return true;
        }
    };
    for (const char* gone : {"item", "parent", "window"}) {
        Nested scene;
        Place place(scene.item("c"));
        place.asked = [&] {
            if (gone[0] == 'w')
                scene.tree.DestroyWindow();
            else
                scene.tree.DeleteItem(scene.item(gone[0] == 'i' ? "c" : "p"));
        };
        EXPECT_EQ(scene.tree.insert(new TestNode("n"), place, 0), nullptr) << gone;
        EXPECT_EQ(TestNode::live(), scene.tree.m_hWnd ? scene.items() : 0) << gone;
    }
}

TEST(TreeChanges, ANodeThatDeletesItselfInItsTextDoesNoHarm)
{
    for (const bool whole : {true, false}) {
        Scene scene{{"a", "b"}};
        TestNode& node = scene.node("a");
        node.texting = [&, name = std::wstring(L"a")] {
            scene.tree.DeleteItem(scene.tree.GetRootItem());
            return name;
        };
        if (whole)
            scene.tree.updateUI(node);
        else
            node.resetItemText(scene.tree);
        EXPECT_EQ(scene.all(), Names{"b"});
        EXPECT_EQ(TestNode::live(), 1);
    }
}

// An exception that a window keeps

TEST(TreeChanges, AnExceptionOfAnotherWindowLeavesTheTreeInOrder)
{
    class Thrower : public CWnd
    {
    public:
        bool throws = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SIZE && throws)
                throw std::runtime_error("not the tree's");
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Scene scene{{"a", "b"}};
    Thrower thrower;
    thrower.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    thrower.throws = true;
    int width = 10;
    const auto meanwhile = [&](const std::function<void()>& act) {
        // Not a call of the framework's: what is thrown on the way waits for the message loop.
        ::SetWindowPos(thrower.m_hWnd, nullptr, 0, 0, ++width, 10, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_NO_THROW(act()) << "no call of the tree's raises it";
    };
    const OVO::Handle<TestNode> node(new TestNode("n"));
    meanwhile([&] { node->insert(scene.tree, TVI_ROOT, TVI_LAST); });
    EXPECT_EQ(TestNode::live(), 3);
    EXPECT_NE(static_cast<MultiTreeCtrl::Node&>(*node).hTreeItem(), nullptr);
    EXPECT_EQ(scene.all().size(), 3u);
    meanwhile([&] { scene.tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1); });
    // Deletions that have to wait are still carried out.
    scene.node("a").children = 1;
    scene.node("a").expanding = [&](MultiTreeCtrl& tree) {
        tree.DeleteItem(scene.item("b"));
        return false;
    };
    scene.tree.updateUI(scene.item("a"));
    scene.tree.Expand(scene.item("a"), TVE_EXPAND);
    const Names left = scene.all();
    EXPECT_EQ(std::count(left.begin(), left.end(), "b"), 0);
    const auto nextStep = [&] {
        thrower.PostMessage(WM_NULL);
        AfxGetThread()->PumpMessage();
    };
    EXPECT_THROW(nextStep(), std::runtime_error);
    EXPECT_NO_THROW(nextStep());
    thrower.throws = false;
    thrower.DestroyWindow();
}

TEST(TreeChanges, AnExceptionDuringTheInsertionLeavesNoItemBehind)
{
    class Thrower : public TestTree
    {
    public:
        bool throws = false;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const LRESULT result = TestTree::DefWindowProc(message, wParam, lParam);
            if (message == TVM_INSERTITEM && throws)
                throw std::runtime_error("told too late");
            return result;
        }
    };
    RecordingParent parent;
    Thrower tree;
    tree.Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
    tree.throws = true;
    {
        const OVO::Handle<TestNode> node(new TestNode("n"));
        EXPECT_THROW(node->insert(tree, TVI_ROOT, TVI_LAST), std::runtime_error);
        EXPECT_EQ(static_cast<MultiTreeCtrl::Node&>(*node).hTreeItem(), nullptr);
        EXPECT_EQ(tree.GetCount(), 0u);
    }
    EXPECT_EQ(TestNode::live(), 0);
    tree.throws = false;
    tree.DestroyWindow();
}

// The tree itself

namespace
{

struct Call
{
    const char* name;
    std::function<void(TestNode&, std::function<void()>)> arm;
    std::function<void(TestTree&)> act;
};

CPoint middleOf(TestTree& tree)
{
    CRect rect;
    tree.GetItemRect(tree.GetRootItem(), &rect, TRUE);
    return rect.CenterPoint();
}

const Call kCalls[] = {
    {"hitTest", [](TestNode& node, auto destroy) { node.hitting = [=](CPoint, unsigned&) { destroy(); }; },
     [](TestTree& tree) { tree.HitTest(middleOf(tree)); }},
    {"hitTestOfAPress",
     [](TestNode& node, auto destroy) { node.hitting = [=](CPoint, unsigned&) { destroy(); }; },
     [](TestTree& tree) {
         const CPoint at = middleOf(tree);
         ::SendMessageW(tree.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
     }},
    {"hitTestOfARelease",
     [](TestNode& node, auto destroy) { node.hitting = [=](CPoint, unsigned&) { destroy(); }; },
     [](TestTree& tree) {
         const CPoint at = middleOf(tree);
         ::SendMessageW(tree.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
     }},
    {"canErase",
     [](TestNode& node, auto destroy) {
         node.askingErase = [=] {
             destroy();
             return true;
         };
     },
     [](TestTree& tree) { ::SendMessageW(tree.m_hWnd, WM_COMMAND, ID_TREE_DELETE, 0); }},
    {"canEraseOfTheOperation",
     [](TestNode& node, auto destroy) {
         node.askingErase = [=] {
             destroy();
             return true;
         };
     },
     [](TestTree& tree) { tree.eraseSelectedNodes(); }},
    {"getCommands",
     [](TestNode& node, auto destroy) {
         node.offer(4001);
         node.askingCommands = destroy;
     },
     [](TestTree& tree) { ::SendMessageW(tree.m_hWnd, WM_COMMAND, 4001, 0); }},
    {"doUpdateCmd",
     [](TestNode& node, auto destroy) {
         node.offer(4001);
         node.updating = [=](CCmdUI*, bool) { destroy(); };
     },
     [](TestTree& tree) {
         CMenu menu;
         menu.CreatePopupMenu();
         menu.AppendMenu(MF_STRING, 4001, L"command");
         menu.AppendMenu(MF_STRING, 4002, L"other");
         ::SendMessageW(tree.m_hWnd, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
     }},
    {"doCommand",
     [](TestNode& node, auto destroy) {
         node.offer(4001);
         node.commanding = [=](MultiTreeCtrl&, unsigned) { destroy(); };
     },
     [](TestTree& tree) { ::SendMessageW(tree.m_hWnd, WM_COMMAND, 4001, 0); }},
    {"activate", [](TestNode& node, auto destroy) { node.activating = [=](MultiTreeCtrl&) { destroy(); }; },
     [](TestTree& tree) { ::SendMessageW(tree.m_hWnd, WM_KEYDOWN, VK_RETURN, 1); }},
    {"refresh",
     [](TestNode& node, auto destroy) {
         node.refreshing = [=] {
             destroy();
             return true;
         };
     },
     [](TestTree& tree) { ::SendMessageW(tree.m_hWnd, WM_COMMAND, ID_TREE_REDRAW, 0); }},
    {"text",
     [](TestNode& node, auto destroy) {
         node.texting = [=] {
             destroy();
             return std::wstring(L"a");
         };
     },
     [](TestTree& tree) { tree.updateUI(tree.GetRootItem()); }},
    {"textOfAPath",
     [](TestNode& node, auto destroy) {
         node.texting = [=] {
             destroy();
             return std::wstring(L"a");
         };
     },
     [](TestTree& tree) { tree.selectedPath(); }},
    {"compareChildren",
     [](TestNode& node, auto destroy) {
         node.texting = [=] {
             destroy();
             return std::wstring(L"a");
         };
     },
     [](TestTree& tree) {
         TestPlace root;
         tree.insert(new TestNode("n"), root, 0);
     }},
    {"dragInto",
     [](TestNode& node, auto destroy) {
         node.draggingInto = [=](COleDataObject&, DWORD&, bool&, int) -> DWORD {
             destroy();
             return DROPEFFECT_COPY;
         };
     },
     [](TestTree& tree) {
         COleDataObject data;
         tree.m_pDropTarget->OnDragOver(&tree, &data, MK_LBUTTON, middleOf(tree));
     }},
    {"dropInto",
     [](TestNode& node, auto destroy) {
         node.draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) -> DWORD {
             return effects = DROPEFFECT_COPY;
         };
         node.droppingInto = [=](COleDataObject&, DWORD, MultiTreeCtrl&, int) {
             destroy();
             return true;
         };
     },
     [](TestTree& tree) {
         COleDataObject data;
         tree.m_pDropTarget->OnDropEx(&tree, &data, DROPEFFECT_COPY, DROPEFFECT_COPY, middleOf(tree));
     }},
};

class TreeDestroyed : public ::testing::TestWithParam<std::tuple<Call, bool>>
{
};

} // namespace

TEST_P(TreeDestroyed, InsideACallOfANodeDoesNoHarm)
{
    const auto& [call, wholeObject] = GetParam();
    RecordingParent parent;
    auto tree = std::make_unique<TestTree>();
    tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
    for (const char* name : {"a", "b"})
        (new TestNode(name))->insert(*tree, TVI_ROOT, TVI_LAST);
    tree->SelectItem(tree->GetRootItem());
    bool destroyed = false;
    call.arm(static_cast<TestNode&>(*tree->node(tree->GetRootItem())), [&] {
        if (std::exchange(destroyed, true))
            return;
        if (wholeObject)
            tree.reset();
        else
            tree->DestroyWindow();
    });
    call.act(*tree);
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(TestNode::live(), 0);
}

INSTANTIATE_TEST_SUITE_P(Calls, TreeDestroyed,
                         ::testing::Combine(::testing::ValuesIn(kCalls), ::testing::Bool()),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    (std::get<1>(info.param) ? "Object" : "Window");
                         });

// Parents of another make

TEST(TreeChanges, UnderAPlainWindowNodesGoWithTheirItems)
{
    const HWND plain = ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 300, 300, nullptr,
                                         nullptr, nullptr, nullptr);
    TestTree tree;
    ASSERT_TRUE(tree.Create(Scene::kStyle, CRect(0, 0, 200, 200), CWnd::FromHandle(plain), 1));
    const auto add = [&](const char* name, HTREEITEM parent) {
        return (new TestNode(name))->insert(tree, parent, TVI_LAST);
    };
    const HTREEITEM a = add("a", TVI_ROOT);
    add("a1", a);
    const OVO::Handle<MultiTreeCtrl::Node> kept = tree.node(add("a2", a));
    tree.DeleteItem(a);
    EXPECT_EQ(TestNode::live(), 1);
    EXPECT_EQ(kept->hTreeItem(), nullptr);
    const HTREEITEM b = add("b", TVI_ROOT);
    add("b1", b);
    tree.Expand(b, TVE_EXPAND);
    tree.Expand(b, TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_EQ(TestNode::live(), 2);
    add("c", TVI_ROOT);
    tree.DeleteAllItems();
    EXPECT_EQ(TestNode::live(), 1);
    add("d", TVI_ROOT);
    ::DestroyWindow(plain);
    EXPECT_EQ(TestNode::live(), 1);
}

// Declarations

static_assert(!std::is_copy_constructible_v<TestNode> && !std::is_copy_assignable_v<TestNode>);

namespace
{

/// The place of a virtual operation in its table, counted from 1.
template <class Operation>
std::size_t slotOf(Operation operation)
{
    std::size_t offset = 0; // one more than it, says the ABI
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*) + 1;
}

} // namespace

TEST(TreeDeclarations, OperationsAreCalledThroughInTheOrderOfTheirTable)
{
    using Node = MultiTreeCtrl::Node;
    const std::size_t slots[] = {slotOf(&Node::hTreeItem),      slotOf(&Node::compareChildren),
                                 slotOf(&Node::canCompare),     slotOf(&Node::dragInto),
                                 slotOf(&Node::dropInto),       slotOf(&Node::getCommands),
                                 slotOf(&Node::doUpdateCmd),    slotOf(&Node::doCommand),
                                 slotOf(&Node::expanded),       slotOf(&Node::collapse),
                                 slotOf(&Node::activate),       slotOf(&Node::expand),
                                 slotOf(&Node::infotip),        slotOf(&Node::text),
                                 slotOf(&Node::erase),          slotOf(&Node::refresh),
                                 slotOf(&Node::rename),         slotOf(&Node::renameText),
                                 slotOf(&Node::drawPreview),    slotOf(&Node::dragStarting),
                                 slotOf(&Node::dragEnding),     slotOf(&Node::closedImage),
                                 slotOf(&Node::openImage),      slotOf(&Node::canRename),
                                 slotOf(&Node::canErase),       slotOf(&Node::hitTest),
                                 slotOf(&Node::buttonDown),     slotOf(&Node::handleLButtonUp),
                                 slotOf(&Node::beginLabelEdit), slotOf(&Node::endLabelEdit)};
    std::size_t expected = 0;
    for (const std::size_t slot : slots)
        EXPECT_EQ(slot, ++expected);
}

// Rules

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
    const auto comeIn = [&](DWORD keys, CPoint point) {
        DWORD effect = DROPEFFECT_COPY;
        target.DragEnter(&source.m_xDataObject, keys, place(point), &effect);
        effect = DROPEFFECT_COPY;
        target.DragOver(keys, place(client.CenterPoint()), &effect);
        target.DragLeave();
        return effect;
    };
    const CPoint middle = client.CenterPoint();
    for (const CPoint edge : {CPoint(middle.x, client.top + 1), CPoint(middle.x, client.bottom - 2),
                              CPoint(client.left + 1, middle.y), CPoint(client.right - 2, middle.y)}) {
        // Only the right button makes something of what the node allows without wanting it.
        EXPECT_EQ(comeIn(MK_RBUTTON, edge), DWORD{DROPEFFECT_COPY}) << edge.x << ' ' << edge.y;
        EXPECT_EQ(comeIn(MK_LBUTTON, edge), DWORD{DROPEFFECT_NONE}) << edge.x << ' ' << edge.y;
        EXPECT_EQ(comeIn(MK_RBUTTON, edge), DWORD{DROPEFFECT_COPY}) << edge.x << ' ' << edge.y;
    }
}
