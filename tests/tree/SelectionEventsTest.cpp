// What clients of accessibility hear of the selection, with a listener as they have one.
#include "TreeScene.h"

#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>

using namespace ovo::testkit;

namespace
{

/// Numbers its items, as Windows does.
LRESULT CALLBACK number(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR items)
{
    if (message != TVM_MAPHTREEITEMTOACCID)
        return ::DefSubclassProc(window, message, wParam, lParam);
    auto& known = *reinterpret_cast<std::vector<HTREEITEM>*>(items);
    const auto item = reinterpret_cast<HTREEITEM>(wParam);
    if (const auto found = std::ranges::find(known, item); found != known.end())
        return found - known.begin() + 1;
    known.push_back(item);
    return static_cast<LRESULT>(known.size());
}

/// Hears all events of the selection in their order, as a client of accessibility does.
class Listener
{
public:
    struct Heard
    {
        DWORD event;
        HWND window;
        LONG child;
    };

    Listener()
        : m_marker(::CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     ::GetModuleHandleW(nullptr), nullptr))
        , m_hook(::SetWinEventHook(EVENT_OBJECT_SELECTION, EVENT_OBJECT_SELECTIONWITHIN, nullptr, &hear,
                                   ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT))
    {
        s_heard.clear();
    }
    ~Listener()
    {
        ::UnhookWinEvent(m_hook);
        ::DestroyWindow(m_marker);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// What was heard since the last call.
    std::vector<Heard> take() const
    {
        ::NotifyWinEvent(EVENT_OBJECT_SELECTION, m_marker, OBJID_CLIENT, CHILDID_SELF);
        EXPECT_TRUE(
            GuiThread::runUntil([this] { return !s_heard.empty() && s_heard.back().window == m_marker; }));
        s_heard.pop_back();
        return std::exchange(s_heard, {});
    }

private:
    static void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
    {
        if (object == OBJID_CLIENT)
            s_heard.push_back({event, window, child});
    }

    static std::vector<Heard> s_heard;
    HWND m_marker; // its event follows all that came before
    HWINEVENTHOOK m_hook;
};

std::vector<Listener::Heard> Listener::s_heard;

class TreeSelectionEvents : public ::testing::Test
{
protected:
    TreeSelectionEvents()
        : scene({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"})
    {
        ::SetWindowSubclass(scene.tree, &number, 1, reinterpret_cast<DWORD_PTR>(&m_numbers));
        scene.tree.SetFocus();
        scene.tree.clearselection(scene.item("a"));
        take();
    }
    ~TreeSelectionEvents() override { ::RemoveWindowSubclass(scene.tree, &number, 1); }

    /// What was heard since the last call, in order, such as "selected a".
    Journal take()
    {
        static const std::map<DWORD, std::string> names{{EVENT_OBJECT_SELECTION, "selected "},
                                                        {EVENT_OBJECT_SELECTIONADD, "added "},
                                                        {EVENT_OBJECT_SELECTIONREMOVE, "removed "},
                                                        {EVENT_OBJECT_SELECTIONWITHIN, "within "}};
        GuiThread::settle();
        Journal all;
        for (const Listener::Heard& each : m_listener.take())
            if (each.window == scene.tree.m_hWnd)
                all.push_back(names.at(each.event) + nameOf(each.child));
        return all;
    }

    std::string nameOf(LONG child)
    {
        return child == CHILDID_SELF ? "all"
                                     : scene.nameOf(m_numbers.at(static_cast<std::size_t>(child - 1)));
    }

    LONG numberOf(const std::string& name)
    {
        return static_cast<LONG>(
            scene.tree.SendMessage(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(scene.item(name))));
    }

    void select(const std::string& name, bool selected)
    {
        scene.tree.SetItemState(scene.item(name), selected ? TVIS_SELECTED : 0, TVIS_SELECTED);
    }

    Scene scene;

private:
    std::vector<HTREEITEM> m_numbers;
    const Listener m_listener;
};

/// In the place of IsWinEventHookInstalled, which always says yes under Wine.
BOOL WINAPI nobodyListens(DWORD)
{
    return FALSE;
}

/// For items that are told in no order.
Journal sorted(Journal journal)
{
    std::ranges::sort(journal);
    return journal;
}

} // namespace

TEST_F(TreeSelectionEvents, AClickSelectsOneItem)
{
    scene.user.click(scene.label("b"));
    EXPECT_EQ(take(), Journal{"selected b"});
    scene.user.click(scene.label("d"));
    EXPECT_EQ(take(), Journal{"selected d"});
    scene.user.click(scene.label("d"));
    EXPECT_EQ(take(), Journal{}) << "nothing has changed";
}

TEST_F(TreeSelectionEvents, CtrlAddsItemsAndTakesThemOut)
{
    scene.user.click(scene.label("b")).holding(VK_CONTROL).click(scene.label("d"));
    EXPECT_EQ(take(), (Journal{"selected b", "added d"}));
    scene.user.holding(VK_CONTROL).click(scene.label("b"));
    EXPECT_EQ(take(), Journal{"removed b"});
    scene.user.holding(VK_CONTROL).click(scene.label("d"));
    EXPECT_EQ(take(), Journal{"removed d"});
}

TEST_F(TreeSelectionEvents, ARangeIsToldItemByItem)
{
    scene.user.click(scene.label("b")).holding(VK_SHIFT).click(scene.label("d"));
    const Journal range = take();
    ASSERT_EQ(range.size(), 3u);
    EXPECT_EQ(range.front(), "selected b");
    EXPECT_EQ(sorted(range), (Journal{"added c", "added d", "selected b"}));
    scene.user.click(scene.label("f"));
    const Journal other = take();
    ASSERT_EQ(other.size(), 4u);
    EXPECT_EQ(other.back(), "selected f");
    EXPECT_EQ(sorted(other), (Journal{"removed b", "removed c", "removed d", "selected f"}));
}

TEST_F(TreeSelectionEvents, KeysTellAsTheMouseDoes)
{
    scene.user.click(scene.label("b")).key(VK_DOWN);
    take();
    scene.user.holding(VK_SHIFT).key(VK_DOWN);
    EXPECT_EQ(take(), Journal{"added d"});
    scene.user.key(VK_UP);
    EXPECT_EQ(take(), Journal{"removed d"});
}

TEST_F(TreeSelectionEvents, ManyAreToldOfTheTreeAsAWhole)
{
    scene.user.click(scene.label("a"));
    take();
    scene.tree.selectRange(scene.item("b"), scene.item("i"));
    EXPECT_EQ(take().size(), 8u);
    scene.tree.SelectItem(scene.item("a"));
    take();
    scene.tree.selectRange(scene.item("b"), scene.item("j"));
    EXPECT_EQ(take(), Journal{"within all"});
    scene.user.holding(VK_CONTROL).key('A');
    EXPECT_EQ(sorted(take()), (Journal{"added k", "added l"}));
    scene.tree.clearselection(scene.item("a"));
    EXPECT_EQ(take(), Journal{"within all"});
}

TEST_F(TreeSelectionEvents, WhatTheHostDoesIsToldToo)
{
    select("c", true);
    EXPECT_EQ(take(), Journal{"selected c"});
    select("e", true);
    select("f", true);
    select("f", false); // before clients could hear of it
    EXPECT_EQ(take(), Journal{"added e"});
    scene.tree.SelectItem(scene.item("h"));
    EXPECT_EQ(sorted(take()), (Journal{"removed c", "removed e", "selected h"}));
    select("h", true);
    scene.tree.SetItemState(scene.item("a"), TVIS_BOLD, TVIS_BOLD);
    EXPECT_EQ(take(), Journal{});
}

TEST_F(TreeSelectionEvents, TheItemWithTheCaretIsToldFirst)
{
    scene.tree.SelectItem(scene.item("d"));
    select("b", true);
    select("e", true);
    const Journal heard = take();
    ASSERT_EQ(heard.size(), 3u);
    EXPECT_EQ(heard.front(), "selected d");
    EXPECT_EQ(sorted(heard), (Journal{"added b", "added e", "selected d"}));
}

TEST_F(TreeSelectionEvents, AClientKnowsWhatWasSelectedBeforeItCame)
{
    for (const char* selected : {"b", "h"}) { // the second client comes when the first has gone
        {
            const ImportPatch before(L"ovoui.dll", "IsWinEventHookInstalled",
                                     reinterpret_cast<void*>(&nobodyListens));
            scene.user.click(scene.label("a")).click(scene.label(selected));
            EXPECT_EQ(take(), Journal{});
        }
        scene.user.holding(VK_CONTROL).click(scene.label("d"));
        EXPECT_EQ(take(), Journal{"added d"});
    }
}

TEST_F(TreeSelectionEvents, AnItemThatGoesIsNotTakenOutFirst)
{
    scene.user.click(scene.label("b")).holding(VK_CONTROL).click(scene.label("d"));
    take();
    const std::string caret = scene.caret();
    scene.tree.DeleteItem(scene.item(caret == "b" ? "d" : "b"));
    EXPECT_EQ(take(), Journal{});
    scene.tree.DeleteItem(scene.item(caret));
    const Names selected = scene.selected();
    ASSERT_EQ(selected.size(), 1u) << "the tree view chooses another one";
    EXPECT_EQ(take(), Journal{"selected " + selected.front()});
}

TEST_F(TreeSelectionEvents, ItemsInsertedAsSelectedAreTold)
{
    scene.user.click(scene.label("b"));
    take();
    TVINSERTSTRUCT insertion{};
    insertion.hParent = TVI_ROOT;
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_STATE | TVIF_TEXT;
    insertion.item.pszText = const_cast<LPWSTR>(L"new");
    insertion.item.state = insertion.item.stateMask = TVIS_SELECTED;
    const HTREEITEM item = scene.tree.InsertItem(&insertion);
    const Journal heard = take();
    EXPECT_EQ(heard, Journal{"added " + scene.nameOf(item)});
    scene.tree.DeleteItem(item);
}

TEST_F(TreeSelectionEvents, ATreeWhoseItemsHaveNoNumbersIsToldOfAsAWhole)
{
    ::RemoveWindowSubclass(scene.tree, &number, 1);
    if (numberOf("a"))
        GTEST_SKIP() << "the platform numbers items";
    for (const char* name : {"b", "d"}) {
        scene.user.click(scene.label(name));
        EXPECT_EQ(take(), Journal{"within all"});
    }
}

namespace
{

std::function<void()> g_deed;

/// A client in this process is called in the middle of the announcement.
void CALLBACK misbehave(HWINEVENTHOOK, DWORD, HWND, LONG, LONG, DWORD, DWORD)
{
    if (const auto deed = std::exchange(g_deed, nullptr))
        deed();
}

} // namespace

TEST_F(TreeSelectionEvents, AClientMayDoAnythingWhenItIsTold)
{
    const HWINEVENTHOOK hook =
        ::SetWinEventHook(EVENT_OBJECT_SELECTION, EVENT_OBJECT_SELECTIONADD, ::GetModuleHandleW(nullptr),
                          &misbehave, ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_INCONTEXT);
    ASSERT_TRUE(hook);
    const std::function<void()> deeds[] = {[this] { scene.tree.DeleteItem(scene.item("c")); },
                                           [this] { scene.tree.clearselection(scene.item("a")); },
                                           [this] { scene.tree.DeleteAllItems(); },
                                           [this] { scene.tree.DestroyWindow(); }};
    for (const auto& deed : deeds) {
        while (scene.all().size() < 4)
            scene.add("another one");
        const Names names = scene.all();
        scene.tree.SelectItem(nullptr);
        GuiThread::settle();
        bool done = false;
        g_deed = [&] {
            deed();
            done = true;
        };
        for (std::size_t i = 0; i < 4; ++i)
            select(names[i], true);
        GuiThread::settle();
        EXPECT_TRUE(done);
    }
    EXPECT_FALSE(scene.tree.m_hWnd);
    ::UnhookWinEvent(hook);
}
