// Drag and drop, from end to end: real drags by the robot, out of one tree into another.
#include "TreeScene.h"

#include <support/Perishing.h>

#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>

#include <ovoui/tree/DropMenu.h>
#include <ovoui/tree/PlainText.h>

#include <ovocor/OvoError.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <shlobj.h>

#include <utility>

using namespace ovo::testkit;

namespace
{

std::wstring textOf(COleDataObject& data)
{
    const HGLOBAL memory = data.GetGlobalData(CF_UNICODETEXT);
    if (!memory)
        return L"(none)";
    const std::wstring text = static_cast<const wchar_t*>(::GlobalLock(memory));
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
    return text;
}

int g_allocations = 0; ///< since a test began to count
int g_refused = 0;     ///< which of these fails, counted from 1

HGLOBAL WINAPI refuseMemory(UINT flags, SIZE_T size)
{
    return ++g_allocations == g_refused ? nullptr : ::GlobalAlloc(flags, size);
}

int g_menus = 0; ///< that would have been shown

BOOL WINAPI countMenu(HMENU, UINT, int, int, int, HWND, const RECT*)
{
    ++g_menus;
    return FALSE;
}

/// What is dragged over a tree from another program, by OLE's own calls.
class Visitor
{
public:
    explicit Visitor(TestTree& tree)
        : m_tree(tree)
    {
        cachePlaintext(m_data, L"from elsewhere");
    }

    /// Comes in, or goes on, to a client point. Gives the effect that the pointer shows.
    DWORD enter(CPoint point)
    {
        DWORD effect = kAllowed;
        target().DragEnter(&m_data.m_xDataObject, MK_LBUTTON, onScreen(point), &effect);
        return effect;
    }
    DWORD moveTo(CPoint point)
    {
        DWORD effect = kAllowed;
        target().DragOver(MK_LBUTTON, onScreen(point), &effect);
        return effect;
    }
    void leave() { target().DragLeave(); }
    DWORD drop(CPoint point)
    {
        DWORD effect = kAllowed;
        target().Drop(&m_data.m_xDataObject, 0, onScreen(point), &effect);
        return effect;
    }

private:
    static constexpr DWORD kAllowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;

    IDropTarget& target() const { return m_tree.m_pDropTarget->m_xDropTarget; }
    POINTL onScreen(CPoint point) const
    {
        m_tree.ClientToScreen(&point);
        return {point.x, point.y};
    }

    TestTree& m_tree;
    COleDataSource m_data;
};

/// Puts a text on the clipboard, with what its owner wants done with it; DROPEFFECT_NONE when it does not
/// say.
void copyText(const wchar_t* text, DWORD preferred = DROPEFFECT_NONE)
{
    auto* const source = new COleDataSource;
    cachePlaintext(*source, text);
    if (preferred) {
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof preferred);
        *static_cast<DWORD*>(::GlobalLock(memory)) = preferred;
        ::GlobalUnlock(memory);
        source->CacheGlobalData(
            static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(CFSTR_PREFERREDDROPEFFECT)), memory);
    }
    source->SetClipboard();
}

/// What a target was asked, each time it differs from the time before.
struct Asked
{
    int zone;
    std::string who;

    friend bool operator==(const Asked&, const Asked&) = default;
};

/// A tree whose parent drags the selection as text, and that takes drops.
class DropScene : public RootScene
{
public:
    explicit DropScene(const Names& names)
        : RootScene(names)
    {
        for (const UINT code : {static_cast<UINT>(TVN_BEGINDRAGW), static_cast<UINT>(TVN_BEGINRDRAGW)})
            parent().answer(code, [this](NMHDR*) -> LRESULT {
                drag();
                return 0;
            });
    }

    /// Makes a node take everything into itself.
    void take(const std::string& name, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE,
              DWORD answer = DROPEFFECT_MOVE)
    {
        TestNode* const target = &node(name);
        target->draggingInto = [=, this](COleDataObject&, DWORD& effects, bool&, int zone) {
            ask({zone, target->name});
            effects = allowed;
            return answer;
        };
        target->droppingInto = [this](COleDataObject& data, DWORD, MultiTreeCtrl&, int) {
            dropped = narrow(textOf(data));
            return true;
        };
    }

    /// Makes the top level take everything.
    void takeAtTheTop()
    {
        root().draggingInto = [this](COleDataObject&, DWORD& effects, bool&, int zone) -> DWORD {
            ask({zone, "root"});
            effects = DROPEFFECT_COPY | DROPEFFECT_MOVE;
            return DROPEFFECT_MOVE;
        };
        root().droppingInto = [this](COleDataObject& data, DWORD effect, MultiTreeCtrl&, int zone) {
            journal.push_back("dropInto " + std::to_string(effect) + " zone " + std::to_string(zone) +
                              " root");
            dropped = narrow(textOf(data));
            return true;
        };
    }

    /// Drags the first item to a spot, and acts there before the release.
    void dragTo(
        Spot spot, std::function<void()> there = [] {}, WORD key = 0)
    {
        result = kNotDone;
        Story story = user.press(label(source)).moveBy(0, 12);
        if (key)
            story.holding(key);
        story.moveTo(spot).moveBy(1, 0).then(there).release().waitFor("the end of the drag",
                                                                      [this] { return result != kNotDone; });
    }

    std::string last() { return journal.empty() ? "nothing" : journal.back(); }

    static constexpr DWORD kNotDone = 0xFFFFFFFF;
    std::string source = "source";
    std::vector<Asked> asked;
    std::string dropped = "nothing";
    DWORD result = kNotDone;
    DWORD offered = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK; ///< by the source

    /// Drags the first item to another one with the right button, and chooses from the menu there by a
    /// letter. Gives its lines.
    Names chooseAt(const std::string& name, const wchar_t* letter)
    {
        Names lines;
        result = kNotDone;
        user.press(label(source), Button::Right)
            .moveTo(label(name))
            .waitFor("the target to be asked", [&] { return !asked.empty(); })
            .release(Button::Right)
            .waitFor("the menu", [] { return shownMenu() != nullptr; })
            .then([&] {
                const auto menu = reinterpret_cast<HMENU>(::SendMessageW(shownMenu(), MN_GETHMENU, 0, 0));
                for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
                    const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
                    lines.push_back(std::to_string(::GetMenuItemID(menu, i)) +
                                    ((state & MF_GRAYED) ? " grey" : "") +
                                    ((state & MF_DEFAULT) ? " default" : ""));
                }
            })
            .type(letter)
            .waitFor("the end of the drag", [&] { return result != kNotDone; });
        return lines;
    }

private:
    void drag()
    {
        COleDataSource data;
        cachePlaintext(data, L"from the tree");
        result = data.DoDragDrop(offered);
    }
    void ask(const Asked& one)
    {
        if (asked.empty() || !(asked.back() == one))
            asked.push_back(one);
    }
};

} // namespace

TEST(TreeDrop, ANodeUnderThePointerTakesTheData)
{
    DropScene scene({"source", "a", "target"});
    scene.take("target");
    UINT highlighted = 0;
    scene.dragTo(scene.label("target"),
                 [&] { highlighted = scene.tree.GetItemState(scene.item("target"), TVIS_DROPHILITED); });
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_MOVE});
    EXPECT_EQ(scene.dropped, "from the tree");
    EXPECT_EQ(highlighted, UINT{TVIS_DROPHILITED});
    EXPECT_EQ(scene.tree.GetItemState(scene.item("target"), TVIS_DROPHILITED), 0u);
    EXPECT_EQ(scene.last(), "dropInto 2 zone -1 target");
    EXPECT_EQ(scene.asked, (std::vector<Asked>{{-1, "target"}}));
}

TEST(TreeDrop, ANodeThatTakesNothingShowsNoDrop)
{
    DropScene scene({"source", "a"});
    scene.dragTo(scene.label("a"));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(scene.dropped, "nothing");
}

TEST(TreeDrop, ANodeThatLetsNothingGoBesideItKeepsTheParentOut)
{
    DropScene scene({"source", "a"});
    scene.takeAtTheTop();
    scene.node("a").draggingInto = [](COleDataObject&, DWORD&, bool&, int) -> DWORD {
        return DROPEFFECT_NONE; // without a word about its siblings
    };
    scene.dragTo(scene.label("a"));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(scene.dropped, "nothing");
    EXPECT_TRUE(scene.asked.empty());
}

TEST(TreeDrop, KeysChooseTheEffectAmongThoseAllowed)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    scene.dragTo(
        scene.label("target"), [] {}, VK_CONTROL);
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 target");
}

TEST(TreeDrop, BesideANodeItGoesAmongItsSiblings)
{
    DropScene scene({"source", "folder"});
    scene.node("folder").childNames = {"x", "y"};
    scene.node("folder").children = 1;
    scene.tree.updateUI(scene.item("folder"));
    scene.open("folder");
    scene.take("folder");
    scene.dragTo(scene.label("y"));
    EXPECT_EQ(scene.last(), "dropInto 2 zone 2 folder");
    EXPECT_EQ(scene.dropped, "from the tree");
    scene.dragTo(scene.label("x"));
    EXPECT_EQ(scene.last(), "dropInto 2 zone 1 folder");
}

TEST(TreeDrop, BesideATopLevelNodeItGoesToTheParentWindow)
{
    DropScene scene({"source", "a", "b"});
    scene.takeAtTheTop();
    scene.dragTo(scene.label("b"));
    EXPECT_EQ(scene.last(), "dropInto 2 zone 3 root");
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_MOVE});
}

TEST(TreeDrop, BelowTheLastItemTheLastDisplayedItemIsMeant)
{
    DropScene scene({"source", "target"});
    scene.add("hidden", "target");
    scene.take("target");
    scene.dragTo(scene.below());
    EXPECT_EQ(scene.last(), "dropInto 2 zone -1 target");
}

TEST(TreeDrop, AnEmptyTreeTakesDropsAtTheTopLevel)
{
    DropScene scene({"source"});
    DropScene other({});
    scene.parent().SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    other.parent().SetWindowPos(nullptr, 500, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    other.takeAtTheTop();
    scene.dragTo(Spot(other.tree));
    EXPECT_EQ(other.last(), "dropInto 2 zone -1 root");
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_MOVE});
}

TEST(TreeDrop, AParentThatIsNoInsertionPointTakesNothingAtTheTop)
{
    DropScene scene({"source"});
    Scene other{{"a"}};
    scene.parent().SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    other.parent().SetWindowPos(nullptr, 500, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    scene.dragTo(other.label("a"));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
}

TEST(TreeDrop, EscapeTakesTheMarksAway)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    scene.user.press(scene.label("source"))
        .moveTo(scene.label("target"))
        .waitFor("the target to be asked", [&] { return !scene.asked.empty(); })
        .key(VK_ESCAPE)
        .waitFor("the end of the drag", [&] { return scene.result != DropScene::kNotDone; })
        .release();
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(scene.tree.GetItemState(scene.item("target"), TVIS_DROPHILITED), 0u);
    EXPECT_EQ(scene.dropped, "nothing");
}

TEST(TreeDrop, AnErrorWhileDroppingIsReportedAndRefusesTheDrop)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    scene.node("target").droppingInto = [](COleDataObject&, DWORD, MultiTreeCtrl&, int) -> bool {
        throw OvoError(L"disc full");
    };
    scene.dragTo(scene.label("target"));
    EXPECT_EQ(scene.tree.errors, (Journal{"disc full"}));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
}

TEST(TreeDrop, AnErrorWhileDraggingIsSwallowed)
{
    DropScene scene({"source", "target"});
    scene.node("target").draggingInto = [](COleDataObject&, DWORD&, bool&, int) -> DWORD {
        throw std::runtime_error("what?");
    };
    scene.dragTo(scene.label("target"));
    EXPECT_EQ(scene.tree.errors, Journal{});
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
}

TEST(TreeDrop, ANodeThatRaisesAnErrorTakesNothingWhateverItHasAllowedBefore)
{
    Scene scene{{"a"}};
    scene.node("a").draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) -> DWORD {
        effects = DROPEFFECT_COPY;
        throw std::runtime_error("what?");
    };
    COleDropTarget& target = *scene.tree.m_pDropTarget;
    COleDataObject data;
    const CPoint point = scene.labelPoint("a");
    constexpr DWORD kNone = DROPEFFECT_NONE;
    EXPECT_EQ(target.OnDragEnter(&scene.tree, &data, MK_RBUTTON, point), kNone);
    EXPECT_EQ(target.OnDragEnter(&scene.tree, &data, MK_LBUTTON | MK_CONTROL, point), kNone);
    EXPECT_EQ(target.OnDropEx(&scene.tree, &data, DROPEFFECT_COPY, DROPEFFECT_COPY, point), kNone);
    EXPECT_EQ(scene.journal, Journal{}) << "nothing is dropped into it";
    EXPECT_EQ(scene.tree.errors, Journal{});
}

TEST(TreeDrop, ATargetThatDeletesItselfDoesNoHarm)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    scene.node("target").droppingInto = [&](COleDataObject&, DWORD, MultiTreeCtrl& tree, int) {
        tree.DeleteAllItems();
        return true;
    };
    scene.dragTo(scene.label("target"));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_MOVE});
    EXPECT_EQ(scene.tree.GetCount(), 0u);
}

TEST(TreeDrop, TheWholeSelectionIsStillSelectedDuringTheDrag)
{
    DropScene scene({"source", "b", "target"});
    scene.take("target");
    scene.user.click(scene.label("source")).holding(VK_CONTROL).click(scene.label("b"));
    Names during;
    scene.dragTo(scene.label("target"), [&] { during = scene.selected(); });
    EXPECT_EQ(during, (Names{"source", "b"}));
    EXPECT_EQ(scene.selected(), (Names{"source", "b"}));
}

TEST(TreeDrop, APressOnASelectedItemThatBecomesADragKeepsTheAnchor)
{
    DropScene scene({"a", "source", "c", "d"});
    scene.user.click(scene.label("a")).holding(VK_SHIFT).click(scene.label("source"));
    scene.dragTo(scene.label("d"));
    ASSERT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
    scene.user.holding(VK_SHIFT).click(scene.label("c"));
    EXPECT_EQ(scene.selected(), (Names{"a", "source", "c"}));
}

TEST(TreeDrop, WhatTheTargetMakesOfItselfIsShown)
{
    for (const bool takes : {true, false}) {
        DropScene scene({"source", "target"});
        scene.take("target");
        TestNode& target = scene.node("target");
        target.droppingInto = [&](COleDataObject&, DWORD, MultiTreeCtrl&, int) {
            target.name = "full";
            return takes;
        };
        scene.dragTo(scene.label("target"));
        EXPECT_EQ(scene.result, takes ? DWORD{DROPEFFECT_MOVE} : DWORD{DROPEFFECT_NONE});
        EXPECT_EQ(scene.all(), (Names{"source", "full"}));
    }
}

TEST(TreeDrop, TheMarkIsBehindTheItemAndGoesWithTheDrag)
{
    constexpr COLORREF kRed = RGB(255, 0, 0);
    for (const bool drops : {false, true}) {
        SCOPED_TRACE(drops);
        Scene scene{{"folder", "b"}};
        TestNode& folder = scene.node("folder");
        folder.childNames = {"x", "y"};
        folder.children = 1;
        scene.tree.updateUI(folder);
        scene.open("folder");
        folder.draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) -> DWORD {
            return effects = DROPEFFECT_COPY;
        };
        scene.tree.SetInsertMarkColor(kRed);
        const auto red = [&](const CRect& within) {
            return Picture::ofClient(scene.tree).count(kRed, 0, within);
        };
        CRect row;
        scene.tree.GetItemRect(scene.item("x"), &row, FALSE);
        const int middle = row.CenterPoint().y;
        Visitor visitor(scene.tree);
        EXPECT_EQ(visitor.enter(scene.labelPoint("x")), DWORD{DROPEFFECT_COPY});
        EXPECT_GT(red(CRect(row.left, middle, row.right, row.bottom + 4)), 0);
        EXPECT_EQ(red(CRect(row.left, row.top - 4, row.right, middle)), 0);
        EXPECT_EQ(scene.tree.GetDropHilightItem(), folder.hTreeItem());
        if (drops)
            visitor.drop(scene.labelPoint("x"));
        else
            visitor.leave();
        CRect client;
        scene.tree.GetClientRect(&client);
        EXPECT_EQ(red(client), 0);
        const auto highlighted = [&] {
            return scene.tree.GetItemState(scene.item("folder"), TVIS_DROPHILITED) != 0;
        };
        EXPECT_FALSE(highlighted());
        EXPECT_EQ(scene.all(), (Names{"folder", "x", "y", "b"}));
        Visitor again(scene.tree);
        again.enter(scene.labelPoint("x"));
        EXPECT_TRUE(highlighted());
        again.leave();
        EXPECT_FALSE(highlighted());
    }
}

TEST(TreeDrop, AtTheTopLevelTheMarkIsBehindTheItemAndNothingIsHighlighted)
{
    constexpr COLORREF kRed = RGB(255, 0, 0);
    DropScene scene({"a", "b", "c"});
    scene.takeAtTheTop();
    scene.take("a");
    scene.tree.SetInsertMarkColor(kRed);
    const auto highlighted = [&] {
        Names names;
        for (const char* const name : {"a", "b", "c"})
            if (scene.tree.GetItemState(scene.item(name), TVIS_DROPHILITED))
                names.push_back(name);
        return names;
    };
    const auto red = [&](const CRect& within) {
        return Picture::ofClient(scene.tree).count(kRed, 0, within);
    };
    CRect row;
    scene.tree.GetItemRect(scene.item("b"), &row, FALSE);
    const int middle = row.CenterPoint().y;
    Visitor visitor(scene.tree);
    visitor.enter(scene.labelPoint("a"));
    EXPECT_EQ(highlighted(), Names{"a"});
    EXPECT_EQ(visitor.moveTo(scene.labelPoint("b")), DWORD{DROPEFFECT_MOVE});
    EXPECT_EQ(highlighted(), Names{});
    EXPECT_GT(red(CRect(row.left, middle, row.right, row.bottom + 4)), 0);
    EXPECT_EQ(red(CRect(row.left, row.top - 4, row.right, middle)), 0);
    EXPECT_EQ(scene.asked.back(), (Asked{2, "root"}));
    visitor.leave();
}

// The right button

TEST(TreeDrop, TheRightButtonEndsInAMenu)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    EXPECT_EQ(scene.chooseAt("target", L"c"), (Names{"5610 default", "1191", "1194 grey"}));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 target");
}

TEST(TreeDrop, TheMenuOffersWhatBothTheSourceAndTheTargetAllow)
{
    DropScene scene({"source", "target"});
    scene.take("target", DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK, DROPEFFECT_COPY);
    scene.offered = DROPEFFECT_COPY;
    EXPECT_EQ(scene.chooseAt("target", L"c"), (Names{"5610 grey", "1191 default", "1194 grey"}));
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_COPY});
}

TEST(TreeDrop, AMenuThatIsDismissedRefusesTheDrop)
{
    DropScene scene({"source", "target"});
    scene.take("target");
    scene.user.press(scene.label("source"), Button::Right)
        .moveTo(scene.label("target"))
        .waitFor("the target to be asked", [&] { return !scene.asked.empty(); })
        .release(Button::Right)
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .key(VK_ESCAPE)
        .waitFor("the end of the drag", [&] { return scene.result != DropScene::kNotDone; });
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(scene.dropped, "nothing");
}

TEST(TreeDrop, WithNothingAllowedTheRightButtonShowsNoMenu)
{
    DropScene scene({"source", "target"});
    bool menu = false;
    scene.user.press(scene.label("source"), Button::Right)
        .moveTo(scene.label("target"))
        .release(Button::Right)
        .waitFor("the end of the drag", [&] {
            menu = menu || shownMenu() != nullptr;
            return scene.result != DropScene::kNotDone;
        });
    EXPECT_FALSE(menu);
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
}

TEST(TreeDrop, WithNothingThatBothAllowTheRightButtonShowsNoMenu)
{
    const ImportPatch counting(L"ovomfc.dll", "TrackPopupMenu", reinterpret_cast<void*>(&countMenu));
    Scene scene{{"a"}};
    scene.node("a").draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) {
        return effects = DROPEFFECT_MOVE;
    };
    COleDropTarget& target = *scene.tree.m_pDropTarget;
    COleDataObject data;
    const CPoint point = scene.labelPoint("a");
    const auto drop = [&](DWORD allowed) {
        target.OnDragEnter(&scene.tree, &data, MK_RBUTTON, point);
        return target.OnDropEx(&scene.tree, &data, DROPEFFECT_NONE, allowed, point);
    };
    g_menus = 0;
    EXPECT_EQ(drop(DROPEFFECT_COPY | DROPEFFECT_LINK), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(g_menus, 0);
    EXPECT_EQ(drop(DROPEFFECT_COPY | DROPEFFECT_MOVE), DWORD{DROPEFFECT_NONE}) << "it is dismissed";
    EXPECT_EQ(g_menus, 1);
}

// The menu by itself

TEST(TreeDropMenu, WithOneEffectAllowedTheOthersAreGrey)
{
    RecordingParent parent;
    present(parent);
    Names lines;
    Robot user;
    auto choosing = user.waitFor("the menu", [] { return shownMenu() != nullptr; })
                        .then([&] {
                            const auto menu =
                                reinterpret_cast<HMENU>(::SendMessageW(shownMenu(), MN_GETHMENU, 0, 0));
                            for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
                                wchar_t text[64]{};
                                ::GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
                                const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
                                lines.push_back(narrow(text) + ((state & MF_GRAYED) ? " (grey)" : ""));
                            }
                        })
                        .type(L"l")
                        .start();
    EXPECT_EQ(nondefaultDrop(parent, DROPEFFECT_LINK, DROPEFFECT_LINK, CPoint(20, 20), L"Fish & Chips"),
              DWORD{DROPEFFECT_LINK});
    EXPECT_EQ(lines, (Names{"&Move Fish && Chips Here (grey)", "&Copy Fish && Chips Here (grey)",
                            "Create &Link to Fish && Chips Here"}));
}

TEST(TreeDropMenu, ShowsWhichIsTheDefaultAndGivesWhatIsChosen)
{
    struct Choice
    {
        DWORD effect;
        UINT command;
        const wchar_t* key;
    };
    for (const auto& [effect, command, key] : {Choice{DROPEFFECT_MOVE, 5610, L"m"},
                                               {DROPEFFECT_COPY, 1191, L"c"},
                                               {DROPEFFECT_LINK, 1194, L"l"}}) {
        SCOPED_TRACE(effect);
        RecordingParent parent;
        present(parent);
        UINT standard = 0;
        Robot user;
        auto choosing = user.waitFor("the menu", [] { return shownMenu() != nullptr; })
                            .then([&] {
                                standard = ::GetMenuDefaultItem(
                                    reinterpret_cast<HMENU>(::SendMessageW(shownMenu(), MN_GETHMENU, 0, 0)),
                                    FALSE, GMDI_USEDISABLED);
                            })
                            .type(key)
                            .start();
        EXPECT_EQ(nondefaultDrop(parent, effect, DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK,
                                 CPoint(20, 20), L""),
                  effect);
        EXPECT_EQ(standard, command);
    }
}

TEST(TreeDropMenu, DismissedIsNoEffect)
{
    RecordingParent parent;
    present(parent);
    Robot user;
    auto choosing = user.waitFor("the menu", [] { return shownMenu() != nullptr; }).key(VK_ESCAPE).start();
    EXPECT_EQ(nondefaultDrop(parent, DROPEFFECT_COPY, DROPEFFECT_COPY, CPoint(20, 20), L""), 0u);
    EXPECT_TRUE(parent.log().empty()) << "the window is not told of the command";
}

TEST(TreeDropMenu, OpensAtThePointAndReadsAsTheWindowDoes)
{
    for (const bool mirrored : {false, true}) {
        SCOPED_TRACE(mirrored);
        RecordingParent parent;
        parent.ModifyStyleEx(0, mirrored ? WS_EX_LAYOUTRTL : 0, SWP_FRAMECHANGED);
        present(parent);
        parent.SetWindowPos(nullptr, 150, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        CRect menu;
        DWORD style = 0;
        Robot user;
        auto leaving = user.waitFor("the menu", [] { return shownMenu() != nullptr; })
                           .then([&] {
                               ::GetWindowRect(shownMenu(), &menu);
                               style = static_cast<DWORD>(::GetWindowLongPtrW(shownMenu(), GWL_EXSTYLE));
                           })
                           .key(VK_ESCAPE)
                           .start();
        CPoint point(70, 40);
        nondefaultDrop(parent, DROPEFFECT_COPY, DROPEFFECT_COPY, point, L"");
        leaving.finish();
        parent.ClientToScreen(&point);
        EXPECT_NEAR(mirrored ? menu.right : menu.left, point.x, 4);
        EXPECT_NEAR(menu.top, point.y, 4);
        EXPECT_EQ((style & WS_EX_LAYOUTRTL) != 0, mirrored);
    }
}

// Scrolling

TEST(TreeDropScroll, GoesOneItemUpOrDown)
{
    Names many;
    for (int i = 0; i < 60; ++i)
        many.push_back(std::to_string(100 + i));
    Scene scene{many};
    const auto first = [&] { return scene.nameOf(scene.tree.GetFirstVisibleItem()); };
    EXPECT_FALSE(scene.tree.dragScroll(0x00FF, 0, true)) << "there is nothing above";
    EXPECT_TRUE(scene.tree.dragScroll(0x01FF, 0, false));
    EXPECT_EQ(first(), "100") << "asked only";
    EXPECT_TRUE(scene.tree.dragScroll(0x01FF, 0, true));
    EXPECT_EQ(first(), "101");
    EXPECT_TRUE(scene.tree.dragScroll(0x00FF, 0, true));
    EXPECT_EQ(first(), "100");
    EXPECT_FALSE(scene.tree.dragScroll(0xFF00, 0, true)) << "there is no horizontal scrolling";
    scene.tree.EnsureVisible(scene.item("159"));
    EXPECT_FALSE(scene.tree.dragScroll(0x01FF, 0, false)) << "there is nothing below";
}

TEST(TreeDropScroll, ShowsTheNewRowsAtOnce)
{
    Scene scene{numbered(60)};
    scene.tree.UpdateWindow();
    scene.tree.counting = true;
    ASSERT_TRUE(scene.tree.dragScroll(0x01FF, 0, false));
    EXPECT_EQ(scene.tree.paints, 0) << "asked only";
    ASSERT_TRUE(scene.tree.dragScroll(0x01FF, 0, true));
    EXPECT_GT(scene.tree.paints, 0);
}

TEST(TreeDropScroll, ADragNearTheEdgeScrolls)
{
    Names many{"source"};
    for (int i = 0; i < 60; ++i)
        many.push_back(std::to_string(100 + i));
    DropScene scene(many);
    CRect client;
    scene.tree.GetClientRect(&client);
    scene.user.press(scene.label("source"))
        .moveTo(Spot(scene.tree, CPoint(60, client.bottom - 4)))
        .waitFor("the tree to scroll",
                 [&] { return scene.nameOf(scene.tree.GetFirstVisibleItem()) == "103"; })
        .key(VK_ESCAPE)
        .waitFor("the end of the drag", [&] { return scene.result != DropScene::kNotDone; })
        .release();
    EXPECT_EQ(scene.result, DWORD{DROPEFFECT_NONE});
}

TEST(TreeDropScroll, ThePointerShowsWhereTheTreeScrolls)
{
    Scene scene;
    for (int i = 0; i < 60; ++i)
        scene.add(std::to_string(100 + i)).draggingInto = [](COleDataObject&, DWORD& effects, bool&, int) {
            return effects = DROPEFFECT_COPY;
        };
    CRect client;
    scene.tree.GetClientRect(&client);
    const CPoint middle = client.CenterPoint();
    const CPoint bottom(middle.x, client.bottom - 2);
    const CPoint top(middle.x, client.top + 1);
    constexpr DWORD kCopy = DROPEFFECT_COPY;
    constexpr DWORD kScroll = DROPEFFECT_SCROLL;
    Visitor visitor(scene.tree);
    EXPECT_EQ(visitor.enter(bottom), kCopy | kScroll);
    EXPECT_EQ(visitor.moveTo(middle), kCopy);
    EXPECT_EQ(visitor.moveTo(top), kCopy) << "there is nothing above";
    scene.tree.EnsureVisible(scene.item("159"));
    EXPECT_EQ(visitor.moveTo(top), kCopy | kScroll);
    EXPECT_EQ(visitor.moveTo(bottom), kCopy) << "there is nothing below";
    visitor.leave();
}

// Text

TEST(TreePlainText, IsOfferedAsUnicodeAndInTheCodePage)
{
    auto* source = new COleDataSource;
    cachePlaintext(*source, L"gr\u00FCn \u20AC \u4E2D");
    COleDataObject data;
    data.Attach(static_cast<IDataObject*>(source->GetInterface(&IID_IDataObject)), FALSE);
    EXPECT_EQ(textOf(data), L"gr\u00FCn \u20AC \u4E2D");
    const HGLOBAL memory = data.GetGlobalData(CF_TEXT);
    ASSERT_NE(memory, nullptr);
    const std::string ansi = static_cast<const char*>(::GlobalLock(memory));
    EXPECT_EQ(ansi.substr(0, 2), "gr");
    EXPECT_EQ(::GlobalSize(memory), ansi.size() + 1);
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
    data.Detach();
    source->InternalRelease();
}

TEST(TreePlainText, AFormatForWhichThereIsNoMemoryIsLeftOut)
{
    for (const int refused : {1, 2}) {
        SCOPED_TRACE(refused);
        auto* source = new COleDataSource;
        g_allocations = 0;
        g_refused = refused;
        {
            const ImportPatch patch(L"ovoui.dll", "GlobalAlloc", reinterpret_cast<void*>(&refuseMemory));
            cachePlaintext(*source, L"text");
        }
        EXPECT_EQ(g_allocations, 2);
        COleDataObject data;
        data.Attach(static_cast<IDataObject*>(source->GetInterface(&IID_IDataObject)), FALSE);
        EXPECT_EQ(data.IsDataAvailable(CF_UNICODETEXT) != FALSE, refused != 1);
        EXPECT_EQ(data.IsDataAvailable(CF_TEXT) != FALSE, refused != 2);
        data.Detach();
        source->InternalRelease();
    }
}

// Paste

TEST(TreePaste, GoesToTheSelectedNodeThatWouldTakeTheData)
{
    DropScene scene({"a", "target"});
    scene.take("target", DROPEFFECT_COPY, DROPEFFECT_COPY);
    scene.user.click(scene.label("target"));
    auto* source = new COleDataSource;
    cachePlaintext(*source, L"pasted");
    source->SetClipboard();
    scene.user.holding(VK_CONTROL).key('V');
    EXPECT_EQ(scene.dropped, "pasted");
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 target");
    COleDataSource::FlushClipboard();
}

TEST(TreePaste, DoesWithTheDataWhatItsOwnerPrefers)
{
    DropScene scene({"target"});
    scene.take("target", DROPEFFECT_COPY | DROPEFFECT_MOVE, DROPEFFECT_COPY);
    scene.tree.SelectItem(scene.item("target"));
    copyText(L"cut", DROPEFFECT_MOVE);
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.last(), "dropInto 2 zone -1 target");
    EXPECT_EQ(scene.dropped, "cut");
    copyText(L"copied");
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 target");
    COleDataSource::FlushClipboard();
}

TEST(TreePaste, GoesToTheOneSelectedItemElseToTheCaret)
{
    DropScene scene({"a", "b", "c"});
    for (const char* const name : {"a", "b", "c"})
        scene.take(name, DROPEFFECT_COPY, DROPEFFECT_COPY);
    copyText(L"pasted");
    scene.user.click(scene.label("a"));
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    ASSERT_EQ(scene.caret(), "b");
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 a");
    scene.tree.SetItemState(scene.item("b"), TVIS_SELECTED, TVIS_SELECTED);
    scene.user.holding(VK_CONTROL).key(VK_DOWN);
    ASSERT_EQ(scene.selected(), (Names{"a", "b"}));
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 c");
    COleDataSource::FlushClipboard();
}

TEST(TreePaste, GoesToTheTopLevelWithoutACaret)
{
    DropScene scene({"a"});
    scene.take("a");
    scene.takeAtTheTop();
    scene.tree.SelectItem(nullptr);
    copyText(L"pasted");
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.last(), "dropInto 1 zone -1 root");
    EXPECT_EQ(scene.dropped, "pasted");
    COleDataSource::FlushClipboard();
}

TEST(TreePaste, WhatTheTargetMakesOfItselfIsShown)
{
    DropScene scene({"target"});
    scene.take("target");
    TestNode& target = scene.node("target");
    target.droppingInto = [&](COleDataObject&, DWORD, MultiTreeCtrl&, int) {
        target.name = "full";
        return true;
    };
    scene.tree.SelectItem(target.hTreeItem());
    copyText(L"pasted");
    scene.tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    EXPECT_EQ(scene.all(), Names{"full"});
    COleDataSource::FlushClipboard();
}

/// Data whose owner does a deed each time when it is asked what is to be done with it, and does not say.
class BusyOwner : public COleDataSource
{
public:
    explicit BusyOwner(std::function<void()> deed)
        : m_deed(std::move(deed))
    {
        DelayRenderData(static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(CFSTR_PREFERREDDROPEFFECT)));
    }

protected:
    BOOL OnRenderGlobalData(LPFORMATETC, HGLOBAL*) override
    {
        m_deed();
        return FALSE;
    }

private:
    std::function<void()> m_deed;
};

TEST(TreePaste, TheOwnerOfTheDataMayDestroyTheTree)
{
    for (const int when : {1, 2}) // is it possible, and the command itself
        for (const bool wholeObject : {false, true}) {
            SCOPED_TRACE(std::to_string(when) + (wholeObject ? " object" : " window"));
            RecordingParent parent;
            std::unique_ptr<TestTree> tree = std::make_unique<Perishing<TestTree>>();
            tree->Create(Scene::kStyle, CRect(0, 0, 200, 200), &parent, 1);
            auto* const node = new TestNode("a");
            int asked = 0;
            bool dropped = false;
            node->draggingInto = [&](COleDataObject&, DWORD& effects, bool&, int) {
                ++asked;
                return effects = DROPEFFECT_COPY;
            };
            node->droppingInto = [&](COleDataObject&, DWORD, MultiTreeCtrl&, int) { return dropped = true; };
            node->insert(*tree, TVI_ROOT, TVI_LAST);
            tree->SelectItem(tree->GetRootItem());
            auto* const source = new BusyOwner([&] {
                if (asked != when || !tree)
                    return;
                if (wholeObject)
                    tree.reset();
                else
                    tree->DestroyWindow();
            });
            source->SetClipboard();
            ::SendMessageW(tree->m_hWnd, WM_COMMAND, ID_EDIT_PASTE, 0);
            EXPECT_EQ(asked, when);
            EXPECT_EQ(TestNode::live(), 0) << "the owner was asked";
            EXPECT_FALSE(dropped);
            ::OleSetClipboard(nullptr);
        }
}

TEST(TreePaste, IsGreyWhereTheDataIsNotTaken)
{
    DropScene scene({"a", "target"});
    scene.take("target");
    auto* source = new COleDataSource;
    cachePlaintext(*source, L"pasted");
    source->SetClipboard();
    const auto isGrey = [&] {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, ID_EDIT_PASTE, L"Paste");
        scene.tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
        return (menu.GetMenuState(ID_EDIT_PASTE, MF_BYCOMMAND) & MF_GRAYED) != 0;
    };
    scene.user.click(scene.label("a"));
    EXPECT_TRUE(isGrey());
    scene.user.click(scene.label("target"));
    EXPECT_FALSE(isGrey());
    COleDataSource::FlushClipboard();
}
