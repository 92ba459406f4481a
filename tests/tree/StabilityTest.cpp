// What must not leak, and random use compared with the rules of the selection.
#include "TreeScene.h"

#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>

using namespace ovo::testkit;

// Leaks

TEST(TreeStability, AThousandTreesLeaveNothingBehind)
{
    RecordingParent parent;
    const auto cycle = [&] {
        TestTree tree;
        tree.Create(Scene::kStyle, CRect(0, 0, 100, 100), &parent, 1);
        TestPlace root;
        for (const char* name : {"b", "a", "b", "c"})
            tree.insert(new TestNode(name), root, 0);
        const HTREEITEM first = tree.GetRootItem();
        (new TestNode("child"))->insert(tree, first, TVI_LAST);
        tree.SelectItem(first);
        tree.selectRange(nullptr, first);
        tree.SetInsertMark(first, TRUE);
        tree.DeleteItem(tree.GetChildItem(first));
        tree.DestroyWindow();
    };
    cycle();
    const int nodes = TestNode::live();
    const GdiCounter gdi;
    const WindowCounter windows;
    for (int i = 0; i < 1000; ++i)
        cycle();
    EXPECT_EQ(TestNode::live(), nodes);
    EXPECT_EQ(gdi.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(TreeStability, OpeningAndClosingLeavesNothingBehind)
{
    Scene scene{{"a"}};
    scene.node("a").childNames = {"x", "y", "z"};
    scene.node("a").children = 1;
    scene.tree.updateUI(scene.item("a"));
    const int nodes = TestNode::live();
    const auto cycle = [&] {
        scene.tree.Expand(scene.item("a"), TVE_EXPAND);
        scene.tree.UpdateWindow();
        EXPECT_EQ(TestNode::live(), nodes + 3);
        scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
        scene.tree.UpdateWindow();
        EXPECT_EQ(TestNode::live(), nodes);
    };
    cycle();
    const GdiCounter gdi;
    for (int i = 0; i < 300; ++i)
        cycle();
    EXPECT_EQ(gdi.grown(), 0);
}

TEST(TreeStability, ANodeWhoseDestructorChangesTheTreeDoesNoHarm)
{
    Scene scene{{"a", "b", "c"}};
    scene.node("a").onDestroyed = [&] {
        scene.tree.DeleteItem(scene.item("c"));
        return 0;
    };
    scene.tree.DeleteItem(scene.item("a"));
    EXPECT_EQ(scene.all(), Names{"b"});
}

TEST(TreeStability, AttachedToADialogItemItWorksTheSame)
{
    RecordingParent parent;
    ::CreateWindowExW(0, WC_TREEVIEWW, L"", Scene::kStyle, 0, 0, 200, 200, parent.m_hWnd,
                      reinterpret_cast<HMENU>(5), ::GetModuleHandleW(nullptr), nullptr);
    TestTree tree;
    ASSERT_TRUE(tree.SubclassDlgItem(5, &parent));
    const int nodes = TestNode::live();
    (new TestNode("a"))->insert(tree, TVI_ROOT, TVI_LAST);
    const HTREEITEM b = (new TestNode("b"))->insert(tree, TVI_ROOT, TVI_LAST);
    tree.SelectItem(b);
    tree.selectRange(nullptr, tree.GetRootItem());
    int selected = 0;
    for (auto at = tree.beginSelected(); at != tree.end(); ++at)
        ++selected;
    EXPECT_EQ(selected, 2);
    tree.DestroyWindow();
    EXPECT_EQ(TestNode::live(), nodes);
}

// A model of the selection

namespace
{

/// What the tree ought to show: the rules of the selection over a plain list of displayed items, all at the
/// top level but for the children of open items, which follow them.
class Model
{
public:
    struct Item
    {
        std::string name;
        int level = 0;
        bool open = false;
        bool selected = false;
    };

    std::vector<Item> items;
    int caret = -1;
    int anchor = -1;

    Names selected() const
    {
        Names names;
        for (const Item& item : items)
            if (item.selected)
                names.push_back(item.name);
        return names;
    }
    std::string caretName() const { return caret < 0 ? "-" : items[static_cast<std::size_t>(caret)].name; }

    void click(int at)
    {
        selectAlone(at);
        anchor = at;
    }
    void ctrlClick(int at)
    {
        item(at).selected = !item(at).selected;
        anchor = at;
    }
    void shiftClick(int at)
    {
        selectAlone(at);
        selectRange(anchor, at);
    }
    void clickBelow()
    {
        for (Item& each : items)
            each.selected = false;
        caret = -1;
        anchor = size() - 1;
    }
    void arrow(int step, bool shift, bool ctrl)
    {
        const int target = caret + step;
        if (caret < 0 || target < 0 || target >= size())
            return;
        move(target, shift, ctrl);
    }
    void home(bool shift, bool ctrl)
    {
        if (size() > 0)
            move(0, shift, ctrl);
    }
    void ctrlSpace()
    {
        if (caret >= 0)
            item(caret).selected = !item(caret).selected;
    }
    void selectAll()
    {
        for (Item& each : items)
            each.selected = true;
    }
    void insertBehind(int at, const Names& names, int level)
    {
        for (std::size_t i = 0; i < names.size(); ++i)
            items.insert(items.begin() + at + 1 + static_cast<int>(i), Item{names[i], level});
        const int count = static_cast<int>(names.size());
        for (int* each : {&caret, &anchor})
            if (*each > at)
                *each += count;
    }
    void close(int at)
    {
        item(at).open = false;
        const int end = behind(at);
        const auto shrink = [&](int& each, int inside) {
            if (each > at && each < end)
                each = inside;
            else if (each >= end)
                each -= end - at - 1;
        };
        const bool caretInside = caret > at && caret < end;
        shrink(caret, at);
        shrink(anchor, -1);
        items.erase(items.begin() + at + 1, items.begin() + end);
        if (caretInside)
            item(at).selected = true;
    }

    int size() const { return static_cast<int>(items.size()); }
    Item& item(int at) { return items[static_cast<std::size_t>(at)]; }

private:
    int behind(int at) const
    {
        int end = at + 1;
        while (end < size() &&
               items[static_cast<std::size_t>(end)].level > items[static_cast<std::size_t>(at)].level)
            ++end;
        return end;
    }
    void selectAlone(int at)
    {
        for (Item& each : items)
            each.selected = false;
        item(at).selected = true;
        caret = at;
    }
    void selectRange(int from, int to)
    {
        if (from < 0)
            from = size() - 1;
        for (int i = std::min(from, to); i <= std::max(from, to); ++i)
            item(i).selected = true;
    }
    void move(int target, bool shift, bool ctrl)
    {
        if (shift) {
            selectAlone(target);
            selectRange(anchor, target);
        } else if (ctrl) {
            anchor = target;
            caret = target;
        } else {
            anchor = target;
            selectAlone(target);
        }
    }
};

/// Acts the same on a tree and on the model, by messages as input makes them.
class RandomUse
{
public:
    explicit RandomUse(unsigned seed)
        : m_random(seed)
        , m_scene({}, WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS)
    {
        for (int i = 0; i < 12; ++i)
            addTop(i);
        ::GetKeyboardState(m_keys);
    }
    ~RandomUse()
    {
        hold(VK_SHIFT, false);
        hold(VK_CONTROL, false);
    }

    std::string step()
    {
        switch (pick(12)) {
        case 0:
        case 1:
        case 2:
            return clickItem();
        case 3:
            return clickBelow();
        case 4:
        case 5:
        case 6:
            return arrow();
        case 7:
            return home();
        case 8:
            return space();
        case 9:
            return pick(6) ? toggle() : selectAll();
        case 10:
            return toggle();
        default:
            return insert();
        }
    }

    Names shown() { return m_scene.selected(); }
    std::string caret() { return m_scene.caret(); }
    const Model& model() const { return m_model; }
    Names displayed() { return m_scene.all(); }

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    void addTop(int at)
    {
        const std::string name = "t" + std::to_string(m_next++);
        TestPlace root(TVI_ROOT, false);
        auto* node = new TestNode(name);
        node->children = 1;
        node->childNames = {name + "x", name + "y", name + "z"};
        int place = 0;
        for (int i = 0; i < at; ++i)
            place += m_model.item(i).level == 0;
        m_scene.tree.insert(node, root, place);
        m_model.insertBehind(at - 1, {name}, 0);
    }

    void hold(int key, bool down)
    {
        m_keys[key] = down ? 0x80 : 0;
        ::SetKeyboardState(m_keys);
    }
    void key(UINT code, bool shift, bool ctrl)
    {
        hold(VK_SHIFT, shift);
        hold(VK_CONTROL, ctrl);
        m_scene.tree.SendMessage(WM_KEYDOWN, code, 1);
        hold(VK_SHIFT, false);
        hold(VK_CONTROL, false);
    }
    /// The release waits in the queue already when the press is handled.
    void press(CPoint point, WPARAM keys)
    {
        const LPARAM where = MAKELPARAM(point.x, point.y);
        m_scene.tree.PostMessage(WM_LBUTTONUP, keys, where);
        m_scene.tree.SendMessage(WM_LBUTTONDOWN, keys | MK_LBUTTON, where);
        MSG message;
        while (::PeekMessageW(&message, m_scene.tree.m_hWnd, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
            ::DispatchMessageW(&message);
    }

    std::string clickItem()
    {
        const int at = pick(m_model.size());
        const std::string name = m_model.item(at).name;
        m_scene.tree.EnsureVisible(m_scene.item(name));
        const CPoint point = m_scene.labelPoint(name);
        switch (pick(3)) {
        case 0:
            press(point, 0);
            m_model.click(at);
            return "click " + name;
        case 1:
            press(point, MK_CONTROL);
            m_model.ctrlClick(at);
            return "Ctrl+click " + name;
        default:
            press(point, MK_SHIFT);
            m_model.shiftClick(at);
            return "Shift+click " + name;
        }
    }
    std::string clickBelow()
    {
        CRect client;
        m_scene.tree.GetClientRect(&client);
        const CPoint point(100, client.bottom - 2);
        unsigned hit = 0;
        if (m_scene.tree.HitTest(point, &hit))
            return "no empty space";
        press(point, 0);
        m_model.clickBelow();
        return "click on empty space";
    }
    std::string arrow()
    {
        const bool shift = pick(3) == 0;
        const bool ctrl = !shift && pick(3) == 0;
        const int way = pick(2) ? 1 : -1;
        key(way > 0 ? VK_DOWN : VK_UP, shift, ctrl);
        m_model.arrow(way, shift, ctrl);
        return std::string(shift ? "Shift+" : ctrl ? "Ctrl+" : "") + (way > 0 ? "Down" : "Up");
    }
    std::string home()
    {
        const bool shift = pick(2) == 0;
        const bool ctrl = !shift && pick(2) == 0;
        key(VK_HOME, shift, ctrl);
        m_model.home(shift, ctrl);
        return std::string(shift ? "Shift+" : ctrl ? "Ctrl+" : "") + "Home";
    }
    std::string space()
    {
        key(VK_SPACE, false, true);
        m_model.ctrlSpace();
        return "Ctrl+Space";
    }
    std::string selectAll()
    {
        key('A', false, true);
        m_model.selectAll();
        return "Ctrl+A";
    }
    std::string toggle()
    {
        std::vector<int> tops;
        for (int i = 0; i < m_model.size(); ++i)
            if (m_model.item(i).level == 0)
                tops.push_back(i);
        const int at = tops[static_cast<std::size_t>(pick(static_cast<int>(tops.size())))];
        const std::string name = m_model.item(at).name;
        if (m_model.item(at).open) {
            m_scene.tree.Expand(m_scene.item(name), TVE_COLLAPSE);
            m_model.close(at);
            return "close " + name;
        }
        m_scene.tree.Expand(m_scene.item(name), TVE_EXPAND);
        m_model.item(at).open = true;
        m_model.insertBehind(at, {name + "x", name + "y", name + "z"}, 1);
        return "open " + name;
    }
    std::string insert()
    {
        if (m_model.size() > 40)
            return "nothing";
        std::vector<int> places;
        for (int i = 0; i <= m_model.size(); ++i)
            if (i == m_model.size() || m_model.item(i).level == 0)
                places.push_back(i);
        addTop(places[static_cast<std::size_t>(pick(static_cast<int>(places.size())))]);
        return "insert";
    }

    std::mt19937 m_random;
    Scene m_scene;
    Model m_model;
    int m_next = 0;
    BYTE m_keys[256]{};
};

/// Another seed can be given in the environment, to repeat a failure.
unsigned seed()
{
    const char* const given = std::getenv("OVO_SEED");
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
}

} // namespace

TEST(TreeModel, RandomUseFollowsTheRules)
{
    const unsigned first = seed();
    std::cout << "seed " << first << " (OVO_SEED repeats it)\n";
    for (unsigned round = 0; round < 5; ++round) {
        RandomUse use(first + round);
        std::vector<std::string> story;
        for (int i = 0; i < 400; ++i) {
            story.push_back(use.step());
            if (use.shown() == use.model().selected() && use.caret() == use.model().caretName())
                continue;
            std::string told;
            for (std::size_t k = story.size() > 12 ? story.size() - 12 : 0; k < story.size(); ++k)
                told += "\n  " + story[k];
            FAIL() << "seed " << first << ", round " << round << ", step " << i << ":" << told << "\nshown "
                   << ::testing::PrintToString(use.shown()) << " caret " << use.caret() << "\nmodel "
                   << ::testing::PrintToString(use.model().selected()) << " caret "
                   << use.model().caretName();
        }
    }
}
