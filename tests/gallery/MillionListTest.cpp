#include "GalleryScene.h"

#include "model/MillionList.h"
#include "resource.h"

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovo::testkit;

namespace
{

/// Which row of the list of a million rows has a part of a text, from the first row on.
int found(const wchar_t* part)
{
    GalleryScene scene;
    scene.open(L"lists");
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_STRING | LVFI_PARTIAL;
    wanted.psz = part;
    return static_cast<int>(::SendMessageW(scene.control(IDC_LISTS_MILLION), LVM_FINDITEMW,
                                           static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&wanted)));
}

} // namespace

TEST(MillionRows, AreFoundByAPartOfTheirTexts)
{
    EXPECT_EQ(found(L"row 1234"), 1233);
    EXPECT_EQ(found(L"W 5"), 4) << "whatever the case";
    EXPECT_EQ(found(L"998001"), 998) << "the square, before the number of a row";
    EXPECT_EQ(found(L"1000000000000"), MillionList::kRows - 1) << "the last row";
}

TEST(MillionRows, WithATextThatNoneHasAreNotFound)
{
    EXPECT_EQ(found(L"column"), -1);
    EXPECT_EQ(found(L"\u0663"), -1);
}

/// Under Wine a list sends two notifications for each row that it deselects.
TEST(Journal, TellsOfManyNotificationsAtOnceInALine)
{
    GalleryScene scene;
    scene.open(L"lists");
    auto& journal = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
    GuiThread::settle();
    journal.ResetContent();
    const NMHDR told{scene.control(IDC_LISTS_MILLION), IDC_LISTS_MILLION, static_cast<UINT>(LVN_ITEMCHANGED)};
    for (int i = 0; i < 1000; ++i)
        scene.page().SendMessage(WM_NOTIFY, told.idFrom, reinterpret_cast<LPARAM>(&told));
    EXPECT_EQ(journal.GetCount(), 100);
    GuiThread::settle();
    EXPECT_EQ(journal.GetCount(), 101);
    EXPECT_EQ(journal.FindStringExact(-1, L"and 900 more at once"), 100);
    scene.page().SendMessage(WM_NOTIFY, told.idFrom, reinterpret_cast<LPARAM>(&told));
    EXPECT_EQ(journal.GetCount(), 102) << "the next one is told again";
}

TEST(Journal, LongLinesAreReachedWithItsScrollBar)
{
    GalleryScene scene;
    auto& journal = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
    scene.frame().logLine(L"short");
    EXPECT_FALSE(journal.GetStyle() & WS_HSCROLL);
    const std::wstring line(400, L'W');
    scene.frame().logLine(line);
    journal.UpdateWindow();
    CClientDC dc(&journal);
    CFont* const old = dc.SelectObject(journal.GetFont());
    const int width = dc.GetTextExtent(line.c_str()).cx;
    dc.SelectObject(old);
    CRect client;
    journal.GetClientRect(&client);
    ASSERT_GT(width, client.Width());
    ASSERT_TRUE(journal.GetStyle() & WS_HSCROLL);
    journal.SendMessage(WM_HSCROLL, SB_RIGHT);
    EXPECT_GE(journal.GetScrollPos(SB_HORZ) + client.Width(), width);
    scene.frame().SendMessage(WM_COMMAND, ID_LOG_CLEAR);
    EXPECT_FALSE(journal.GetStyle() & WS_HSCROLL) << "nothing is long any more";
}

TEST(Journal, KeepsItsLastLines)
{
    constexpr int kLines = 2000;
    GalleryScene scene;
    auto& journal = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
    const auto textOf = [&](int line) {
        CString text;
        journal.GetText(line, text);
        return text;
    };
    for (int line = 0; line < 60; ++line)
        scene.frame().logLine(L"line " + std::to_wstring(line));
    EXPECT_EQ(journal.GetCount(), 60);
    for (int line = 60; line < kLines + 50; ++line)
        scene.frame().logLine(L"line " + std::to_wstring(line));
    EXPECT_EQ(journal.GetCount(), kLines);
    EXPECT_EQ(textOf(0), L"line 50") << "the oldest went";
    EXPECT_EQ(textOf(kLines - 1), L"line 2049");
    for (int line = 0; line < 2 * kLines; ++line)
        scene.frame().logLine(L"then " + std::to_wstring(line));
    EXPECT_EQ(textOf(0), L"then 2000") << "more at once than it keeps";
    EXPECT_EQ(journal.GetCount(), kLines);
}

TEST(Journal, ShowsItsLastLineWhenItIsPainted)
{
    GalleryScene scene;
    auto& journal = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
    for (int line = 0; line < 100; ++line)
        scene.frame().logLine(L"line " + std::to_wstring(line));
    ASSERT_TRUE(::GetUpdateRect(journal, nullptr, FALSE)) << "due to be painted";
    journal.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(journal, nullptr, FALSE));
    CRect last;
    CRect client;
    journal.GetItemRect(99, &last);
    journal.GetClientRect(&client);
    EXPECT_TRUE(CRect().IntersectRect(&last, &client));
}

TEST(Journal, IsClearedOfWhatItHasNotShownYet)
{
    GalleryScene scene;
    auto& journal = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
    const auto canBeCleared = [&] {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, ID_LOG_CLEAR, L"");
        CCmdUI ui;
        ui.m_nID = ID_LOG_CLEAR;
        ui.m_pMenu = &menu;
        ui.DoUpdate(&scene.frame(), FALSE);
        return !(menu.GetMenuState(ID_LOG_CLEAR, MF_BYCOMMAND) & MF_GRAYED);
    };
    scene.frame().SendMessage(WM_COMMAND, ID_LOG_CLEAR);
    EXPECT_FALSE(canBeCleared());
    scene.frame().logLine(L"a line");
    EXPECT_TRUE(canBeCleared());
    scene.frame().SendMessage(WM_COMMAND, ID_LOG_CLEAR);
    EXPECT_FALSE(canBeCleared());
    EXPECT_EQ(journal.GetCount(), 0);
}
