// The layout of columns in the profile.
#include "ListScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/TemporaryProfile.h>

#include <ovoui/lists/ListLayout.h>
#include <ovoui/lists/ListSorter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

void addColumns(ListScene& scene, std::initializer_list<const wchar_t*> headings)
{
    for (const wchar_t* heading : headings)
        scene.addColumn(heading, 50);
}

std::vector<int> orderOf(List& list)
{
    std::vector<int> order(static_cast<std::size_t>(list.GetHeaderCtrl()->GetItemCount()));
    list.GetColumnOrderArray(order.data(), static_cast<int>(order.size()));
    return order;
}

} // namespace

TEST(ListLayout, OrderWidthsAndSortingComeBack)
{
    const TemporaryProfile profile;
    {
        ListScene scene;
        addColumns(scene, {L"a", L"b", L"c"});
        for (const wchar_t* text : {L"x", L"z", L"y"})
            scene.list.AddItem(scene.list.GetItemCount(), 0, text, 0, -1);
        COVOListSorter sorter;
        sorter.Attach(scene.list);
        sorter.Sort(0, false);
        int order[] = {2, 0, 1};
        scene.list.SetColumnOrderArray(3, order);
        scene.list.SetColumnWidth(1, 77);
        EXPECT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", &sorter));
    }
    ListScene scene;
    addColumns(scene, {L"new", L"b", L"a", L"c"}); // in another order, with one more
    for (const wchar_t* text : {L"p", L"r", L"q"}) {
        const int row = scene.list.AddItem(scene.list.GetItemCount(), 0, L"new", 0, -1);
        scene.list.AddItem(row, 2, text, 0, -1);
    }
    COVOListSorter sorter;
    sorter.Attach(scene.list);
    EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", &sorter));
    EXPECT_EQ(orderOf(scene.list), (std::vector<int>{3, 2, 1, 0}));
    EXPECT_EQ(scene.list.GetColumnWidth(1), 77);
    EXPECT_EQ(scene.list.GetColumnWidth(0), 50);
    EXPECT_EQ(sorter.Column(), 2);
    EXPECT_FALSE(sorter.Ascending());
    EXPECT_EQ(scene.list.GetItemText(0, 2), L"r");
}

namespace
{

int WINAPI finer(HDC dc, int what)
{
    return what == LOGPIXELSX ? 144 : ::GetDeviceCaps(dc, what);
}

} // namespace

TEST(ListLayout, WidthsAreKeptForAnyResolution)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a", L"b"});
    scene.list.SetColumnWidth(0, 150);
    {
        const ImportPatch patch(L"ovomfc.dll", "GetDeviceCaps", reinterpret_cast<void*>(&finer));
        EXPECT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", nullptr));
        scene.list.SetColumnWidth(0, 10);
        EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", nullptr));
        EXPECT_EQ(scene.list.GetColumnWidth(0), 150);
    }
    EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", nullptr));
    EXPECT_EQ(scene.list.GetColumnWidth(0), 100);
}

TEST(ListLayout, TheListIsPaintedAnew)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a", L"b"});
    scene.list.AddItem(0, 0, L"x", 0, -1);
    scene.show();
    EXPECT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", nullptr));
    scene.list.ValidateRect(nullptr);
    EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", nullptr));
    CRect client;
    CRect update;
    scene.list.GetClientRect(&client);
    scene.list.GetUpdateRect(&update);
    EXPECT_EQ(update, client);
}

TEST(ListLayout, BothDirectionsOfSortingComeBack)
{
    const TemporaryProfile profile;
    for (const bool ascending : {true, false}) {
        ListScene scene;
        addColumns(scene, {L"a"});
        for (const wchar_t* text : {L"x", L"z", L"y"})
            scene.list.AddItem(scene.list.GetItemCount(), 0, text, 0, -1);
        COVOListSorter sorter;
        sorter.Attach(scene.list);
        sorter.Sort(0, ascending);
        saveColumnLayout(scene.list, L"Lists", L"test", &sorter);
        sorter.Sort(0, !ascending);
        EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", &sorter));
        EXPECT_EQ(sorter.Ascending(), ascending);
        EXPECT_EQ(scene.list.GetItemText(0, 0), ascending ? L"x" : L"z");
    }
}

TEST(ListLayout, AColumnWithoutAHeadingIsNotSortedByAListThatWasNot)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a", L""});
    COVOListSorter sorter;
    sorter.Attach(scene.list);
    ASSERT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", &sorter));
    EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", &sorter));
    EXPECT_EQ(sorter.Column(), -1);
}

TEST(ListLayout, AListThatAComparisonDestroysGetsNoLayout)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a"});
    for (const wchar_t* text : {L"x", L"z", L"y"})
        scene.list.AddItem(scene.list.GetItemCount(), 0, text, 0, -1);
    COVOListSorter sorter;
    sorter.Attach(scene.list);
    sorter.Sort(0, true);
    ASSERT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", &sorter));
    sorter.SetCompare(0, [](COVOListCtrlEx& list, int, int) {
        list.DestroyWindow();
        return 0;
    });
    EXPECT_FALSE(restoreColumnLayout(scene.list, L"Lists", L"test", &sorter));
    EXPECT_EQ(scene.list.m_hWnd, nullptr);
}

namespace
{

LSTATUS WINAPI refuseValue(HKEY, LPCWSTR, DWORD, DWORD, const BYTE*, DWORD)
{
    return ERROR_ACCESS_DENIED;
}

} // namespace

TEST(ListLayout, SaysWhenItCannotBeSaved)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a"});
    {
        const ImportPatch patch(L"ovomfc.dll", "RegSetValueExW", reinterpret_cast<void*>(&refuseValue));
        EXPECT_FALSE(saveColumnLayout(scene.list, L"Lists", L"test", nullptr));
    }
    EXPECT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", nullptr));
}

TEST(ListLayout, WithoutSavedLayoutNothingChanges)
{
    const TemporaryProfile profile;
    ListScene scene;
    addColumns(scene, {L"a", L"b"});
    EXPECT_FALSE(restoreColumnLayout(scene.list, L"Lists", L"test", nullptr));
    EXPECT_EQ(orderOf(scene.list), (std::vector<int>{0, 1}));
    EXPECT_TRUE(saveColumnLayout(scene.list, L"Lists", L"test", nullptr));
    EXPECT_TRUE(restoreColumnLayout(scene.list, L"Lists", L"test", nullptr));
    EXPECT_EQ(orderOf(scene.list), (std::vector<int>{0, 1}));
}
