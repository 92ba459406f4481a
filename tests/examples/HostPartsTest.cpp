// What the library has for every host to begin with: pages on tabs, tables of columns and of buttons,
// settings in the profile, GDI+, images of files.
#include "HostParts.h"

#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovoui/ovoui.h>

#include <testkit/Clipboard.h>
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

#include <afxole.h>

#include <limits>

using namespace ovo::testkit;

// Settings

namespace
{

struct Values
{
    CString text = L"oak";
    int number = 7;
    COLORREF colour = RGB(1, 2, 3);
    bool flag = true;
    double share = 0.25;

    void exchange(bool saving)
    {
        const ProfileExchange entry(L"Values", saving);
        entry(L"Text", text);
        entry(L"Number", number);
        entry(L"Colour", colour);
        entry(L"Flag", flag);
        entry(L"Share", share);
    }

    bool operator==(const Values&) const = default;
};

} // namespace

TEST(ProfileExchange, BringsBackWhatWasSaved)
{
    const TemporaryProfile profile;
    Values saved{L"ash, Größe", -3, 0xFFFFFFFF, false, 0.1 + 0.2};
    saved.exchange(true);
    Values read;
    read.exchange(false);
    EXPECT_EQ(read, saved);
}

TEST(ProfileExchange, KeepsTheLeastAndTheLargestNumber)
{
    const TemporaryProfile profile;
    for (const double number : {std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::max(),
                                -std::numeric_limits<double>::max(), -0.0}) {
        Values saved;
        saved.share = number;
        saved.exchange(true);
        Values read;
        read.exchange(false);
        EXPECT_EQ(read.share, number);
    }
}

TEST(ProfileExchange, LeavesWhatIsMissing)
{
    const TemporaryProfile profile;
    Values read;
    read.exchange(false);
    EXPECT_EQ(read, Values());
}

TEST(ProfileExchange, LeavesANumberThatIsNone)
{
    const TemporaryProfile profile;
    for (const wchar_t* text : {L"", L"much", L"1,5", L"1.5 cm", L" 1.5", L"inf", L"nan", L"1e999", L"\x0661",
                                L"\x0131"}) { // whose last byte is that of "1"
        AfxGetApp()->WriteProfileString(L"Values", L"Share", text);
        Values read;
        read.exchange(false);
        EXPECT_EQ(read.share, 0.25) << getMBS(text);
    }
}

// Steps back and forward

TEST(UndoHistory, GoesBackAndForward)
{
    UndoHistory<std::string> history("a");
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    history.keep("b");
    history.keep("c");
    history.undo();
    EXPECT_EQ(history.present(), "b");
    history.undo();
    history.undo();
    EXPECT_EQ(history.present(), "a") << "there is nothing before the first";
    history.redo();
    EXPECT_EQ(history.present(), "b");
    EXPECT_TRUE(history.canUndo() && history.canRedo());
    history.redo();
    history.redo();
    EXPECT_EQ(history.present(), "c") << "nor behind the last";
}

TEST(UndoHistory, ForgetsWhatWasUndoneWithTheNextStep)
{
    UndoHistory<std::string> history("a");
    history.keep("b");
    history.keep("c");
    history.undo();
    history.undo();
    history.keep("d");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.present(), "d");
    history.undo();
    EXPECT_EQ(history.present(), "a");
}

TEST(UndoHistory, TakesAStateOutOfItself)
{
    UndoHistory<std::string> history(std::string(100, 'x'));
    for (int i = 0; i < 20; ++i)
        history.keep(history.present());
    EXPECT_EQ(history.present(), std::string(100, 'x'));
}

// A control in place of another

namespace
{

class Form : public RecordingParent
{
public:
    Form()
    {
        m_before.Create(L"before", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 10), this, 1);
        m_place.Create(L"Angle", WS_CHILD | WS_TABSTOP | WS_DISABLED, CRect(30, 40, 90, 100), this, 2);
        m_behind.Create(L"behind", WS_CHILD | WS_VISIBLE, CRect(0, 20, 20, 30), this, 3);
    }

private:
    CButton m_before;
    CStatic m_place;
    CButton m_behind;
};

struct Refused : CWnd
{
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) { return FALSE; }
};

} // namespace

TEST(InPlace, TakesOverAllOfThePlaceholder)
{
    Form form;
    const HWND placeholder = ::GetDlgItem(form.m_hWnd, 2);
    CDialSlider dial;
    ASSERT_TRUE(createInPlace(dial, form, 2));
    EXPECT_FALSE(::IsWindow(placeholder));
    EXPECT_EQ(::GetDlgItem(form.m_hWnd, 2), dial.m_hWnd);
    CRect rect;
    dial.GetWindowRect(&rect);
    form.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 90, 100));
    EXPECT_EQ(dial.GetStyle() & (WS_TABSTOP | WS_DISABLED | WS_VISIBLE | WS_GROUP),
              static_cast<DWORD>(WS_TABSTOP | WS_DISABLED));
    CString text;
    dial.GetWindowText(text);
    EXPECT_EQ(text, L"Angle");
    EXPECT_EQ(::GetWindow(dial.m_hWnd, GW_HWNDPREV), ::GetDlgItem(form.m_hWnd, 1)) << "the order in Tab";
    EXPECT_EQ(::GetWindow(dial.m_hWnd, GW_HWNDNEXT), ::GetDlgItem(form.m_hWnd, 3));
}

TEST(InPlace, LeavesThePlaceholderWhenItCannotBeReplaced)
{
    Form form;
    const HWND placeholder = ::GetDlgItem(form.m_hWnd, 2);
    Refused refused;
    EXPECT_FALSE(createInPlace(refused, form, 2));
    EXPECT_EQ(::GetDlgItem(form.m_hWnd, 2), placeholder);
    CDialSlider dial;
    EXPECT_FALSE(createInPlace(dial, form, 77));
    EXPECT_EQ(dial.m_hWnd, nullptr);
}

// Pages

namespace
{

class TabScene : public ::testing::Test
{
protected:
    TabScene()
    {
        m_tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 390, 290), &m_parent, 1);
        first.AddTo(m_tabs, IDD_HOST_PAGE, L"First");
        second.AddTo(m_tabs, IDD_HOST_PAGE, L"Second");
        present(m_parent);
    }

    void choose(int tab)
    {
        m_tabs.SetCurSel(tab);
        CShadedTabPage::ShowChosen(m_tabs);
    }

    RecordingParent m_parent{CSize(400, 300)};
    CShadedTabCtrl m_tabs;
    CShadedTabPage first, second;
};

} // namespace

TEST_F(TabScene, ShowsThePageOfTheChosenTab)
{
    EXPECT_EQ(m_tabs.GetItemCount(), 2);
    EXPECT_TRUE(first.IsWindowVisible());
    EXPECT_FALSE(second.IsWindowVisible());
    choose(1);
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_TRUE(second.IsWindowVisible());
}

TEST_F(TabScene, GivesTheFocusOfAPageToTheOneThatIsShown)
{
    first.GetDlgItem(IDC_HOST_EDIT)->SetFocus();
    choose(1);
    EXPECT_EQ(::GetFocus(), second.GetDlgItem(IDC_HOST_EDIT)->m_hWnd);
    choose(0);
    EXPECT_EQ(::GetFocus(), first.GetDlgItem(IDC_HOST_EDIT)->m_hWnd);
    m_tabs.InsertItem(2, L"Plain");
    choose(2);
    EXPECT_EQ(::GetFocus(), m_tabs.m_hWnd) << "there is no page";
}

TEST_F(TabScene, LeavesTheFocusWhereItIsOutsideOfThePages)
{
    m_tabs.SetFocus();
    choose(1);
    EXPECT_EQ(::GetFocus(), m_tabs.m_hWnd);
}

TEST_F(TabScene, FillsTheAreaBelowTheTabs)
{
    CRect area;
    m_tabs.GetClientRect(&area);
    m_tabs.AdjustRect(FALSE, &area);
    for (CWnd* const page : {static_cast<CWnd*>(&first), static_cast<CWnd*>(&second)}) {
        CRect place;
        page->GetWindowRect(&place);
        m_tabs.ScreenToClient(&place);
        EXPECT_EQ(place, area);
    }
}

TEST_F(TabScene, LeavesEnterAndEscapeToTheDialogAround)
{
    first.SendMessage(WM_COMMAND, IDOK);
    first.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_TRUE(first.m_hWnd && first.IsWindowVisible());
}

TEST_F(TabScene, LetsTheShadeThrough)
{
    HBRUSH shade = nullptr;
    CPoint origin;
    const bool isShaded = CShadedTabCtrl::GetBackgroundBrush(&first, shade, origin);
    CClientDC dc(first.GetDlgItem(IDC_HOST_LABEL));
    const auto brush = reinterpret_cast<HBRUSH>(
        first.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                          reinterpret_cast<LPARAM>(first.GetDlgItem(IDC_HOST_LABEL)->m_hWnd)));
    EXPECT_EQ(brush, isShaded ? shade : ::GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(isShaded, CThemeData::getThemeData().IsAppThemed() != FALSE);
}

TEST_F(TabScene, AddsNoTabWithoutAPage)
{
    CShadedTabPage none;
    EXPECT_FALSE(none.AddTo(m_tabs, 9999, L"None"));
    EXPECT_EQ(m_tabs.GetItemCount(), 2);
}

TEST_F(TabScene, MakesNoPageWithoutATab)
{
    class FullTabs : public CTabCtrl
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == TCM_INSERTITEMW ? -1 : CTabCtrl::WindowProc(message, wParam, lParam);
        }
    } full;
    full.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 390, 290), &m_parent, 2);
    CShadedTabPage page;
    EXPECT_FALSE(page.AddTo(full, IDD_HOST_PAGE, L"Page"));
    EXPECT_EQ(page.m_hWnd, nullptr);
    EXPECT_EQ(full.GetItemCount(), 0);
}

TEST_F(TabScene, LeavesTabsAloneThatHaveNoPage)
{
    m_tabs.InsertItem(2, L"Plain");
    choose(2);
    EXPECT_FALSE(first.IsWindowVisible() || second.IsWindowVisible());
    second.DestroyWindow();
    choose(1);
    choose(0);
    EXPECT_TRUE(first.IsWindowVisible());
}

// Columns

TEST(ListColumns, AreAddedAsTheTableSays)
{
    RecordingParent parent;
    COVOListCtrlEx list;
    list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 200), &parent, 1);
    ASSERT_TRUE(addColumns(list, {{.heading = L"Name", .sample = L"A name of the usual length"},
                                  {.heading = L"A long heading", .sample = L"1", .format = LVCFMT_RIGHT}}));
    ASSERT_TRUE(addColumns(list, {{.heading = L"Last", .sample = L"", .format = LVCFMT_CENTER}}));
    ASSERT_EQ(list.GetHeaderCtrl()->GetItemCount(), 3) << "the second table goes behind the first";
    const wchar_t* const headings[] = {L"Name", L"A long heading", L"Last"};
    const int formats[] = {LVCFMT_LEFT, LVCFMT_RIGHT, LVCFMT_CENTER};
    for (int i = 0; i < 3; ++i) {
        wchar_t heading[50]{};
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
        column.pszText = heading;
        column.cchTextMax = static_cast<int>(std::size(heading));
        ASSERT_TRUE(list.GetColumn(i, &column));
        EXPECT_STREQ(heading, headings[i]);
        EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, formats[i]);
        EXPECT_EQ(column.iSubItem, i);
    }
    EXPECT_GT(list.GetColumnWidth(0), list.GetStringWidth(L"A name of the usual length"));
    EXPECT_GT(list.GetColumnWidth(1), list.GetStringWidth(L"A long heading")) << "the heading is longer";
}

TEST(ListColumns, SaysWhenTheListRefuses)
{
    RecordingParent parent;
    COVOListCtrlEx list;
    list.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 1);
    EXPECT_TRUE(addColumns(list, {}));
    const WNDPROC refusing = [](HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        return message == LVM_INSERTCOLUMNW ? -1 : ::DefWindowProcW(wnd, message, wParam, lParam);
    };
    const LONG_PTR own = ::SetWindowLongPtrW(list.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(refusing));
    EXPECT_FALSE(addColumns(list, {{.heading = L"Name", .sample = L""}}));
    ::SetWindowLongPtrW(list.m_hWnd, GWLP_WNDPROC, own);
}

// Buttons

namespace
{

class BarScene : public ::testing::Test
{
protected:
    BarScene() { m_bar.CreateEx(&m_parent); }

    bool setTable() { return setCommands(m_bar, kTable, kStrips, 16); }

    std::vector<int> flyout(int button)
    {
        std::vector<int> commands;
        m_bar.GetBarCommands(button, commands);
        return commands;
    }

    const std::vector<CVantorToolBar::Strip> kStrips = {
        {IDB_FILES_16, 16}, {IDB_FILES_24, 24}, {IDB_FILES_32, 32}};
    const std::vector<ToolBarEntry> kTable = {
        {101, 3}, {}, {102, 5, {{102, 5}, {0, 0}, {103, 9}}}, {104, 10}};
    RecordingParent m_parent;
    CVantorToolBar m_bar;
};

} // namespace

TEST_F(BarScene, HasTheButtonsOfTheTable)
{
    ASSERT_TRUE(setTable());
    ASSERT_EQ(m_bar.GetToolBarCtrl().GetButtonCount(), 4);
    const UINT commands[] = {101, ID_SEPARATOR, 102, 104};
    const int images[] = {3, 0, 5, 10};
    for (int i = 0; i < 4; ++i) {
        UINT id = 0, style = 0;
        int image = 0;
        m_bar.GetButtonInfo(i, id, style, image);
        EXPECT_EQ(id, commands[i]);
        EXPECT_TRUE(i == 1 || image == images[i]) << image;
        EXPECT_EQ((style & TBBS_SEPARATOR) != 0, i == 1);
    }
    EXPECT_EQ(flyout(2), (std::vector{102, 0, 103}));
    for (const int plain : {0, 1, 3})
        EXPECT_FALSE(m_bar.HasFlyout(plain)) << plain;
    CImageList* const images16 = m_bar.GetToolBarCtrl().GetImageList();
    ASSERT_NE(images16, nullptr);
    EXPECT_EQ(images16->GetImageCount(), 11);
}

TEST_F(BarScene, TakesAnotherTableInPlaceOfTheFirst)
{
    setTable();
    const std::vector<ToolBarEntry> other = {{201, 0}, {202, 1}, {203, 2}};
    ASSERT_TRUE(setCommands(m_bar, other, kStrips, 16));
    EXPECT_EQ(m_bar.GetToolBarCtrl().GetButtonCount(), 3);
    EXPECT_FALSE(m_bar.HasFlyout(2)) << "the flyouts go with their buttons";
    EXPECT_EQ(m_bar.GetItemID(0), 201u);
}

TEST_F(BarScene, SaysWhenTheBarRefusesTheButtons)
{
    const WNDPROC refusing = [](HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        return message == TB_INSERTBUTTON ? FALSE : ::DefWindowProcW(wnd, message, wParam, lParam);
    };
    const LONG_PTR own =
        ::SetWindowLongPtrW(m_bar.m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(refusing));
    EXPECT_FALSE(setTable());
    ::SetWindowLongPtrW(m_bar.m_hWnd, GWLP_WNDPROC, own);
}

// The system's images, GDI+, the clipboard

TEST(ShellImages, TellFoldersFromFiles)
{
    CImageList* const images = shellImages();
    ASSERT_NE(images, nullptr);
    const int file = shellImage(L"notes.txt");
    const int folder = shellImage(L"beds", FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_NE(file, folder);
    EXPECT_EQ(shellImage(L"another.txt"), file) << "the kind decides, and the file need not be there";
    for (const int image : {file, folder, shellImage(L"beds", FILE_ATTRIBUTE_DIRECTORY, true)}) {
        EXPECT_GE(image, 0);
        EXPECT_LT(image, images->GetImageCount());
    }
}

TEST(ShellImages, AreTheFirstOneWhereTheShellHasNoneAndOpenWhereThatIsWanted)
{
    static UINT s_flags;
    const ImportPatch patch(
        L"ovoui.dll", "SHGetFileInfoW",
        reinterpret_cast<void*>(+[](LPCWSTR, DWORD, SHFILEINFOW* info, UINT, UINT flags) -> DWORD_PTR {
            s_flags = flags;
            info->iIcon = 7;
            return 0;
        }));
    EXPECT_EQ(shellImage(L"beds", FILE_ATTRIBUTE_DIRECTORY), 0);
    const UINT closed = s_flags;
    EXPECT_FALSE(closed & SHGFI_OPENICON);
    EXPECT_TRUE(closed & SHGFI_USEFILEATTRIBUTES);
    EXPECT_EQ(shellImage(L"beds", FILE_ATTRIBUTE_DIRECTORY, true), 0);
    EXPECT_EQ(s_flags, closed | SHGFI_OPENICON);
}

TEST(GdiPlusSession, EndsWhatItHasBegun)
{
    static int s_ended;
    s_ended = 0;
    const ImportPatch patch(L"ovoui.dll", "GdiplusShutdown", reinterpret_cast<void*>(+[](ULONG_PTR token) {
                                ++s_ended;
                                Gdiplus::GdiplusShutdown(token);
                            }));
    {
        const CGdiPlusSession session;
        ASSERT_TRUE(session.IsStarted());
    }
    EXPECT_EQ(s_ended, 1);
}

TEST(GdiPlusSession, StartsBesideAnother)
{
    const CGdiPlusSession outer;
    {
        const CGdiPlusSession inner;
        EXPECT_TRUE(inner.IsStarted());
    }
    EXPECT_TRUE(outer.IsStarted());
    CAlphaImageList images;
    images.Create(16, 16, 11);
    EXPECT_GE(images.AddBitmap(IDB_FILES_16, false, -1, CSize(16, 16), CSize(16, 16), nullptr, nullptr), 0)
        << "the inner one's end leaves the outer one";
}

TEST(PlainText, NeedsOleAndSaysSo)
{
    AfxOleTerm();
    DWORD code = 0;
    try {
        copyPlaintext(L"leaf");
    } catch (const WinError& error) {
        code = error.code();
    }
    ASSERT_TRUE(AfxOleInit());
    EXPECT_EQ(code, static_cast<DWORD>(CO_E_NOTINITIALIZED));
}

TEST(PlainText, GoesOntoTheClipboard)
{
    emptyClipboard();
    copyPlaintext(L"Größe\r\n");
    EXPECT_EQ(clipboardText(), L"Größe\r\n");
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_TEXT));
    ::OleFlushClipboard();
    emptyClipboard();
}
