// The tree is destroyed inside the calls of its nodes, and nodes go with their items under any parent.
#include "TreeScene.h"

#include <support/Perishing.h>
#include <testkit/GuiThread.h>

#include <ovoui/tree/PlainText.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace ovo::testkit;

namespace
{

using Deed = std::function<void()>;

/// A call of a node, and what causes it.
struct Call
{
    const char* name;
    void (*arm)(TestNode& node, const Deed& deed); ///< has the node commit the deed in that call
    std::function<void(TestTree&)> act;
};

// Calls in which a node commits the deed

void inHitTest(TestNode& node, const Deed& deed)
{
    node.hitting = [=](CPoint, unsigned&) { deed(); };
}

void inText(TestNode& node, const Deed& deed)
{
    node.texting = [=] {
        deed();
        return std::wstring(L"a");
    };
}

void inCanErase(TestNode& node, const Deed& deed)
{
    node.askingErase = [=] {
        deed();
        return true;
    };
}

void inActivate(TestNode& node, const Deed& deed)
{
    node.activating = [=](MultiTreeCtrl&) { deed(); };
}

void inRefresh(TestNode& node, const Deed& deed)
{
    node.refreshing = [=] {
        deed();
        return true;
    };
}

constexpr unsigned kCommand = 4001;

void inGetCommands(TestNode& node, const Deed& deed)
{
    node.offer(kCommand);
    node.askingCommands = deed;
}

void inDoUpdateCmd(TestNode& node, const Deed& deed)
{
    node.offer(kCommand);
    node.updating = [=](CCmdUI*, bool) { deed(); };
}

void inDoCommand(TestNode& node, const Deed& deed)
{
    node.offer(kCommand);
    node.commanding = [=](MultiTreeCtrl&, unsigned) { deed(); };
}

void inDragInto(TestNode& node, const Deed& deed)
{
    node.draggingInto = [=](COleDataObject&, DWORD&, bool&, int) -> DWORD {
        deed();
        return DROPEFFECT_COPY;
    };
}

void inSecondDragInto(TestNode& node, const Deed& deed)
{
    node.draggingInto = [=, asked = 0](COleDataObject&, DWORD& effects, bool&, int) mutable -> DWORD {
        if (++asked == 2)
            deed();
        return effects = DROPEFFECT_COPY;
    };
}

void inDropInto(TestNode& node, const Deed& deed)
{
    node.draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) -> DWORD {
        return effects = DROPEFFECT_COPY;
    };
    node.droppingInto = [=](COleDataObject&, DWORD, MultiTreeCtrl&, int) {
        deed();
        return true;
    };
}

void inInfotip(TestNode& node, const Deed& deed)
{
    node.tipping = [=] {
        deed();
        return std::wstring(L"tip");
    };
}

// What causes them. Messages go through the window: the object may be gone when they return.

CPoint onFirstItem(TestTree& tree)
{
    CRect rect;
    tree.GetItemRect(tree.GetRootItem(), &rect, TRUE);
    return rect.CenterPoint();
}

std::function<void(TestTree&)> sending(UINT message, WPARAM wParam, LPARAM lParam = 0)
{
    return [=](TestTree& tree) { ::SendMessageW(tree.m_hWnd, message, wParam, lParam); };
}

std::function<void(TestTree&)> clicking(UINT message, WPARAM keys)
{
    return [=](TestTree& tree) {
        const CPoint at = onFirstItem(tree);
        ::SendMessageW(tree.m_hWnd, message, keys, MAKELPARAM(at.x, at.y));
    };
}

void showMenu(TestTree& tree)
{
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, kCommand, L"command");
    menu.AppendMenu(MF_STRING, kCommand + 1, L"other");
    ::SendMessageW(tree.m_hWnd, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
}

void insertSorted(TestTree& tree)
{
    TestPlace root;
    tree.insert(new TestNode("n"), root, 0);
}

void dragOver(TestTree& tree)
{
    COleDataObject data;
    tree.m_pDropTarget->OnDragOver(&tree, &data, MK_LBUTTON, onFirstItem(tree));
}

void drop(TestTree& tree)
{
    COleDataObject data;
    tree.m_pDropTarget->OnDropEx(&tree, &data, DROPEFFECT_COPY, DROPEFFECT_COPY, onFirstItem(tree));
}

void askForTip(TestTree& tree)
{
    wchar_t buffer[20] = L"?";
    NMTVGETINFOTIPW request{};
    request.hdr = {tree.m_hWnd, 1, static_cast<UINT>(TVN_GETINFOTIPW)};
    request.pszText = buffer;
    request.cchTextMax = 20;
    request.hItem = tree.GetRootItem();
    ::SendMessageW(::GetParent(tree.m_hWnd), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&request));
    EXPECT_STREQ(buffer, L"?") << "the tree view's buffer may have gone with the tree";
}

void paste(TestTree& tree)
{
    auto* const source = new COleDataSource;
    cachePlaintext(*source, L"pasted");
    source->SetClipboard();
    ::SendMessageW(tree.m_hWnd, WM_COMMAND, ID_EDIT_PASTE, 0);
    COleDataSource::FlushClipboard();
}

const Call kCalls[] = {
    {"hitTest", inHitTest, [](TestTree& tree) { tree.HitTest(onFirstItem(tree)); }},
    {"hitTestOfAPress", inHitTest, clicking(WM_LBUTTONDOWN, MK_LBUTTON)},
    {"hitTestOfARelease", inHitTest, clicking(WM_LBUTTONUP, 0)},
    {"canErase", inCanErase, sending(WM_COMMAND, ID_TREE_DELETE)},
    {"canEraseOfTheOperation", inCanErase, [](TestTree& tree) { tree.eraseSelectedNodes(); }},
    {"getCommands", inGetCommands, sending(WM_COMMAND, kCommand)},
    {"doUpdateCmd", inDoUpdateCmd, showMenu},
    {"doCommand", inDoCommand, sending(WM_COMMAND, kCommand)},
    {"activate", inActivate, sending(WM_KEYDOWN, VK_RETURN, 1)},
    {"refresh", inRefresh, sending(WM_COMMAND, ID_TREE_REDRAW)},
    {"text", inText, [](TestTree& tree) { tree.updateUI(tree.GetRootItem()); }},
    {"textOfAPath", inText, [](TestTree& tree) { tree.selectedPath(); }},
    {"compareChildren", inText, insertSorted},
    {"infotip", inInfotip, askForTip},
    {"dragInto", inDragInto, dragOver},
    {"dropInto", inDropInto, drop},
    {"dragIntoOfAPaste", inDragInto, paste}, // which asks first whether it is possible
    {"secondDragIntoOfAPaste", inSecondDragInto, paste},
    {"dropIntoOfAPaste", inDropInto, paste},
};

class TreeDestroyed : public ::testing::TestWithParam<std::tuple<Call, bool>>
{
};

} // namespace

TEST_P(TreeDestroyed, InsideACallOfANodeDoesNoHarm)
{
    const auto& [call, wholeObject] = GetParam();
    RecordingParent parent;
    std::unique_ptr<TestTree> tree = std::make_unique<Perishing<TestTree>>();
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

TEST(TreeDropTarget, StaysForADragWhoseHostDestroysTheTree)
{
    auto* const source = new COleDataSource;
    cachePlaintext(*source, L"dragged");
    const auto data = static_cast<IDataObject*>(source->GetInterface(&IID_IDataObject));
    constexpr int kAtTheDrop =
        3; // before that the node is asked as the drag comes in, and twice for the drop
    for (int step = 0; step <= kAtTheDrop; ++step)
        for (const bool wholeObject : {false, true}) {
            SCOPED_TRACE(std::to_string(step) + (wholeObject ? " object" : " window"));
            RecordingParent parent;
            std::unique_ptr<TestTree> tree = std::make_unique<Perishing<TestTree>>();
            tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
            auto* const node = new TestNode("a");
            node->insert(*tree, TVI_ROOT, TVI_LAST);
            int asked = 0;
            const auto destroy = [&] {
                if (wholeObject)
                    tree.reset();
                else
                    tree->DestroyWindow();
            };
            node->draggingInto = [&](COleDataObject&, DWORD& effects, bool&, int) {
                if (asked++ == step)
                    destroy();
                return effects = DROPEFFECT_COPY;
            };
            node->droppingInto = [&](COleDataObject&, DWORD, MultiTreeCtrl&, int) {
                destroy();
                return true;
            };
            CPoint at = onFirstItem(*tree);
            tree->ClientToScreen(&at);
            auto* const target =
                static_cast<IDropTarget*>(tree->m_pDropTarget->GetInterface(&IID_IDropTarget));
            target->AddRef(); // as a drag does
            DWORD effect = DROPEFFECT_COPY;
            target->DragEnter(data, MK_LBUTTON, POINTL{at.x, at.y}, &effect);
            effect = DROPEFFECT_COPY;
            target->Drop(data, MK_LBUTTON, POINTL{at.x, at.y}, &effect);
            EXPECT_EQ(effect, step == kAtTheDrop ? DWORD{DROPEFFECT_COPY} : DWORD{DROPEFFECT_NONE});
            EXPECT_EQ(asked, std::min(step + 1, kAtTheDrop));
            EXPECT_EQ(TestNode::live(), 0);
            const ULONG left = target->Release();
            if (wholeObject) {
                EXPECT_EQ(left, 0u);
            }
        }
    source->InternalRelease();
}

/// A tree whose window its host destroys when a drag is to scroll it.
class ScrolledAway : public TestTree
{
public:
    bool when = false; ///< asked whether it can scroll, or when it is to

protected:
    bool dragScroll(unsigned, unsigned, bool doIt) override
    {
        if (doIt == when)
            DestroyWindow();
        return true;
    }
};

TEST(TreeDropScroll, AHostMayDestroyTheTreeInsteadOfScrollingIt)
{
    auto* const source = new COleDataSource;
    cachePlaintext(*source, L"dragged");
    const auto data = static_cast<IDataObject*>(source->GetInterface(&IID_IDataObject));
    for (const bool when : {false, true}) {
        SCOPED_TRACE(when);
        RecordingParent parent;
        ScrolledAway tree;
        tree.when = when;
        tree.Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
        (new TestNode("a"))->insert(tree, TVI_ROOT, TVI_LAST);
        CPoint edge(30, 3);
        tree.ClientToScreen(&edge);
        auto* const target = static_cast<IDropTarget*>(tree.m_pDropTarget->GetInterface(&IID_IDropTarget));
        target->AddRef();
        DWORD effect = DROPEFFECT_COPY;
        target->DragEnter(data, MK_LBUTTON, POINTL{edge.x, edge.y}, &effect);
        EXPECT_TRUE(GuiThread::runUntil([&] { // scrolling begins after a while
            effect = DROPEFFECT_COPY;
            target->DragOver(MK_LBUTTON, POINTL{edge.x, edge.y}, &effect);
            return tree.m_hWnd == nullptr;
        }));
        EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
        target->Release();
    }
    source->InternalRelease();
}

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
