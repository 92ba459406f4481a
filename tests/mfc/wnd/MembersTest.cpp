// Members that do more than the window function of their name.
#include "Windows.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

/// Scrolls by a control beside it.
class Scrolled : public Hidden<>
{
public:
    CScrollBar* bar = nullptr;
    CScrollBar* GetScrollBarCtrl(int kind) const override { return kind == SB_VERT ? bar : nullptr; }
};

class DialogItems : public ::testing::Test
{
protected:
    DialogItems()
    {
        wnd.create();
        edit = plainControl(wnd, L"EDIT", 10);
        for (int id = 20; id < 23; ++id)
            plainControl(wnd, L"BUTTON", id, BS_AUTORADIOBUTTON);
    }

    Hidden<> wnd;
    HWND edit;
};

} // namespace

TEST_F(DialogItems, HaveTexts)
{
    wnd.SetDlgItemText(10, L"oak");
    wchar_t buffer[3]{};
    EXPECT_EQ(wnd.GetDlgItemText(10, buffer, 3), 2);
    EXPECT_STREQ(buffer, L"oa");
    CString text(L"before");
    EXPECT_EQ(wnd.GetDlgItemText(10, text), 3);
    EXPECT_STREQ(text, L"oak");
    EXPECT_EQ(wnd.GetDlgItemText(11, text), 0) << "no such item";
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(DialogItems, HaveNumbers)
{
    wnd.SetDlgItemInt(10, static_cast<UINT>(-42));
    BOOL translated = FALSE;
    EXPECT_EQ(static_cast<int>(wnd.GetDlgItemInt(10, &translated)), -42);
    EXPECT_TRUE(translated);
    wnd.SetDlgItemInt(10, 3000000000u, FALSE);
    EXPECT_EQ(wnd.GetDlgItemInt(10, &translated, FALSE), 3000000000u);
    wnd.SetDlgItemText(10, L"oak");
    EXPECT_EQ(wnd.GetDlgItemInt(10, &translated), 0u);
    EXPECT_FALSE(translated);
}

TEST_F(DialogItems, AreChecked)
{
    EXPECT_EQ(wnd.GetCheckedRadioButton(20, 22), 0);
    wnd.CheckRadioButton(20, 22, 21);
    EXPECT_EQ(wnd.GetCheckedRadioButton(20, 22), 21);
    EXPECT_EQ(wnd.IsDlgButtonChecked(20), static_cast<UINT>(BST_UNCHECKED));
    wnd.CheckDlgButton(20, BST_CHECKED);
    EXPECT_EQ(wnd.IsDlgButtonChecked(20), static_cast<UINT>(BST_CHECKED));
}

TEST(WindowText, OfAnyLengthIsRead)
{
    Hidden<> wnd;
    wnd.create();
    const CString longText(L'x', 5000);
    wnd.SetWindowText(longText);
    CString text;
    wnd.GetWindowText(text);
    EXPECT_EQ(text, longText);
    EXPECT_EQ(wnd.GetWindowTextLength(), 5000);
    wnd.SetWindowText(L"");
    wnd.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ScrollBars, OfTheWindowItself)
{
    Hidden<> wnd;
    wnd.create(WS_POPUP | WS_VSCROLL | WS_HSCROLL);
    wnd.SetScrollRange(SB_VERT, 0, 99);
    SCROLLINFO info{};
    info.fMask = SIF_PAGE | SIF_POS;
    info.nPage = 10;
    info.nPos = 42;
    EXPECT_TRUE(wnd.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(wnd.GetScrollPos(SB_VERT), 42);
    EXPECT_EQ(wnd.GetScrollLimit(SB_VERT), 90) << "the last page stays in view";
    int min = -1;
    int max = -1;
    wnd.GetScrollRange(SB_VERT, &min, &max);
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 99);
    EXPECT_EQ(wnd.SetScrollPos(SB_VERT, 50), 42);
    SCROLLINFO read{};
    EXPECT_TRUE(wnd.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(read.nPos, 50);
    EXPECT_EQ(read.nPage, 10u);
    wnd.ShowScrollBar(SB_BOTH, FALSE);
    EXPECT_FALSE(wnd.GetStyle() & (WS_VSCROLL | WS_HSCROLL));
}

TEST(ScrollBars, BesideTheWindowTakeItsPlace)
{
    Hidden<> parent;
    parent.create();
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 16, 100), &parent, 3));
    Scrolled wnd;
    wnd.createChild(parent, 4);
    wnd.bar = &bar;
    wnd.SetScrollRange(SB_VERT, 0, 50);
    wnd.SetScrollPos(SB_VERT, 17);
    EXPECT_EQ(bar.GetScrollPos(), 17);
    EXPECT_EQ(wnd.GetScrollPos(SB_VERT), 17);
    EXPECT_EQ(wnd.GetScrollLimit(SB_VERT), 50);
    EXPECT_EQ(::GetScrollPos(wnd, SB_VERT), 0) << "its own is left alone";
    wnd.EnableScrollBarCtrl(SB_VERT, FALSE);
    EXPECT_FALSE(bar.IsWindowEnabled());
    wnd.ShowScrollBar(SB_VERT, FALSE);
    EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
    bar.DestroyWindow();
}

TEST(Fonts, AreSetAndFound)
{
    Hidden<> parent;
    parent.create();
    Hidden<CEdit> edit;
    edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 3);
    CFont font;
    font.CreatePointFont(120, L"Arial");
    edit.SetFont(&font);
    EXPECT_EQ(edit.GetFont(), &font);
    edit.SetFont(nullptr);
    EXPECT_EQ(edit.GetFont(), nullptr);
}

TEST(Menus, AreSetAndFound)
{
    Hidden<> wnd;
    wnd.create(WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(wnd.GetMenu(), nullptr);
    CMenu menu;
    menu.CreateMenu();
    EXPECT_TRUE(wnd.SetMenu(&menu));
    EXPECT_EQ(wnd.GetMenu(), &menu);
    EXPECT_TRUE(wnd.SetMenu(nullptr));
    EXPECT_NE(wnd.GetSystemMenu(FALSE), nullptr);
}

TEST(Painting, DeviceContextsComeAndGo)
{
    Hidden<> wnd;
    wnd.create();
    CDC* dc = wnd.GetDC();
    ASSERT_NE(dc, nullptr);
    EXPECT_EQ(dc->GetWindow(), &wnd);
    EXPECT_EQ(wnd.ReleaseDC(dc), 1);
    CDC* whole = wnd.GetWindowDC();
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(wnd.ReleaseDC(whole), 1);
}

TEST(Painting, UpdateRegionsAreAddedAndTakenAway)
{
    Hidden<> wnd;
    wnd.create();
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    wnd.RedrawWindow();
    wnd.ValidateRect(nullptr);
    CRgn region;
    region.CreateRectRgn(10, 10, 30, 30);
    wnd.InvalidateRgn(&region);
    CRect update;
    EXPECT_TRUE(wnd.GetUpdateRect(&update));
    EXPECT_EQ(update, CRect(10, 10, 30, 30));
    CRgn half;
    half.CreateRectRgn(10, 10, 20, 30);
    wnd.ValidateRgn(&half);
    CRgn rest;
    rest.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(wnd.GetUpdateRgn(&rest), SIMPLEREGION);
    EXPECT_TRUE(wnd.GetUpdateRect(&update));
    EXPECT_EQ(update, CRect(20, 10, 30, 30));
    wnd.ValidateRgn(nullptr);
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    wnd.ShowWindow(SW_HIDE);
}

TEST(Caret, IsShownWhereItIsPut)
{
    Hidden<> wnd;
    wnd.create();
    wnd.CreateSolidCaret(2, 12);
    CWnd::SetCaretPos(CPoint(14, 15));
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(14, 15));
    wnd.ShowCaret();
    wnd.HideCaret();
    CBitmap picture;
    picture.CreateBitmap(8, 8, 1, 1, nullptr);
    wnd.CreateCaret(&picture);
    ::DestroyCaret();
}

TEST(Clipboard, IsOpenedForTheWindow)
{
    Hidden<> wnd;
    wnd.create();
    ASSERT_TRUE(wnd.OpenClipboard());
    EXPECT_EQ(CWnd::GetOpenClipboardWindow(), &wnd);
    ::EmptyClipboard();
    ::CloseClipboard();
    EXPECT_EQ(CWnd::GetClipboardOwner(), &wnd);
}

TEST(Structures, NeedNoSizeFilledIn)
{
    Hidden<> wnd;
    wnd.create(WS_OVERLAPPEDWINDOW);
    WINDOWINFO info;
    EXPECT_TRUE(wnd.GetWindowInfo(&info));
    EXPECT_EQ(info.dwStyle, wnd.GetStyle());
    TITLEBARINFO title;
    EXPECT_TRUE(wnd.GetTitleBarInfo(&title));
    SCROLLBARINFO bar;
    wnd.GetScrollBarInfo(static_cast<LONG>(OBJID_VSCROLL), &bar);
    EXPECT_EQ(bar.cbSize, sizeof bar);
}

TEST(Help, GoesToTheProgram)
{
    Hidden<> wnd;
    wnd.create();
    wnd.HtmlHelp(77, 5);
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].data, 77u);
    EXPECT_EQ(TestApp::instance().helps()[0].command, 5u);
}

TEST(Help, HasANumberForEachWindow)
{
    Hidden<> wnd;
    wnd.create();
    EXPECT_EQ(wnd.GetWindowContextHelpId(), 0u);
    EXPECT_TRUE(wnd.SetWindowContextHelpId(4711));
    EXPECT_EQ(wnd.GetWindowContextHelpId(), 4711u);
}

TEST(ModalState, DisablesAndEnables)
{
    Hidden<> wnd;
    wnd.create();
    wnd.BeginModalState();
    EXPECT_FALSE(wnd.IsWindowEnabled());
    wnd.EndModalState();
    EXPECT_TRUE(wnd.IsWindowEnabled());
}

TEST(Capture, IsTakenAndGivenBack)
{
    Hidden<> first;
    first.create();
    Hidden<> second;
    second.create();
    EXPECT_EQ(first.SetCapture(), nullptr);
    EXPECT_EQ(CWnd::GetCapture(), &first);
    EXPECT_EQ(second.SetCapture(), &first);
    ::ReleaseCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}
