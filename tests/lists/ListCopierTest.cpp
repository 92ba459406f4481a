// Selected rows on the clipboard.
#include "ListScene.h"

#include <testkit/ImportPatch.h>

#include <ovoui/lists/ListCopier.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Empty when the clipboard has nothing in this format.
std::string clipboardBytes(UINT format)
{
    std::string bytes;
    EXPECT_TRUE(::OpenClipboard(nullptr));
    if (const HANDLE data = ::GetClipboardData(format)) {
        bytes.assign(static_cast<const char*>(::GlobalLock(data)), ::GlobalSize(data));
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return bytes;
}

std::wstring clipboardText()
{
    const std::string bytes = clipboardBytes(CF_UNICODETEXT);
    return bytes.empty() ? std::wstring() : std::wstring(reinterpret_cast<const wchar_t*>(bytes.data()));
}

class ListCopying : public ::testing::Test
{
protected:
    ListCopying()
    {
        scene.fill({60, 60, 60}, 4);
        ::OpenClipboard(scene.parent);
        ::EmptyClipboard();
        ::CloseClipboard();
    }

    void select(std::initializer_list<int> rows)
    {
        for (const int row : rows)
            scene.list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }

    ListScene scene;
};

} // namespace

TEST_F(ListCopying, SelectedRowsAsTextAndHtml)
{
    select({1, 3});
    EXPECT_TRUE(copySelectedRows(scene.list, false));
    EXPECT_EQ(clipboardText(), L"1.0\t1.1\t1.2\r\n3.0\t3.1\t3.2\r\n");
    const std::string html = clipboardBytes(::RegisterClipboardFormatW(L"HTML Format"));
    EXPECT_NE(html.find("<tr><td>1.0</td><td>1.1</td><td>1.2</td></tr>"), std::string::npos);
}

TEST_F(ListCopying, HtmlIsInUtf8AndHasItsHeadings)
{
    scene.list.SetItemText(1, 1, L"\u00C4pfel \u6F22");
    select({1});
    EXPECT_TRUE(copySelectedRows(scene.list, true));
    const std::string html = clipboardBytes(::RegisterClipboardFormatW(L"HTML Format"));
    EXPECT_NE(html.find("<tr><th>c</th><th>c</th><th>c</th></tr>"), std::string::npos);
    EXPECT_NE(html.find("<td>1.0</td><td>\xC3\x84pfel \xE6\xBC\xA2</td><td>1.2</td>"), std::string::npos);
}

namespace
{

BOOL WINAPI refuseClipboard(HWND)
{
    return FALSE;
}

} // namespace

TEST_F(ListCopying, AClipboardThatAnotherProgramHasOpenKeepsWhatItHas)
{
    select({0});
    ASSERT_TRUE(copySelectedRows(scene.list, false));
    select({1});
    {
        const ImportPatch patch(L"ovoui.dll", "OpenClipboard", reinterpret_cast<void*>(&refuseClipboard));
        EXPECT_FALSE(copySelectedRows(scene.list, false));
    }
    EXPECT_EQ(clipboardText(), L"0.0\t0.1\t0.2\r\n");
}

TEST_F(ListCopying, ColumnsInTheOrderInWhichTheyAreShown)
{
    int order[] = {2, 0, 1};
    scene.list.SetColumnOrderArray(3, order);
    select({0});
    EXPECT_TRUE(copySelectedRows(scene.list, true));
    EXPECT_EQ(clipboardText(), L"c\tc\tc\r\n0.2\t0.0\t0.1\r\n");
}

TEST_F(ListCopying, WhatWasOnTheClipboardGoes)
{
    const UINT format = ::RegisterClipboardFormatW(L"A format of the test's");
    ASSERT_TRUE(::OpenClipboard(scene.parent));
    ::SetClipboardData(format, ::GlobalAlloc(GMEM_MOVEABLE, 4));
    ::CloseClipboard();
    ASSERT_TRUE(::IsClipboardFormatAvailable(format));
    select({1});
    EXPECT_TRUE(copySelectedRows(scene.list, false));
    EXPECT_FALSE(::IsClipboardFormatAvailable(format));
}

TEST_F(ListCopying, WithoutASelectionTheClipboardStays)
{
    select({0});
    ASSERT_TRUE(copySelectedRows(scene.list, false));
    scene.list.SetItemState(0, 0, LVIS_SELECTED);
    EXPECT_FALSE(copySelectedRows(scene.list, true));
    EXPECT_EQ(clipboardText(), L"0.0\t0.1\t0.2\r\n");
}

TEST_F(ListCopying, ByKeysInAListThatIsAttached)
{
    scene.show();
    scene.list.SetFocus();
    select({2});
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"") << "off unless asked for";
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"2.0\t2.1\t2.2\r\n");
    copier.Attach(scene.list, true);
    Robot().holding(VK_CONTROL).key(VK_INSERT);
    EXPECT_EQ(clipboardText(), L"c\tc\tc\r\n2.0\t2.1\t2.2\r\n");
}

TEST_F(ListCopying, OtherKeysCopyNothing)
{
    scene.show();
    scene.list.SetFocus();
    select({2});
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    Robot().key('C').key(VK_INSERT).holding(VK_CONTROL).key('D');
    Robot().holding(VK_CONTROL).holding(VK_SHIFT).key('C');
    Robot().holding(VK_CONTROL).holding(VK_SHIFT).key(VK_INSERT);
    EXPECT_EQ(clipboardText(), L"");
    copier.Detach();
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"");
}

TEST_F(ListCopying, AKeyAfterwardsCopiesNothing)
{
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    scene.show();
    scene.list.SetFocus();
    select({1});
    Robot().holding(VK_CONTROL).key('C');
    ASSERT_EQ(clipboardText(), L"1.0\t1.1\t1.2\r\n");
    select({3});
    Robot().key(VK_F2);
    EXPECT_EQ(clipboardText(), L"1.0\t1.1\t1.2\r\n");
}

TEST_F(ListCopying, RowsThatTheParentSelectsWhenItHearsOfTheKeyAreCopied)
{
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    scene.show();
    scene.list.SetFocus();
    select({1});
    scene.parent.answer(static_cast<UINT>(LVN_KEYDOWN), [&](NMHDR* header) -> LRESULT {
        if (reinterpret_cast<const NMLVKEYDOWN*>(header)->wVKey == 'C') {
            scene.list.SetItemState(1, 0, LVIS_SELECTED);
            scene.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
        }
        return 0;
    });
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"2.0\t2.1\t2.2\r\n");
}

TEST_F(ListCopying, ACopierThatIsDetachedAtTheKeyCopiesNothingNorLater)
{
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    scene.show();
    scene.list.SetFocus();
    select({1});
    scene.parent.answer(static_cast<UINT>(LVN_KEYDOWN), [&](NMHDR* header) -> LRESULT {
        if (reinterpret_cast<const NMLVKEYDOWN*>(header)->wVKey == 'C')
            copier.Detach();
        return 0;
    });
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"");
    copier.Attach(scene.list, false);
    Robot().key(VK_F2);
    EXPECT_EQ(clipboardText(), L"") << "the key of before is over";
}

TEST_F(ListCopying, TheListMayBeDestroyedBeforeTheCopier)
{
    scene.show();
    COVOListCopier copier;
    copier.Attach(scene.list, false);
    scene.list.DestroyWindow();
    ListScene other;
    other.fill({60}, 1);
    other.show();
    other.list.SetFocus();
    other.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    copier.Attach(other.list, false); // leaves the list of before, which is gone
    Robot().holding(VK_CONTROL).key('C');
    EXPECT_EQ(clipboardText(), L"0.0\r\n");
}

TEST_F(ListCopying, AListThatIsNoObjectOfTheHosts)
{
    const HWND plain = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_REPORT, 0, 0, 100, 100,
                                         scene.parent, nullptr, nullptr, nullptr);
    auto& lent = *static_cast<CListCtrl*>(CWnd::FromHandle(plain)); // as GetDlgItem gives it
    lent.InsertColumn(0, L"Name", LVCFMT_LEFT, 50);
    lent.InsertItem(0, L"plain");
    lent.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_TRUE(copySelectedRows(lent, true));
    EXPECT_EQ(clipboardText(), L"Name\r\nplain\r\n");
}
