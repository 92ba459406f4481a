// Inserting nodes: where they go, what becomes of those that are refused.
#include "TreeScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using ovo::testkit::RecordingParent;

namespace
{

TestNode* fresh(const std::string& name)
{
    return new TestNode(name);
}

Names sortedNumbers(int count)
{
    Names names;
    for (int i = 0; i < count; ++i)
        names.push_back(std::to_string(1000 + i));
    return names;
}

HWND plainTreeView(CWnd& parent)
{
    return ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200, parent.m_hWnd,
                             reinterpret_cast<HMENU>(1), nullptr, nullptr);
}

/// Between the tree and the tree view's own procedure.
LRESULT CALLBACK countingQuestions(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR count)
{
    if (message == TVM_GETITEMW)
        ++*reinterpret_cast<int*>(count);
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

// Node::insert

TEST(TreeInsertion, ANodeShowsItsTextAndItsImages)
{
    Scene scene;
    auto* node = fresh("a");
    node->closed = 3;
    node->open = 4;
    const HTREEITEM item = node->insert(scene.tree, TVI_ROOT, TVI_LAST);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(node->hTreeItem(), item);
    EXPECT_EQ(scene.nameOf(item), "a");
    int image = -1;
    int selectedImage = -1;
    scene.tree.GetItemImage(item, image, selectedImage);
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selectedImage, 3);
    EXPECT_EQ(reinterpret_cast<TestNode*>(scene.tree.GetItemData(item)), node);
}

TEST(TreeInsertion, OnlyTheCutHighlightAndBoldBitsSurvive)
{
    Scene scene;
    auto* node = fresh("a");
    node->state = 0xFFu;
    const HTREEITEM item = node->insert(scene.tree, TVI_ROOT, TVI_LAST);
    constexpr UINT kKept = TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD;
    EXPECT_EQ(node->state, kKept);
    EXPECT_EQ(scene.tree.GetItemState(item, 0xFF), kKept);
}

TEST(TreeInsertion, ANewNodeIsInNoTreeAndHasNoState)
{
    TestNode node("a");
    EXPECT_EQ(node.hTreeItem(), nullptr);
    EXPECT_EQ(node.state, 0u);
    EXPECT_EQ(node.children, 0);
    EXPECT_FALSE(node.expanded());
}

TEST(TreeInsertion, TheMarkersOfTheTreeViewSayWhere)
{
    Scene scene{{"b"}};
    fresh("a")->insert(scene.tree, TVI_ROOT, TVI_FIRST);
    fresh("d")->insert(scene.tree, TVI_ROOT, TVI_LAST);
    fresh("c")->insert(scene.tree, TVI_ROOT, scene.item("b"));
    EXPECT_EQ(scene.childrenOf(""), (Names{"a", "b", "c", "d"}));
}

TEST(TreeInsertion, AppendingGoesBehindWhatCameMeanwhile)
{
    Scene scene{{"a", "b"}};
    fresh("c")->insert(scene.tree, TVI_ROOT, scene.item("b"));
    scene.add("d");
    scene.tree.DeleteItem(scene.item("d"));
    scene.add("e");
    TVSORTCB backwards{TVI_ROOT,
                       [](LPARAM a, LPARAM b, LPARAM) {
                           return reinterpret_cast<TestNode*>(b)->name.compare(
                               reinterpret_cast<TestNode*>(a)->name);
                       },
                       0};
    scene.tree.SortChildrenCB(&backwards);
    scene.add("f");
    EXPECT_EQ(scene.childrenOf(""), (Names{"e", "c", "b", "a", "f"}));
}

TEST(TreeInsertion, AFailedInsertionLeavesTheNodeWithItsOwner)
{
    TestNode* node = fresh("a");
    const OVO::Handle<MultiTreeCtrl::Node> kept(node);
    TestTree windowless;
    EXPECT_EQ(node->insert(windowless, TVI_ROOT, TVI_LAST), nullptr);
    EXPECT_EQ(node->hTreeItem(), nullptr);
}

TEST(TreeInsertion, AnExceptionOfTheTextLeavesTheNodeAsItWas)
{
    Scene scene;
    TestNode* node = fresh("a");
    const OVO::Handle<MultiTreeCtrl::Node> kept(node);
    node->texting = []() -> std::wstring { throw std::runtime_error("no text"); };
    EXPECT_THROW(node->insert(scene.tree, TVI_ROOT, TVI_LAST), std::runtime_error);
    EXPECT_EQ(node->hTreeItem(), nullptr);
    EXPECT_EQ(scene.tree.GetCount(), 0u);
    node->texting = nullptr;
    EXPECT_NE(node->insert(scene.tree, TVI_ROOT, TVI_LAST), nullptr);
}

// Sorted

TEST(TreeInsertion, SortedIntoAnEmptyParentIsFirst)
{
    Scene scene;
    TestPlace root;
    const HTREEITEM item = scene.tree.insert(fresh("m"), root, 0);
    EXPECT_EQ(item, scene.item("m"));
    EXPECT_EQ(root.comparisons, 0);
}

TEST(TreeInsertion, SortedChildrenStandInTheOrderOfTheLocale)
{
    Scene scene;
    TestPlace root;
    for (const char* name : {"pear", "Apple", "fig", "banana", "Zucchini", "cherry"})
        scene.tree.insert(fresh(name), root, 0);
    EXPECT_EQ(scene.childrenOf(""), (Names{"Apple", "banana", "cherry", "fig", "pear", "Zucchini"}));
}

TEST(TreeInsertion, AnEqualChildStaysAndTheNewNodeIsDestroyed)
{
    Scene scene;
    TestPlace root;
    const HTREEITEM existing = scene.tree.insert(fresh("a"), root, 0);
    const int before = TestNode::live();
    EXPECT_EQ(scene.tree.insert(fresh("a"), root, 0), existing);
    EXPECT_EQ(TestNode::live(), before);
    EXPECT_EQ(scene.tree.GetCount(), 1u);
}

TEST(TreeInsertion, ADuplicateHeldByTheHostIsNotDestroyed)
{
    Scene scene;
    TestPlace root;
    const HTREEITEM existing = scene.tree.insert(fresh("a"), root, 0);
    const OVO::Handle<MultiTreeCtrl::Node> mine(fresh("a"));
    EXPECT_EQ(scene.tree.insert(mine.get(), root, 0), existing);
    EXPECT_EQ(mine->hTreeItem(), nullptr);
    EXPECT_EQ(static_cast<TestNode&>(*mine).name, "a");
}

TEST(TreeInsertion, TheFirstChildThatDoesNotSortBeforeDecides)
{
    // Children that are out of order: the walk from the first one ends before "m".
    Scene scene{{"c", "m", "d", "x"}};
    TestPlace root;
    scene.tree.insert(fresh("e"), root, 0);
    EXPECT_EQ(scene.childrenOf(""), (Names{"c", "e", "m", "d", "x"}));
}

TEST(TreeInsertion, ManyChildrenOutOfOrderAreStillWalkedFromTheFirst)
{
    Scene scene;
    Names expected{"5"};
    for (int i = 0; i < 200; ++i)
        expected.push_back(std::to_string(i % 2 ? 3000 + i : 1000 + i));
    for (const std::string& name : expected)
        scene.add(name);
    TestPlace root;
    root.comparing = [](MultiTreeCtrl&, const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b) {
        return std::stoi(static_cast<const TestNode&>(a).name) -
               std::stoi(static_cast<const TestNode&>(b).name);
    };
    scene.tree.insert(fresh("2000"), root, 0);
    // Before the first one that is greater.
    expected.insert(std::find(expected.begin(), expected.end(), "3001"), "2000");
    EXPECT_EQ(scene.childrenOf(""), expected);
}

TEST(TreeInsertion, AChildWhoseTextHasGrownIsStillComparedWith)
{
    Scene scene;
    TestPlace root;
    for (const std::string& name : sortedNumbers(200))
        scene.tree.insert(fresh(name), root, 0);
    scene.node("1000").name = "9999"; // the tree is not told
    scene.tree.insert(fresh("1500"), root, 0);
    EXPECT_EQ(scene.tree.GetItemText(scene.tree.GetRootItem()), L"1500");
}

TEST(TreeInsertion, AnEqualChildIsFoundWhereverItStands)
{
    // In order but for one: the walk meets "5" before anything that sorts behind it.
    Scene scene;
    Names names{"0005"};
    for (const std::string& name : sortedNumbers(200))
        names.push_back(name);
    std::swap(names[0], names[150]);
    for (const std::string& name : names)
        scene.add(name);
    TestPlace root;
    root.comparing = [](MultiTreeCtrl&, const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b) {
        const std::string& name = static_cast<const TestNode&>(a).name;
        return name == "0005" && static_cast<const TestNode&>(b).name == name ? 0 : -1;
    };
    EXPECT_EQ(scene.tree.insert(fresh("0005"), root, 0), scene.item("0005"));
    EXPECT_EQ(scene.all(), names);
}

TEST(TreeInsertion, ChildrenAreComparedWithTheNodeOnly)
{
    Scene scene;
    for (const std::string& name : sortedNumbers(100))
        scene.add(name);
    for (const auto way : {MultiTreeCtrl::SortedInsertion::Walk, MultiTreeCtrl::SortedInsertion::Halve}) {
        scene.tree.setSortedInsertion(way);
        TestNode* const node = fresh(way == MultiTreeCtrl::SortedInsertion::Walk ? "1500" : "1501");
        TestPlace root;
        root.comparing = [&](MultiTreeCtrl&, const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b) {
            EXPECT_EQ(&b, node);
            return static_cast<const TestNode&>(a).name.compare(node->name);
        };
        scene.tree.insert(node, root, 0);
    }
}

TEST(TreeInsertion, AHostThatKeepsItsChildrenInOrderGetsFewComparisons)
{
    Scene scene;
    scene.tree.setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
    TestPlace root;
    Names names = sortedNumbers(700);
    Names shuffled = names;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(4711));
    for (const std::string& name : shuffled)
        ASSERT_NE(scene.tree.insert(fresh(name), root, 0), nullptr);
    EXPECT_EQ(scene.childrenOf(""), names);
    EXPECT_LT(root.comparisons, 700 * 60);
}

TEST(TreeInsertion, ChildrenThatAreRememberedAreNotAskedForTheirNodesAgain)
{
    RecordingParent parent;
    const HWND plain = plainTreeView(parent);
    int asked = 0;
    ASSERT_TRUE(::SetWindowSubclass(plain, &countingQuestions, 1, reinterpret_cast<DWORD_PTR>(&asked)));
    TestTree tree;
    tree.setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
    ASSERT_TRUE(tree.SubclassWindow(plain));
    TestPlace root;
    const Names names = sortedNumbers(200);
    for (const std::string& name : names)
        (new TestNode(name))->insert(tree, TVI_ROOT, TVI_LAST);
    asked = 0;
    for (const std::string& name : names)
        ASSERT_NE(tree.insert(fresh(name + "+"), root, 0), nullptr);
    EXPECT_GT(root.comparisons, 200 * 5);
    EXPECT_LE(asked, 200);
    tree.DestroyWindow();
}

TEST(TreeInsertion, NothingIsRememberedOfTheTreeViewBefore)
{
    RecordingParent parent;
    const HWND one = plainTreeView(parent);
    TestTree tree;
    tree.setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
    ASSERT_TRUE(tree.SubclassWindow(one));
    TestPlace root;
    tree.insert(fresh("b"), root, 0);
    tree.UnsubclassWindow();
    ASSERT_TRUE(tree.SubclassWindow(plainTreeView(parent)));
    EXPECT_NE(tree.insert(fresh("a"), root, 0), nullptr);
    EXPECT_EQ(root.comparisons, 0) << "with a child of the other tree view";
    tree.DeleteAllItems();
    tree.UnsubclassWindow();
    ASSERT_TRUE(tree.SubclassWindow(one));
    tree.DestroyWindow();
    EXPECT_EQ(TestNode::live(), 0);
}

TEST(TreeInsertion, ATextThatChangedMeanwhileIsFoundOutAbout)
{
    Scene scene;
    TestPlace root;
    for (const std::string& name : sortedNumbers(200))
        scene.tree.insert(fresh(name), root, 0);
    TestNode& moved = scene.node("1000");
    moved.name = "9999";
    scene.tree.updateUI(moved); // now the first child sorts behind all others
    scene.tree.insert(fresh("1500"), root, 0);
    EXPECT_EQ(scene.childrenOf("").front(), "1500");
}

TEST(TreeInsertion, APlaceThatIsClosedRefusesAndTheNodeIsDestroyed)
{
    Scene scene{{"a"}};
    TestPlace place(scene.item("a"));
    place.isOpen = false;
    const int before = TestNode::live();
    EXPECT_EQ(scene.tree.insert(fresh("b"), place, 0), nullptr);
    EXPECT_EQ(TestNode::live(), before);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeInsertion, AClosedNodeRefusesChildren)
{
    Scene scene{{"a"}};
    EXPECT_EQ(scene.tree.insert(fresh("b"), scene.node("a"), 0), nullptr);
    scene.node("a").childNames = {"x"};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    scene.open("a");
    EXPECT_NE(scene.tree.insert(fresh("b"), scene.node("a"), 0), nullptr);
    EXPECT_EQ(scene.childrenOf("a"), (Names{"b", "x"}));
}

TEST(TreeInsertion, ANullNodeIsNothing)
{
    Scene scene{{"a"}};
    TestPlace root;
    EXPECT_EQ(scene.tree.insert(nullptr, root, 0), nullptr);
    bool first = true;
    EXPECT_EQ(scene.tree.insertAndSelect(nullptr, first, TVI_ROOT, TVI_LAST), nullptr);
    EXPECT_EQ(scene.tree.insertAndSelect(nullptr, first, root, 0), nullptr);
    EXPECT_TRUE(first);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeInsertion, AComparisonThatThrowsLeavesTheNodeAndTheTree)
{
    Scene scene{{"a"}};
    TestPlace root;
    root.comparing = [](MultiTreeCtrl&, const MultiTreeCtrl::Node&, const MultiTreeCtrl::Node&) -> int {
        throw std::runtime_error("cannot compare");
    };
    TestNode* node = fresh("b");
    const OVO::Handle<MultiTreeCtrl::Node> kept(node);
    EXPECT_THROW(scene.tree.insert(node, root, 0), std::runtime_error);
    EXPECT_EQ(node->hTreeItem(), nullptr);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeInsertion, AComparisonThatChangesTheTreeDoesNoHarm)
{
    Scene scene{{"a", "c", "e"}};
    TestPlace root;
    bool done = false;
    root.comparing = [&](MultiTreeCtrl& tree, const MultiTreeCtrl::Node& a, const MultiTreeCtrl::Node& b) {
        if (!std::exchange(done, true))
            tree.DeleteItem(scene.item("c"));
        return static_cast<const TestNode&>(a).name.compare(static_cast<const TestNode&>(b).name);
    };
    EXPECT_NE(scene.tree.insert(fresh("d"), root, 0), nullptr);
    EXPECT_EQ(scene.childrenOf(""), (Names{"a", "d", "e"}));
}

// Positional

TEST(TreeInsertion, PositionsCountFromTheFirstChild)
{
    Scene scene{{"b", "c"}};
    TestPlace root(TVI_ROOT, false);
    scene.tree.insert(fresh("a"), root, 0);
    scene.tree.insert(fresh("z"), root, -1);
    scene.tree.insert(fresh("bb"), root, 2);
    scene.tree.insert(fresh("zz"), root, 99);
    EXPECT_EQ(scene.childrenOf(""), (Names{"a", "b", "bb", "c", "z", "zz"}));
    EXPECT_EQ(root.comparisons, 0);
}

TEST(TreeInsertion, PositionsInANodesChildren)
{
    Scene scene{{"a", "b"}};
    scene.add("x", "a");
    scene.add("y", "a");
    TestPlace place(scene.item("a"), false);
    scene.tree.insert(fresh("between"), place, 1);
    scene.tree.insert(fresh("first"), place, 0);
    EXPECT_EQ(scene.childrenOf("a"), (Names{"first", "x", "between", "y"}));
    EXPECT_EQ(scene.childrenOf(""), (Names{"a", "b"}));
}

// Batch

TEST(TreeInsertion, ABatchEndsAsOneByOneWould)
{
    Scene scene;
    TestPlace root;
    Names names = sortedNumbers(300);
    Names shuffled = names;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(99));
    for (int i = 0; i < 100; ++i)
        scene.tree.insert(fresh(shuffled[static_cast<std::size_t>(i)]), root, 0);
    std::vector<MultiTreeCtrl::Node*> batch;
    for (std::size_t i = 50; i < shuffled.size(); ++i) // 50 of them are there already
        batch.push_back(fresh(shuffled[i]));
    const std::vector<HTREEITEM> items = scene.tree.insertBatch(batch, root, 0);
    EXPECT_EQ(scene.childrenOf(""), names);
    ASSERT_EQ(items.size(), batch.size());
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_EQ(scene.nameOf(items[i]), shuffled[50 + i]);
}

TEST(TreeInsertion, OfEqualNodesInABatchTheFirstIsInserted)
{
    Scene scene;
    TestPlace root;
    const int before = TestNode::live();
    TestNode* const first = fresh("a");
    const std::vector<HTREEITEM> items = scene.tree.insertBatch({first, fresh("b"), fresh("a")}, root, 0);
    EXPECT_EQ(scene.childrenOf(""), (Names{"a", "b"}));
    EXPECT_EQ(items[0], items[2]);
    EXPECT_EQ(first->hTreeItem(), items[0]);
    EXPECT_EQ(TestNode::live(), before + 2);
}

TEST(TreeInsertion, APositionalBatchIsOneBlock)
{
    Scene scene{{"1", "4"}};
    TestPlace root(TVI_ROOT, false);
    scene.tree.insertBatch({fresh("3"), fresh("2")}, root, 1);
    EXPECT_EQ(scene.childrenOf(""), (Names{"1", "3", "2", "4"}));
}

TEST(TreeInsertion, PositionsOfABatchCountAsThoseOfANode)
{
    Scene scene{{"1", "2"}};
    TestPlace root(TVI_ROOT, false);
    scene.tree.insertBatch({fresh("3"), fresh("4")}, root, -1);
    scene.tree.insertBatch({fresh("0")}, root, 0);
    scene.tree.insertBatch({fresh("5")}, root, 99);
    EXPECT_EQ(scene.childrenOf(""), (Names{"0", "1", "2", "3", "4", "5"}));
}

TEST(TreeInsertion, ARefusedBatchIsDestroyedWhole)
{
    Scene scene;
    TestPlace root;
    root.isOpen = false;
    const int before = TestNode::live();
    const std::vector<HTREEITEM> items = scene.tree.insertBatch({fresh("a"), fresh("b"), nullptr}, root, 0);
    EXPECT_EQ(items, (std::vector<HTREEITEM>{nullptr, nullptr, nullptr}));
    EXPECT_EQ(TestNode::live(), before);
}

TEST(TreeInsertion, ABatchRepaintsOnce)
{
    Scene scene{{"a"}};
    TestPlace root;
    std::vector<MultiTreeCtrl::Node*> batch;
    for (const std::string& name : sortedNumbers(200))
        batch.push_back(fresh(name));
    scene.tree.UpdateWindow();
    scene.tree.counting = true;
    scene.tree.insertBatch(batch, root, 0);
    scene.tree.UpdateWindow();
    EXPECT_EQ(scene.tree.paints, 1);
}

// With the selection

TEST(TreeInsertion, TheFirstOfABatchReplacesTheSelectionTheOthersAdd)
{
    Scene scene{{"a", "b"}};
    scene.tree.SelectItem(scene.item("a"));
    bool first = true;
    scene.tree.insertAndSelect(fresh("c"), first, TVI_ROOT, TVI_LAST);
    EXPECT_FALSE(first);
    EXPECT_EQ(scene.selected(), Names{"c"});
    TestPlace root;
    scene.tree.insertAndSelect(fresh("aa"), first, root, 0);
    EXPECT_EQ(scene.selected(), (Names{"aa", "c"}));
    EXPECT_EQ(scene.caret(), "c");
}

TEST(TreeInsertion, TheLastOneInsertedIsTheAnchor)
{
    Scene scene{{"a", "b", "d"}};
    bool first = true;
    scene.tree.insertAndSelect(fresh("c"), first, TVI_ROOT, scene.item("b"));
    scene.user.holding(VK_SHIFT).click(scene.label("d"));
    EXPECT_EQ(scene.selected(), (Names{"c", "d"}));
}

TEST(TreeInsertion, ARefusedNodeChangesNothingOfTheSelection)
{
    Scene scene{{"a"}};
    scene.tree.SelectItem(scene.item("a"));
    TestPlace closed;
    closed.isOpen = false;
    bool first = true;
    EXPECT_EQ(scene.tree.insertAndSelect(fresh("b"), first, closed, 0), nullptr);
    EXPECT_TRUE(first);
    EXPECT_EQ(scene.selected(), Names{"a"});
}

TEST(TreeInsertion, AnItemThatTheParentDeletesWhenItHearsOfTheSelectionIsNotGiven)
{
    Scene scene{{"a"}};
    bool first = true;
    scene.parent().answer(static_cast<UINT>(TVN_SELCHANGEDW), [&](NMHDR*) -> LRESULT {
        if (scene.tree.GetCount() == 2)
            scene.tree.DeleteItem(scene.item("b"));
        return 0;
    });
    EXPECT_EQ(scene.tree.insertAndSelect(fresh("b"), first, TVI_ROOT, TVI_LAST), nullptr);
    EXPECT_FALSE(first);
    EXPECT_EQ(scene.all(), Names{"a"});
}

TEST(TreeInsertion, AnExistingEqualItemIsSelectedInPlaceOfTheNew)
{
    Scene scene{{"a", "b"}};
    TestPlace root;
    bool first = true;
    EXPECT_EQ(scene.tree.insertAndSelect(fresh("b"), first, root, 0), scene.item("b"));
    EXPECT_EQ(scene.selected(), Names{"b"});
}
