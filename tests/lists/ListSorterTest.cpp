// Sorting by headings: order, arrows, and what goes with the rows.
#include "ListScene.h"

#include <testkit/ImportPatch.h>

#include <ovoui/lists/ListSorter.h>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <utility>

using namespace ovo::testkit;

namespace
{

using Kind = COVOListSorter::Kind;
using Texts = std::vector<std::wstring>;

constexpr DWORD kOpaque = 0xFF000000;

class ListSorting : public ::testing::Test
{
protected:
    ListSorting()
    {
        scene.addColumn(L"name", 120);
        scene.addColumn(L"value", 100);
        sorter.Attach(scene.list);
    }

    void add(std::initializer_list<const wchar_t*> values)
    {
        for (const wchar_t* value : values) {
            const int row = scene.list.GetItemCount();
            scene.list.AddItem(row, 0, L"row " + std::to_wstring(row), kOpaque | static_cast<DWORD>(row), -1);
            scene.list.AddItem(row, 1, value, 0, -1);
        }
    }

    Texts column(int index)
    {
        Texts texts;
        for (int row = 0; row < scene.list.GetItemCount(); ++row)
            texts.emplace_back(scene.list.GetItemText(row, index).GetString());
        return texts;
    }

    int format(int index)
    {
        HDITEM item{};
        item.mask = HDI_FORMAT;
        scene.list.GetHeaderCtrl()->GetItem(index, &item);
        return item.fmt;
    }

    int arrow(int index) { return format(index) & (HDF_SORTUP | HDF_SORTDOWN); }

    ListScene scene;
    COVOListSorter sorter;
};

} // namespace

TEST_F(ListSorting, TextsInTheOrderOfTheLocale)
{
    add({L"pear", L"Apple", L"\u00C4pfel", L"apple", L"zebra"});
    EXPECT_TRUE(sorter.Sort(1, true));
    EXPECT_EQ(column(1), (Texts{L"\u00C4pfel", L"Apple", L"apple", L"pear", L"zebra"}));
    EXPECT_TRUE(sorter.Sort(1, false));
    EXPECT_EQ(column(1), (Texts{L"zebra", L"pear", L"Apple", L"apple", L"\u00C4pfel"}))
        << "equal rows keep their order";
    EXPECT_EQ(sorter.Column(), 1);
    EXPECT_FALSE(sorter.Ascending());
}

TEST_F(ListSorting, Numbers)
{
    add({L"10 KB", L"9 KB", L"none", L"-3", L"1,000"});
    sorter.SetKind(1, Kind::Number);
    sorter.Sort(1, true);
    EXPECT_EQ(column(1), (Texts{L"none", L"-3", L"9 KB", L"10 KB", L"1,000"}));
}

TEST_F(ListSorting, EqualRowsKeepTheirOrderInBothDirections)
{
    struct Case
    {
        Kind kind;
        const wchar_t* greater;
        const wchar_t* less;
    };
    for (const auto& [kind, greater, less] : {Case{Kind::Text, L"b", L"a"}, Case{Kind::Number, L"10", L"9"},
                                              Case{Kind::Date, L"10/1/2023", L"9/1/2023"}}) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(greater)));
        scene.list.DeleteAllItems();
        add({greater, less, greater, less, greater});
        sorter.SetKind(1, kind);
        sorter.Sort(1, true);
        EXPECT_EQ(column(0), (Texts{L"row 1", L"row 3", L"row 0", L"row 2", L"row 4"}));
        sorter.Sort(1, false);
        EXPECT_EQ(column(0), (Texts{L"row 0", L"row 2", L"row 4", L"row 1", L"row 3"}));
    }
}

TEST_F(ListSorting, Dates)
{
    add({L"2/1/2024", L"12/31/2023", L"never", L"1/15/2024"});
    sorter.SetKind(1, Kind::Date);
    sorter.Sort(1, true);
    EXPECT_EQ(column(1), (Texts{L"never", L"12/31/2023", L"1/15/2024", L"2/1/2024"}));
}

TEST_F(ListSorting, TheHostsComparison)
{
    add({L"bb", L"a", L"ccc"});
    sorter.SetCompare(1, [](COVOListCtrlEx& list, int row, int other) {
        return list.GetItemText(row, 1).GetLength() - list.GetItemText(other, 1).GetLength();
    });
    sorter.Sort(1, false);
    EXPECT_EQ(column(1), (Texts{L"ccc", L"bb", L"a"}));
}

TEST_F(ListSorting, ClicksOnHeadings)
{
    add({L"b", L"a", L"c"});
    scene.show();
    const Spot heading{*scene.list.GetHeaderCtrl(), CPoint(160, 8)};
    Robot().click(heading);
    EXPECT_EQ(column(1), (Texts{L"a", L"b", L"c"}));
    EXPECT_EQ(arrow(1), HDF_SORTUP);
    EXPECT_EQ(arrow(0), 0);
    Robot().click(heading);
    EXPECT_EQ(column(1), (Texts{L"c", L"b", L"a"}));
    EXPECT_EQ(arrow(1), HDF_SORTDOWN);
    Robot().click(Spot{*scene.list.GetHeaderCtrl(), CPoint(60, 8)});
    EXPECT_EQ(column(1), (Texts{L"b", L"a", L"c"}));
    EXPECT_EQ(arrow(1), 0);
    EXPECT_EQ(arrow(0), HDF_SORTUP);
    EXPECT_EQ(scene.parent.log().count(static_cast<UINT>(LVN_COLUMNCLICK)), 3)
        << "the parent hears of it too";
}

TEST_F(ListSorting, AnArrowLeavesTheRestOfTheHeadingAsItWas)
{
    scene.addColumn(L"right", 80, false, LVCFMT_RIGHT);
    add({L"b", L"a"});
    const int before = format(2);
    EXPECT_TRUE(sorter.Sort(2, true));
    EXPECT_EQ(format(2), before | HDF_SORTUP);
    EXPECT_TRUE(sorter.Sort(2, false));
    EXPECT_EQ(format(2), before | HDF_SORTDOWN);
    EXPECT_TRUE(sorter.Sort(1, true));
    EXPECT_EQ(format(2), before);
}

TEST_F(ListSorting, AListThatIsAttachedAgainBeginsAnew)
{
    add({L"b", L"a"});
    EXPECT_TRUE(sorter.Sort(1, true));
    sorter.Detach();
    EXPECT_EQ(sorter.Column(), -1);
    sorter.Attach(scene.list);
    scene.show();
    Robot().click(Spot{*scene.list.GetHeaderCtrl(), CPoint(160, 8)});
    EXPECT_TRUE(sorter.Ascending());
    EXPECT_EQ(column(1), (Texts{L"a", L"b"}));
}

TEST_F(ListSorting, AnOwnKindWithoutAComparisonLeavesTheRows)
{
    add({L"b", L"c", L"a"});
    sorter.SetKind(1, Kind::Custom);
    EXPECT_TRUE(sorter.Sort(1, true));
    EXPECT_EQ(column(1), (Texts{L"b", L"c", L"a"}));
    EXPECT_EQ(arrow(1), HDF_SORTUP);
}

TEST_F(ListSorting, SelectionFocusDataAndColoursGoWithTheRows)
{
    scene.list.UseRowColours(TRUE);
    // Item data as AddItem sets it; of the host's own; of the host's own, two of them the same.
    const DWORD_PTR kData[][4] = {{0, 1, 2, 3}, {900, static_cast<DWORD_PTR>(-4), 2, 70000}, {1, 1, 2, 3}};
    for (const auto& data : kData) {
        scene.list.DeleteAllItems();
        add({L"d", L"b", L"a", L"c"});
        for (int row = 0; row < 4; ++row)
            scene.list.SetItemData(row, data[row]);
        scene.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
        scene.list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        scene.parent.log().clear();
        EXPECT_TRUE(sorter.Sort(1, true)); // a b c d
        if (data[0] != data[1]) {
            EXPECT_EQ(scene.parent.log().count(static_cast<UINT>(LVN_ITEMCHANGED)), 0);
        }
        int rows[4] = {};
        ASSERT_EQ(scene.list.GetSelItems(4, rows), 2);
        EXPECT_EQ(rows[0], 0);
        EXPECT_EQ(rows[1], 3);
        EXPECT_EQ(scene.list.GetNextItem(-1, LVNI_FOCUSED), 0);
        constexpr int kRows[] = {2, 1, 3, 0};
        for (int place = 0; place < 4; ++place)
            EXPECT_EQ(scene.list.GetItemData(place), data[kRows[place]]);
        EXPECT_EQ(column(0), (Texts{L"row 2", L"row 1", L"row 3", L"row 0"}));
    }
}

TEST_F(ListSorting, ManyRows)
{
    std::mt19937 random(1);
    scene.list.SetRedraw(FALSE);
    for (int row = 0; row < 3000; ++row) {
        scene.list.AddItem(row, 0, L"x", 0, -1);
        scene.list.AddItem(row, 1, std::to_wstring(random() % 100000), 0, -1);
    }
    scene.list.SetRedraw(TRUE);
    sorter.SetKind(1, Kind::Number);
    sorter.Sort(1, true);
    const Texts texts = column(1);
    EXPECT_TRUE(std::ranges::is_sorted(texts, {}, [](const std::wstring& text) { return std::stol(text); }));
}

TEST_F(ListSorting, LongTexts)
{
    const std::wstring same(250, L'\u00C4'); // its key has more than a thousand bytes
    for (const wchar_t* end : {L"c", L"a", L"b"})
        add({(same + end).c_str()});
    sorter.Sort(1, true);
    EXPECT_EQ(column(0), (Texts{L"row 1", L"row 2", L"row 0"}));
}

TEST_F(ListSorting, TheListIsPaintedAnew)
{
    add({L"b", L"a"});
    scene.show();
    for (const bool ascending : {true, false}) {
        scene.list.drawn.clear();
        sorter.Sort(1, ascending);
        EXPECT_TRUE(GuiThread::runUntil([&] { return scene.list.drawn.size() >= 2; }));
        scene.list.drawn.clear();
        scene.list.SetItemText(0, 0, L"other"); // drawing is not held any more
        EXPECT_TRUE(GuiThread::runUntil([&] { return !scene.list.drawn.empty(); }));
    }
}

TEST_F(ListSorting, TheSignsOfNumbersAreTheLocales)
{
    static wchar_t decimal[] = L",";
    static wchar_t group[] = L".";
    const auto answer = [](LCID locale, LCTYPE type, LPWSTR data, int room) {
        if (type != LOCALE_SDECIMAL && type != LOCALE_STHOUSAND)
            return ::GetLocaleInfoW(locale, type, data, room);
        ::lstrcpynW(data, type == LOCALE_SDECIMAL ? decimal : group, room);
        return 2;
    };
    using Answer = int(WINAPI*)(LCID, LCTYPE, LPWSTR, int);
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(Answer(answer)));
    add({L"1.000", L"2,5", L"2,25", L"10"});
    sorter.SetKind(1, Kind::Number);
    sorter.Sort(1, true);
    EXPECT_EQ(column(1), (Texts{L"2,25", L"2,5", L"10", L"1.000"}));
}

TEST_F(ListSorting, SignsThatTheLocaleDoesNotTellArePointAndComma)
{
    const auto refuse = [](LCID locale, LCTYPE type, LPWSTR data, int room) {
        return type == LOCALE_SDECIMAL || type == LOCALE_STHOUSAND
                   ? 0
                   : ::GetLocaleInfoW(locale, type, data, room);
    };
    using Answer = int(WINAPI*)(LCID, LCTYPE, LPWSTR, int);
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(Answer(refuse)));
    add({L"1,000", L"2.5", L"2.25", L"10"});
    sorter.SetKind(1, Kind::Number);
    EXPECT_TRUE(sorter.Sort(1, true));
    EXPECT_EQ(column(1), (Texts{L"2.25", L"2.5", L"10", L"1,000"}));
}

TEST_F(ListSorting, WhatCannotBeSortedStays)
{
    EXPECT_TRUE(sorter.Sort(1, true)) << "no rows";
    add({L"b", L"a"});
    EXPECT_FALSE(sorter.Sort(7, true));
    EXPECT_FALSE(sorter.Sort(-1, true));
    EXPECT_EQ(column(1), (Texts{L"b", L"a"}));
    sorter.Detach();
    EXPECT_FALSE(sorter.Sort(1, true));
    scene.show();
    Robot().click(Spot{*scene.list.GetHeaderCtrl(), CPoint(160, 8)});
    EXPECT_EQ(column(1), (Texts{L"b", L"a"}));

    List stored;
    stored.Create(WS_CHILD | LVS_OWNERDATA, CRect(0, 0, 90, 90), &scene.parent, 40);
    stored.AddColumn(L"c", 0, -1, false, LVCF_TEXT | LVCF_WIDTH, 0);
    stored.SetItemCountEx(5);
    sorter.Attach(stored);
    int asked = 0;
    scene.parent.answer(static_cast<UINT>(LVN_GETDISPINFO), [&](NMHDR*) -> LRESULT { return ++asked; });
    EXPECT_FALSE(sorter.Sort(0, true));
    EXPECT_EQ(asked, 0);
}

TEST_F(ListSorting, AComparisonMayDoAnything)
{
    add({L"c", L"b", L"a"});
    sorter.SetCompare(1, [](COVOListCtrlEx&, int, int) -> int { throw std::runtime_error("host"); });
    EXPECT_THROW(sorter.Sort(1, true), std::runtime_error);
    EXPECT_EQ(column(1), (Texts{L"c", L"b", L"a"}));

    sorter.SetCompare(1, [](COVOListCtrlEx& list, int, int) {
        list.DeleteItem(0);
        return -1;
    });
    EXPECT_FALSE(sorter.Sort(1, true));
    EXPECT_EQ(scene.list.GetItemCount(), 2);

    sorter.SetCompare(1, [](COVOListCtrlEx& list, int, int) {
        list.DestroyWindow();
        return 1;
    });
    EXPECT_FALSE(sorter.Sort(1, true));
    EXPECT_FALSE(scene.list.m_hWnd);
}

TEST_F(ListSorting, AHostThatDetachesTheSorterInAComparisonKeepsItsRows)
{
    add({L"c", L"b", L"a"});
    sorter.SetCompare(1, [this](COVOListCtrlEx& list, int row, int other) {
        sorter.Detach();
        return list.GetItemText(row, 1).Compare(list.GetItemText(other, 1));
    });
    EXPECT_FALSE(sorter.Sort(1, true));
    EXPECT_EQ(column(1), (Texts{L"c", L"b", L"a"}));
    EXPECT_EQ(sorter.Column(), -1);
}

TEST_F(ListSorting, ASorterThatIsDetachedWhileRowsGetTheirPlacesHasSortedNone)
{
    add({L"c", L"b", L"a"});
    for (int row = 0; row < 3; ++row)
        scene.list.SetItemData(row, 7); // the parent hears of the changes that this needs
    bool told = false;
    scene.parent.answer(static_cast<UINT>(LVN_ITEMCHANGED), [&](NMHDR*) -> LRESULT {
        told = true;
        sorter.Detach();
        return 0;
    });
    EXPECT_FALSE(sorter.Sort(1, true));
    EXPECT_TRUE(told);
    EXPECT_EQ(sorter.Column(), -1);
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(scene.list.GetItemData(row), 7u);
}

TEST_F(ListSorting, WhatAComparisonRaisesAtAClickLeavesTheHeadingsInOrder)
{
    add({L"c", L"b", L"a"});
    scene.show();
    bool raises = true;
    sorter.SetCompare(1, [&raises](COVOListCtrlEx& list, int row, int other) {
        if (std::exchange(raises, false))
            throw std::runtime_error("host");
        return list.GetItemText(row, 1).Compare(list.GetItemText(other, 1));
    });
    Robot robot;
    const auto clickHeading = [&] { robot.click(Spot{*scene.list.GetHeaderCtrl(), CPoint(160, 8)}); };
    EXPECT_THROW(clickHeading(), std::runtime_error);
    EXPECT_FALSE(raises);
    EXPECT_EQ(::GetCapture(), nullptr) << "the header has ended the click";
    EXPECT_EQ(column(1), (Texts{L"c", L"b", L"a"}));
    clickHeading();
    EXPECT_EQ(column(1), (Texts{L"a", L"b", L"c"}));
}

TEST_F(ListSorting, TheParentMayDestroyListOrSorterWhenAHeadingIsClicked)
{
    add({L"b", L"a"});
    auto other = std::make_unique<COVOListSorter>();
    other->Attach(scene.list);
    sorter.Detach();
    scene.show();
    scene.parent.answer(static_cast<UINT>(LVN_COLUMNCLICK), [&](NMHDR*) -> LRESULT {
        other.reset();
        return 0;
    });
    NMHEADERW click{};
    click.hdr.hwndFrom = scene.list.GetHeaderCtrl()->m_hWnd;
    click.hdr.code = static_cast<UINT>(HDN_ITEMCLICKW);
    click.iItem = 1;
    scene.list.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
    EXPECT_FALSE(other);
    EXPECT_EQ(column(1), (Texts{L"b", L"a"}));
}
