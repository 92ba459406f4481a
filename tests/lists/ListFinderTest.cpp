// Finding rows by typing.
#include "ListScene.h"

#include <support/Perishing.h>
#include <testkit/ImportPatch.h>
#include <testkit/TestApp.h>

#include <ovoui/lists/ListFinder.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

using namespace ovo::testkit;

namespace
{

using Rows = std::vector<int>;

/// A list without storage, of 1,000 rows.
template <class Base>
class Virtual : public Base
{
public:
    explicit Virtual(CWnd& parent)
    {
        this->Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 90, 90), &parent, 40);
        this->AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
        this->SetItemCountEx(1000);
    }
};

using VirtualList = Virtual<List>;

int g_repaints = 0; ///< of the window that is watched
HWND g_watched = nullptr;

BOOL WINAPI countRepaints(HWND window, const RECT* place, BOOL erase)
{
    g_repaints += window == g_watched;
    return ::InvalidateRect(window, place, erase);
}

class ListFinding : public ::testing::Test
{
protected:
    ListFinding()
    {
        scene.addColumn(L"name", 120);
        scene.addColumn(L"place", 120);
        add(L"Apple", L"garden");
        add(L"Banana", L"kitchen");
        add(L"Carrot", L"Garage");
        add(L"Date", L"desert");
        add(L"Grape", L"hill");
        scene.show();
        scene.list.SetFocus();
        finder.Attach(scene.list);
    }

    void add(const wchar_t* name, const wchar_t* place)
    {
        const int row = scene.list.GetItemCount();
        scene.list.AddItem(row, 0, name, 0, -1);
        scene.list.AddItem(row, 1, place, 0, -1);
    }

    Rows selected()
    {
        Rows rows;
        for (int row = -1; (row = scene.list.GetNextItem(row, LVNI_SELECTED)) != -1;)
            rows.push_back(row);
        return rows;
    }

    int focused() { return scene.list.GetNextItem(-1, LVNI_FOCUSED); }

    /// Finds a text, and gives the rows that the parent hears are deselected.
    Rows deselectedBy(const wchar_t* text)
    {
        Rows rows;
        scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), [&](NMHDR* header) -> LRESULT {
            const auto& change = *reinterpret_cast<const NMLISTVIEW*>(header);
            if (change.uOldState & ~change.uNewState & LVIS_SELECTED)
                rows.push_back(change.iItem);
            return 0;
        });
        EXPECT_TRUE(finder.Find(text));
        scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), 0);
        return rows;
    }

    bool emphasises()
    {
        scene.list.RedrawWindow();
        const CRect row = scene.itemRect(selected() == Rows{0} ? 2 : 0);
        return Picture::ofClient(scene.list).count(::GetSysColor(COLOR_HIGHLIGHT), 0, row) > 0;
    }

    ListScene scene;
    COVOListFinder finder;
    Robot robot;
};

} // namespace

TEST_F(ListFinding, InAnyColumnWhateverTheCase)
{
    robot.type(L"gar");
    EXPECT_EQ(finder.Text(), L"gar");
    EXPECT_EQ(selected(), Rows{0}) << "the first row has it";
    robot.type(L"a");
    EXPECT_EQ(selected(), Rows{2}) << "Garage";
    EXPECT_EQ(focused(), 2);
    EXPECT_EQ(scene.list.GetSelectionMark(), 2);
}

TEST_F(ListFinding, WhatIsFoundStandsOut)
{
    EXPECT_FALSE(emphasises());
    robot.type(L"gar");
    EXPECT_TRUE(emphasises());
    robot.key(VK_ESCAPE);
    EXPECT_FALSE(emphasises());
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_EQ(selected(), Rows{0}) << "the row stays selected";
}

TEST_F(ListFinding, FromTheFocusedRowOnAndRound)
{
    scene.list.SetItemState(3, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    robot.type(L"ap");
    EXPECT_EQ(selected(), Rows{4}) << "Grape comes before Apple";
    robot.key(VK_F3);
    EXPECT_EQ(selected(), Rows{0});
    robot.key(VK_F3);
    EXPECT_EQ(selected(), Rows{4});
    robot.holding(VK_SHIFT).key(VK_F3);
    EXPECT_EQ(selected(), Rows{0});
}

TEST_F(ListFinding, ACharacterWithWhichNothingIsFoundIsLeftOut)
{
    robot.type(L"gax");
    EXPECT_EQ(finder.Text(), L"ga");
    EXPECT_EQ(selected(), Rows{0});
    robot.type(L"rag");
    EXPECT_EQ(finder.Text(), L"garag");
    EXPECT_EQ(selected(), Rows{2});
}

TEST_F(ListFinding, ABeepSaysThatNothingIsFound)
{
    static int beeps;
    beeps = 0;
    using Beep = BOOL(WINAPI*)(UINT);
    const ImportPatch patch(L"ovoui.dll", "MessageBeep",
                            reinterpret_cast<void*>(Beep([](UINT) -> BOOL { return ++beeps; })));
    robot.type(L"ga");
    EXPECT_EQ(beeps, 0);
    robot.type(L"x");
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(finder.Find(L"nowhere"));
    EXPECT_EQ(beeps, 1) << "a host sees it from the result";
}

TEST_F(ListFinding, EveryKeyAndClickThatLeadsElsewhereBeginsAnotherText)
{
    for (const WORD key : {VK_PRIOR, VK_NEXT, VK_END, VK_HOME, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
        robot.type(L"gar").key(key).type(L"e");
        EXPECT_EQ(finder.Text(), L"e") << "key " << key;
        robot.key(VK_ESCAPE);
    }
    robot.type(L"gar").rightClick(Spot{scene.list, scene.cell(1, 1).CenterPoint()}).type(L"e");
    EXPECT_EQ(finder.Text(), L"e");
}

TEST_F(ListFinding, BackspaceTakesTheLastCharacterBack)
{
    robot.type(L"ban").key(VK_BACK);
    EXPECT_EQ(finder.Text(), L"ba");
    EXPECT_EQ(selected(), Rows{1});
    robot.key(VK_BACK, 2);
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_FALSE(emphasises());
}

TEST_F(ListFinding, AStepElsewhereBeginsAnotherText)
{
    robot.type(L"gar").key(VK_DOWN);
    EXPECT_EQ(finder.Text(), L"gar") << "what was found still stands out";
    robot.type(L"d");
    EXPECT_EQ(finder.Text(), L"d");
    robot.click(Spot{scene.list, scene.cell(0, 1).CenterPoint()}).type(L"h");
    EXPECT_EQ(finder.Text(), L"h");
    scene.button.SetFocus();
    scene.list.SetFocus();
    robot.type(L"k");
    EXPECT_EQ(finder.Text(), L"k");
    EXPECT_EQ(selected(), Rows{1});
}

TEST_F(ListFinding, ASpaceBelongsToATextThatHasBegun)
{
    add(L"Fig tree", L"yard");
    robot.type(L"fig tr");
    EXPECT_EQ(finder.Text(), L"fig tr");
    EXPECT_EQ(selected(), Rows{5});
}

TEST_F(ListFinding, ASpaceThatBeginsATextSelects)
{
    add(L"a gar den", L""); // with a space behind what is typed
    scene.list.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
    robot.key(VK_SPACE);
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_EQ(selected(), Rows{2});
    robot.type(L"gar").holding(VK_CONTROL).key(VK_SPACE);
    EXPECT_EQ(finder.Text(), L"gar");
    EXPECT_EQ(selected(), Rows{}) << "the platform deselects the row";
}

TEST_F(ListFinding, ASpaceThatBelongsToTheTextSelectsNothing)
{
    robot.type(L"gar");
    scene.list.SetItemState(0, 0, LVIS_SELECTED);
    robot.key(VK_SPACE); // no row has it
    EXPECT_EQ(finder.Text(), L"gar");
    EXPECT_EQ(selected(), Rows{}) << "the list does not get the key";
}

TEST_F(ListFinding, OneRowIsSelectedAfterwards)
{
    for (const int row : {0, 1, 3})
        scene.list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    robot.type(L"hill");
    EXPECT_EQ(selected(), Rows{4});
}

TEST_F(ListFinding, TheParentHearsOfNoChangeWhenTheRowIsSelectedAlready)
{
    robot.type(L"ga");
    ASSERT_EQ(selected(), Rows{0});
    int changes = 0;
    scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), [&](NMHDR*) -> LRESULT { return ++changes; });
    robot.type(L"r");
    EXPECT_EQ(finder.Text(), L"gar");
    EXPECT_EQ(changes, 0);
}

TEST_F(ListFinding, TheRowThatIsFoundStaysSelectedHoweverManyAre)
{
    Rows others;
    for (int i = 0; i < 30; ++i)
        add(L"row", L"far");
    for (int row = 0; row < 35; ++row)
        if (row != 1)
            others.push_back(row);
    scene.list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(deselectedBy(L"kitchen"), others);
    EXPECT_EQ(selected(), Rows{1});
}

TEST_F(ListFinding, ARowThatGoesWhenTheOneThatIsFoundIsSelectedEndsIt)
{
    bool gone = false;
    scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), [&](NMHDR*) -> LRESULT {
        if (!std::exchange(gone, true))
            scene.list.DeleteItem(4);
        return 0;
    });
    EXPECT_FALSE(finder.Find(L"kitchen"));
    EXPECT_TRUE(gone);
}

TEST_F(ListFinding, TheFocusedRowIsScrolledIntoViewAgain)
{
    for (int i = 0; i < 60; ++i)
        add(L"row", L"far");
    add(L"the last one", L"");
    robot.type(L"las");
    ASSERT_EQ(selected(), Rows{65});
    scene.list.EnsureVisible(0, FALSE);
    robot.type(L"t");
    CRect client;
    scene.list.GetClientRect(&client);
    EXPECT_LE(scene.itemRect(65).bottom, client.bottom);
}

TEST_F(ListFinding, TheRowIsScrolledIntoView)
{
    for (int i = 0; i < 60; ++i)
        add(L"row", L"far");
    add(L"the last one", L"");
    robot.type(L"last");
    EXPECT_EQ(selected(), Rows{65});
    CRect client;
    scene.list.GetClientRect(&client);
    EXPECT_LE(scene.itemRect(65).bottom, client.bottom);
}

TEST_F(ListFinding, ByCallsOfTheHost)
{
    EXPECT_FALSE(finder.FindNext(true)) << "nothing is looked for";
    EXPECT_TRUE(finder.Find(L"GAR"));
    EXPECT_EQ(selected(), Rows{0});
    EXPECT_TRUE(finder.FindNext(true));
    EXPECT_EQ(selected(), Rows{2});
    EXPECT_TRUE(finder.FindNext(false));
    EXPECT_EQ(selected(), Rows{0});
    EXPECT_FALSE(finder.Find(L"nowhere"));
    EXPECT_EQ(finder.Text(), L"GAR") << "the search of before goes on";
    EXPECT_TRUE(finder.Find(L""));
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_FALSE(emphasises());
}

TEST_F(ListFinding, WithoutTheHelperLettersGoToThePlatform)
{
    finder.Detach();
    robot.type(L"hill");
    EXPECT_EQ(selected(), Rows{}) << "no row's label begins so";
    EXPECT_FALSE(finder.Find(L"hill"));
    EXPECT_FALSE(finder.Find(L"")) << "there is no search to end";
}

TEST_F(ListFinding, DetachingEndsTheSearch)
{
    robot.type(L"gar");
    finder.Detach();
    EXPECT_FALSE(emphasises());
    EXPECT_EQ(finder.Text(), L"");
}

TEST_F(ListFinding, AFinderThatGoesEndsItsSearch)
{
    finder.Detach();
    auto another = std::make_unique<COVOListFinder>();
    another->Attach(scene.list);
    ASSERT_TRUE(another->Find(L"gar"));
    ASSERT_TRUE(emphasises());
    another.reset();
    EXPECT_FALSE(emphasises());
}

TEST_F(ListFinding, AHostThatEndsTheSearchHearsNoBeep)
{
    static int beeps;
    beeps = 0;
    using Beep = BOOL(WINAPI*)(UINT);
    const ImportPatch patch(L"ovoui.dll", "MessageBeep",
                            reinterpret_cast<void*>(Beep([](UINT) -> BOOL { return ++beeps; })));
    finder.Detach();
    scene.list.SetItemText(0, 1, LPSTR_TEXTCALLBACK);
    scene.list.ValidateRect(nullptr); // drawing would ask, too
    for (const bool deletes : {false, true}) {
        auto another = std::make_unique<COVOListFinder>();
        another->Attach(scene.list);
        bool asked = false;
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR* header) -> LRESULT {
            LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, L"garden", item.cchTextMax);
            asked = true;
            if (deletes)
                another.reset();
            else
                another->Detach();
            return 0;
        });
        scene.list.SendMessage(WM_CHAR, L'x', 1);
        EXPECT_TRUE(asked);
        EXPECT_EQ(beeps, 0) << (deletes ? "deleted" : "detached");
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), 0);
    }
}

TEST_F(ListFinding, EscapeIsWantedWhileSearchingOnly)
{
    MSG escape{scene.list, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    const auto wants = [&] {
        return (scene.list.SendMessage(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) &
                DLGC_WANTALLKEYS) != 0;
    };
    EXPECT_FALSE(wants());
    robot.type(L"gar");
    EXPECT_TRUE(wants());
    robot.key(VK_ESCAPE);
    EXPECT_FALSE(wants());
}

TEST_F(ListFinding, OtherKeysStayTheDialogsWhileSearching)
{
    robot.type(L"gar");
    for (const WORD key : {VK_TAB, VK_RETURN}) {
        MSG down{scene.list, WM_KEYDOWN, key, 1, 0, {}};
        const LRESULT code = scene.list.SendMessage(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&down));
        EXPECT_FALSE(code & DLGC_WANTALLKEYS) << key;
    }
    MSG up{scene.list, WM_KEYUP, VK_ESCAPE, 1, 0, {}};
    EXPECT_FALSE(scene.list.SendMessage(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&up)) &
                 DLGC_WANTALLKEYS);
    EXPECT_FALSE(scene.list.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
}

TEST_F(ListFinding, AListWithoutStorageAsksAsThePlatformDoes)
{
    constexpr int kRows = 1000;
    List stored;
    stored.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 90, 90), &scene.parent, 40);
    stored.AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
    stored.SetItemCountEx(kRows);
    finder.Attach(stored);
    NMLVFINDITEM asked{};
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), [&](NMHDR* header) -> LRESULT {
        asked = *reinterpret_cast<const NMLVFINDITEM*>(header);
        return kRows;
    });
    EXPECT_FALSE(finder.Find(L"seven"));
    EXPECT_EQ(finder.Text(), L"") << "there is no row behind the last one";
    EXPECT_EQ(asked.hdr.hwndFrom, stored.m_hWnd);
    EXPECT_EQ(asked.hdr.idFrom, 40u);
    EXPECT_EQ(asked.lvfi.flags, UINT{LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP});
}

TEST_F(ListFinding, AListWithoutStorageAsksItsParent)
{
    List stored;
    stored.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 90, 90), &scene.parent, 40);
    stored.AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
    stored.SetItemCountEx(1000);
    std::wstring asked;
    int start = -1;
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), [&](NMHDR* header) -> LRESULT {
        const auto& find = *reinterpret_cast<NMLVFINDITEM*>(header);
        asked = find.lvfi.psz;
        start = find.iStart;
        return 700;
    });
    finder.Attach(stored);
    EXPECT_TRUE(finder.Find(L"seven"));
    EXPECT_EQ(asked, L"seven");
    EXPECT_EQ(start, 0);
    EXPECT_EQ(stored.GetCurSel(), 700);
    EXPECT_TRUE(finder.FindNext(true));
    EXPECT_EQ(start, 701);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 5000);
    EXPECT_FALSE(finder.FindNext(true)) << "no such row";
    EXPECT_FALSE(finder.FindNext(false)) << "the platform has no search backwards";
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), -1);
    EXPECT_FALSE(finder.Find(L"eight"));
}

TEST_F(ListFinding, AListWithoutStorageKeepsItsSelectionWhenItsParentRaises)
{
    constexpr UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;
    List stored;
    stored.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 90, 90), &scene.parent, 40);
    stored.AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
    stored.SetItemCountEx(1000);
    stored.SetItemState(500, kSelectedAndFocused, kSelectedAndFocused);
    stored.SetFocus();
    finder.Attach(stored);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM),
                        [](NMHDR*) -> LRESULT { throw std::runtime_error("host"); });
    EXPECT_THROW(finder.Find(L"seven"), std::runtime_error);
    EXPECT_EQ(stored.GetCurSel(), 500);
    EXPECT_THROW(robot.type(L"s"), std::runtime_error);
    EXPECT_EQ(stored.GetCurSel(), 500);
    EXPECT_EQ(finder.Text(), L"");
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 0);
    robot.type(L"s");
    EXPECT_EQ(stored.GetCurSel(), 0) << "the first row can be found";
    EXPECT_EQ(finder.Text(), L"s");
}

TEST_F(ListFinding, AListWithoutStorageAndParentFindsNothing)
{
    List lone;
    lone.CWnd::CreateEx(0, WC_LISTVIEW, nullptr, WS_POPUP | LVS_OWNERDATA, CRect(0, 0, 90, 90), nullptr, 0);
    lone.SetItemCountEx(10);
    ASSERT_EQ(lone.GetItemCount(), 10);
    finder.Attach(lone);
    EXPECT_FALSE(finder.Find(L"seven"));
    EXPECT_EQ(lone.GetCurSel(), -1);
}

TEST_F(ListFinding, AListWithoutStorageKeepsTheRowThatIsFoundSelected)
{
    VirtualList stored(scene.parent);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 700);
    finder.Attach(stored);
    ASSERT_TRUE(finder.Find(L"seven"));
    stored.SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(deselectedBy(L"seven"), Rows{3});
    EXPECT_EQ(stored.GetCurSel(), 700);
}

TEST_F(ListFinding, ASearchThatIsEndedWhileAllRowsAreDeselectedSelectsNone)
{
    VirtualList stored(scene.parent);
    stored.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    ASSERT_EQ(stored.GetSelectedCount(), 1000u);
    finder.Attach(stored);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 700);
    scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), [&](NMHDR*) -> LRESULT {
        finder.Detach();
        return 0;
    });
    EXPECT_FALSE(finder.Find(L"seven"));
    EXPECT_EQ(stored.GetSelectedCount(), 0u);
}

TEST_F(ListFinding, AListWithoutStorageDeselectsAllItsRowsAtOnce)
{
    List stored;
    stored.Create(WS_CHILD | WS_VISIBLE | LVS_OWNERDATA, CRect(0, 0, 90, 90), &scene.parent, 40);
    stored.AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
    stored.SetItemCountEx(1000);
    for (const int found : {700, 20}) {
        stored.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        ASSERT_EQ(stored.GetSelectedCount(), 1000u);
        scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), found);
        finder.Attach(stored);
        scene.parent.log().clear();
        EXPECT_TRUE(finder.Find(L"seven"));
        EXPECT_EQ(stored.GetCurSel(), found);
        EXPECT_LE(scene.parent.log().count(static_cast<UINT>(LVN_ITEMCHANGED)), 4);
    }
}

TEST_F(ListFinding, TheListMayBeDestroyedFirst)
{
    robot.type(L"gar");
    scene.list.DestroyWindow();
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_FALSE(finder.Find(L"gar"));
    EXPECT_FALSE(finder.FindNext(true));
}

TEST_F(ListFinding, AListThatIsDeletedIsNotTouchedAnyMore)
{
    auto stored = std::make_unique<VirtualList>(scene.parent);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 0);
    finder.Attach(*stored);
    ASSERT_TRUE(finder.Find(L"seven"));
    g_watched = stored->m_hWnd;
    g_repaints = 0;
    const ImportPatch patch(L"ovoui.dll", "InvalidateRect", reinterpret_cast<void*>(&countRepaints));
    stored->EmphasiseText(L"seven");
    ASSERT_EQ(g_repaints, 1) << "what the finder would do";
    stored.reset();
    EXPECT_EQ(g_repaints, 1);
    EXPECT_EQ(finder.Text(), L"");
    EXPECT_FALSE(finder.Find(L"seven"));
}

TEST_F(ListFinding, AListThatHasGivenUpItsWindowMayGoFirst)
{
    auto* const stored = new Virtual<Perishing<List>>(scene.parent);
    scene.parent.answer(static_cast<UINT>(LVN_ODFINDITEM), 0);
    finder.Attach(*stored);
    ASSERT_TRUE(finder.Find(L"seven"));
    const HWND window = stored->Detach();
    delete stored;
    finder.Detach();
    EXPECT_EQ(finder.Text(), L"");
    ::DestroyWindow(window);
}

TEST_F(ListFinding, TheListMayBeDeletedWhenItIsAskedForTheFirstOfManyTexts)
{
    auto* const list = new Perishing<List>;
    list->Create(WS_CHILD, CRect(0, 0, 90, 90), &scene.parent, 41);
    for (const int column : {0, 1, 2})
        list->InsertColumn(column, L"c", LVCFMT_LEFT, 30);
    list->InsertItem(0, LPSTR_TEXTCALLBACKW);
    HWND window = nullptr;
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFOW), [&](NMHDR*) -> LRESULT {
        window = list->Detach(); // which the platform goes on with
        delete list;
        return 0;
    });
    finder.Attach(*list);
    EXPECT_FALSE(finder.Find(L"gar"));
    ASSERT_TRUE(window);
    finder.Detach();
    ::DestroyWindow(window);
}

// What hosts may do when they are asked for a text, or hear of the selection.

struct Misdeed
{
    const char* name;
    std::function<void(ListScene&, std::unique_ptr<COVOListFinder>&)> deed;
    Rows selectedWhenAsked; ///< afterwards, by their data, when it is done while a text is asked for
    Rows selectedWhenTold;  ///< when it is done while the first row is deselected
};

void PrintTo(const Misdeed& misdeed, std::ostream* out)
{
    *out << misdeed.name;
}

class ListFindingWithAHost : public ::testing::TestWithParam<Misdeed>
{
};

TEST_P(ListFindingWithAHost, ThatDoesAnythingInACall)
{
    for (const UINT code : {static_cast<UINT>(LVN_GETDISPINFO), static_cast<UINT>(LVN_ITEMCHANGED)}) {
        ListScene scene;
        scene.addColumn(L"c", 100);
        for (int row = 0; row < 4; ++row) {
            LVITEM item{};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.pszText = LPSTR_TEXTCALLBACK;
            scene.list.InsertItem(&item);
            scene.list.SetItemData(row, static_cast<DWORD_PTR>(row));
        }
        for (const int row : {0, 1, 3})
            scene.list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        scene.list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
        auto finder = std::make_unique<COVOListFinder>();
        finder->Attach(scene.list);
        const auto give = [](NMHDR* header) -> LRESULT {
            LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
            if (item.mask & LVIF_TEXT)
                ::lstrcpynW(item.pszText, item.iItem == 2 ? L"wanted" : L"other", item.cchTextMax);
            return 0;
        };
        bool done = false;
        scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), give);
        scene.parent.answer(code, [&](NMHDR* header) -> LRESULT {
            if (header->code == static_cast<UINT>(LVN_GETDISPINFO))
                give(header);
            if (!std::exchange(done, true))
                GetParam().deed(scene, finder);
            return 0;
        });
        try {
            COVOListFinder& called = *finder;
            called.Find(L"want");
        } catch (const std::runtime_error&) {
        }
        EXPECT_TRUE(done) << "the host was called";
        Rows selected;
        for (int row = -1; scene.list.m_hWnd && (row = scene.list.GetNextItem(row, LVNI_SELECTED)) != -1;)
            selected.push_back(static_cast<int>(scene.list.GetItemData(row)));
        const bool asked = code == static_cast<UINT>(LVN_GETDISPINFO);
        EXPECT_EQ(selected, asked ? GetParam().selectedWhenAsked : GetParam().selectedWhenTold)
            << (asked ? "asked" : "told");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Misdeeds, ListFindingWithAHost,
    ::testing::Values(
        Misdeed{"nothing", [](ListScene&, auto&) {}, {2}, {2}},
        Misdeed{"deletes a row", [](ListScene& scene, auto&) { scene.list.DeleteItem(0); }, {1, 3}, {1, 3}},
        Misdeed{"empties the list", [](ListScene& scene, auto&) { scene.list.DeleteAllItems(); }, {}, {}},
        Misdeed{"detaches", [](ListScene&, auto& finder) { finder->Detach(); }, {0, 1, 3}, {1, 3}},
        Misdeed{"destroys the finder", [](ListScene&, auto& finder) { finder.reset(); }, {0, 1, 3}, {1, 3}},
        Misdeed{"destroys the list", [](ListScene& scene, auto&) { scene.list.DestroyWindow(); }, {}, {}},
        Misdeed{"destroys both",
                [](ListScene& scene, auto& finder) {
                    finder.reset();
                    scene.list.DestroyWindow();
                },
                {},
                {}},
        Misdeed{"finds something else", [](ListScene&, auto& finder) { finder->Find(L"other"); }, {0}, {0}},
        Misdeed{"throws", [](ListScene&, auto&) { throw std::runtime_error("host"); }, {0, 1, 3}, {1, 3}}));

TEST(ContainsText, AnywhereWhateverTheCase)
{
    EXPECT_TRUE(containsText(L"Garage", L"RAG"));
    EXPECT_TRUE(containsText(L"GARAGE", L"rag"));
    EXPECT_TRUE(containsText(L"\u00C4pfel", L"\u00E4P"));
    EXPECT_FALSE(containsText(L"Garage", L"rags"));
    EXPECT_FALSE(containsText(L"", L"a"));
    EXPECT_TRUE(containsText(L"Garage", L"")) << "an empty part stands everywhere";
    EXPECT_TRUE(containsText(L"", L""));
}
