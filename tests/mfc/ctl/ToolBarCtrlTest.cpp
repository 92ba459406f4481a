// Toolbars as controls.
#include "resource.h"

#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryProfile.h>

using namespace ovo::testkit;

namespace
{

TBBUTTON button(int id, BYTE style = TBSTYLE_BUTTON)
{
    TBBUTTON button{};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = id;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = style;
    button.iString = -1;
    return button;
}

/// Buttons 101, 102 (check), a separator and 103.
struct ToolBarCtrlTest : ::testing::Test
{
    ToolBarCtrlTest()
    {
        bar.Create(WS_CHILD | WS_VISIBLE | CCS_NODIVIDER, CRect(0, 0, 0, 0), &parent, 7);
        TBBUTTON buttons[] = {button(101), button(102, TBSTYLE_CHECK), button(0, TBSTYLE_SEP), button(103)};
        bar.AddButtons(4, buttons);
        bar.AutoSize();
        parent.log().clear();
    }

    RecordingParent parent;
    CToolBarCtrl bar;
};

} // namespace

TEST_F(ToolBarCtrlTest, ButtonsGoInMoveAndGo)
{
    TBBUTTON extra = button(104);
    TBBUTTON got{};

    EXPECT_EQ(bar.GetButtonCount(), 4);
    EXPECT_EQ(bar.CommandToIndex(103), 3u);
    EXPECT_TRUE(bar.InsertButton(0, &extra));
    EXPECT_EQ(bar.CommandToIndex(104), 0u);
    EXPECT_TRUE(bar.GetButton(0, &got));
    EXPECT_EQ(got.idCommand, 104);
    EXPECT_TRUE(bar.MoveButton(0, 2));
    EXPECT_EQ(bar.CommandToIndex(104), 2u);
    EXPECT_TRUE(bar.SetCmdID(2, 105));
    EXPECT_EQ(bar.CommandToIndex(105), 2u);
    EXPECT_TRUE(bar.DeleteButton(2));
    EXPECT_EQ(bar.GetButtonCount(), 4);
    EXPECT_EQ(bar.CommandToIndex(105), static_cast<UINT>(-1));
}

TEST_F(ToolBarCtrlTest, StatesAreSetAndAsked)
{
    EXPECT_TRUE(bar.IsButtonEnabled(101));
    EXPECT_TRUE(bar.EnableButton(101, FALSE));
    EXPECT_FALSE(bar.IsButtonEnabled(101));
    EXPECT_TRUE(bar.CheckButton(102));
    EXPECT_TRUE(bar.IsButtonChecked(102));
    EXPECT_TRUE(bar.PressButton(103));
    EXPECT_TRUE(bar.IsButtonPressed(103));
    bar.PressButton(103, FALSE);
    EXPECT_FALSE(bar.IsButtonPressed(103));
    EXPECT_TRUE(bar.Indeterminate(102));
    EXPECT_TRUE(bar.IsButtonIndeterminate(102));
    EXPECT_TRUE(bar.HideButton(103));
    EXPECT_TRUE(bar.IsButtonHidden(103));
    EXPECT_EQ(bar.GetState(103), TBSTATE_ENABLED | TBSTATE_HIDDEN);
    EXPECT_TRUE(bar.SetState(103, TBSTATE_ENABLED));
    EXPECT_FALSE(bar.IsButtonHidden(103));
    EXPECT_EQ(bar.GetState(999), -1);
    bar.MarkButton(101);
    EXPECT_TRUE(bar.IsButtonHighlighted(101));
}

TEST_F(ToolBarCtrlTest, AClickIsACommand)
{
    present(parent);
    CRect rect;
    ASSERT_TRUE(bar.GetItemRect(3, &rect));

    Robot().click(Spot(bar, rect.CenterPoint()));

    int commands = 0;
    for (const Notification& notification : parent.log().all())
        commands += notification.message == WM_COMMAND && notification.id == 103;
    EXPECT_EQ(commands, 1);
}

TEST_F(ToolBarCtrlTest, PointsFindButtonsAndSeparatorsAreNegative)
{
    CRect first;
    CRect separator;
    ASSERT_TRUE(bar.GetRect(101, &first));
    bar.GetItemRect(2, &separator);
    CPoint point = first.CenterPoint();

    EXPECT_EQ(bar.HitTest(&point), 0);
    point = separator.CenterPoint();
    EXPECT_LT(bar.HitTest(&point), 0);
    bar.HideButton(101);
    EXPECT_FALSE(bar.GetItemRect(0, &first)) << "a hidden button is nowhere";
}

TEST_F(ToolBarCtrlTest, SizesAreSetAndAsked)
{
    CToolBarCtrl fresh;
    fresh.CreateEx(0, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, 8);

    EXPECT_TRUE(fresh.SetBitmapSize(CSize(20, 22)));
    EXPECT_TRUE(fresh.SetButtonSize(CSize(40, 41)));
    EXPECT_EQ(fresh.GetButtonSize(), static_cast<DWORD>(MAKELONG(40, 41)));
    EXPECT_EQ(bar.GetRows(), 1);
    CSize size;
    EXPECT_TRUE(bar.GetMaxSize(&size));
    EXPECT_GT(size.cx, 0);
    EXPECT_TRUE(bar.SetMaxTextRows(2));
    EXPECT_EQ(bar.GetMaxTextRows(), 2);
}

TEST_F(ToolBarCtrlTest, AWrappableBarMakesRows)
{
    CToolBarCtrl wrapped;
    wrapped.Create(WS_CHILD | WS_VISIBLE | TBSTYLE_WRAPABLE | CCS_NORESIZE | CCS_NOPARENTALIGN,
                   CRect(0, 0, 60, 200), &parent, 8);
    std::vector<TBBUTTON> buttons;
    for (int id = 1; id <= 6; ++id)
        buttons.push_back(button(id));
    wrapped.AddButtons(6, buttons.data());
    CRect rect;

    wrapped.SetRows(3, TRUE, &rect);

    EXPECT_EQ(wrapped.GetRows(), 3);
    EXPECT_GT(rect.Height(), 0);
}

TEST_F(ToolBarCtrlTest, PicturesAndListsAreKept)
{
    CImageList images;
    CImageList hot;
    images.Create(IDB_SQUARES, 4, 1, CLR_NONE);
    hot.Create(IDB_SQUARES, 4, 1, CLR_NONE);
    CToolBarCtrl fresh;
    fresh.Create(WS_CHILD, CRect(0, 0, 0, 0), &parent, 8);

    EXPECT_EQ(fresh.SetImageList(&images), nullptr);
    EXPECT_EQ(fresh.GetImageList(), &images);
    EXPECT_EQ(fresh.SetHotImageList(&hot), nullptr);
    EXPECT_EQ(fresh.GetHotImageList(), &hot);
    EXPECT_EQ(fresh.SetDisabledImageList(&hot), nullptr);
    EXPECT_EQ(fresh.GetDisabledImageList(), &hot);
    EXPECT_EQ(fresh.SetImageList(nullptr), &images);
    EXPECT_EQ(fresh.SetHotImageList(nullptr), &hot);
    fresh.SetDisabledImageList(nullptr);

    EXPECT_EQ(bar.AddBitmap(3, IDB_SQUARES), 0);
    CBitmap bitmap;
    bitmap.LoadBitmap(IDB_SQUARES);
    EXPECT_EQ(bar.AddBitmap(3, &bitmap), 3);
    EXPECT_TRUE(bar.ChangeBitmap(101, 2));
    EXPECT_EQ(bar.GetBitmap(101), 2);
}

TEST_F(ToolBarCtrlTest, TextsComeFromMemoryAndFromTheResources)
{
    EXPECT_EQ(bar.AddStrings(L"Cut\0Paste\0"), 0);
    CString text;
    wchar_t buffer[10]{};

    EXPECT_EQ(bar.GetString(1, text), 5);
    EXPECT_STREQ(text, L"Paste");
    EXPECT_EQ(bar.GetString(0, buffer, 10), 3);
    EXPECT_STREQ(buffer, L"Cut");
    EXPECT_EQ(bar.GetString(9, text), -1);
    const int first = bar.AddString(IDS_BUTTONS);
    EXPECT_EQ(first, 2);
    bar.GetString(3, text);
    EXPECT_STREQ(text, L"Paste");
}

TEST_F(ToolBarCtrlTest, AButtonHasATextAndInformation)
{
    TBBUTTONINFO info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_LPARAM;
    info.pszText = const_cast<LPWSTR>(L"Label");
    info.lParam = 42;

    EXPECT_TRUE(bar.SetButtonInfo(101, &info));
    EXPECT_STREQ(bar.GetButtonText(101), L"Label");
    EXPECT_STREQ(bar.GetButtonText(999), L"");
    info.dwMask = TBIF_LPARAM;
    info.lParam = 0;
    EXPECT_EQ(bar.GetButtonInfo(101, &info), 0);
    EXPECT_EQ(info.lParam, 42u);
}

TEST_F(ToolBarCtrlTest, StylesHotItemAndMarksAreKept)
{
    bar.SetStyle(WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT);
    EXPECT_TRUE(bar.GetStyle() & TBSTYLE_FLAT);
    bar.SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    EXPECT_EQ(bar.GetExtendedStyle(), static_cast<DWORD>(TBSTYLE_EX_DRAWDDARROWS));
    bar.SetHotItem(1);
    EXPECT_EQ(bar.GetHotItem(), 1);
    EXPECT_EQ(bar.SetHotItem(-1), 1);
    bar.SetAnchorHighlight();
    EXPECT_TRUE(bar.GetAnchorHighlight());
    TBINSERTMARK wanted{1, TBIMHT_AFTER};
    TBINSERTMARK got{};
    bar.SetInsertMark(&wanted);
    bar.GetInsertMark(&got);
    EXPECT_EQ(got.iButton, 1);
    bar.SetInsertMarkColor(RGB(1, 2, 3));
    EXPECT_EQ(bar.GetInsertMarkColor(), RGB(1, 2, 3));
}

TEST_F(ToolBarCtrlTest, ASetOwnerGetsTheNotifications)
{
    RecordingParent owner;
    bar.SetOwner(&owner);
    EXPECT_EQ(bar.GetOwner(), &owner);

    CRect rect;
    bar.GetRect(101, &rect);
    bar.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(rect.left + 3, rect.top + 3));
    bar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(rect.left + 3, rect.top + 3));

    EXPECT_FALSE(owner.log().empty());
}

TEST_F(ToolBarCtrlTest, TooltipsAreGiven)
{
    CToolTipCtrl tip;
    tip.Create(&parent);

    bar.SetToolTips(&tip);
    EXPECT_EQ(bar.GetToolTips(), &tip);
}
