// A modeless property sheet.
#include "SheetScene.h"

#include <support/RaisingChild.h>
#include <testkit/ImportPatch.h>
#include <testkit/WindowCounter.h>

#include <memory>

using namespace ovo::testkit;

namespace
{

class ModelessSheet : public SheetScene
{
protected:
    bool isShown(int id) const { return ::IsWindowVisible(::GetDlgItem(sheet.m_hWnd, id)); }
};

/// Gives the window's number as it is where many windows have been made before. An upper half of ones stands
/// for any.
INT_PTR WINAPI sheetOfANegativeNumber(LPCPROPSHEETHEADERW header)
{
    return static_cast<LONG>(0xFFFF0000 | LOWORD(::PropertySheetW(header)));
}

} // namespace

TEST_F(ModelessSheet, IsShownWithoutButtons)
{
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetWindow(sheet, GW_OWNER), owner.m_hWnd);
    EXPECT_TRUE(general.IsWindowVisible());
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
        EXPECT_FALSE(isShown(id)) << id;
    CRect pages;
    CRect client;
    sheet.GetTabControl()->GetWindowRect(&pages);
    sheet.ScreenToClient(&pages);
    sheet.GetClientRect(&client);
    EXPECT_EQ(client.bottom - pages.bottom, pages.left) << "as much room below as beside";
    EXPECT_TRUE(sheet.DestroyWindow());
    EXPECT_FALSE(general.m_hWnd);
}

TEST_F(ModelessSheet, IsMadeWhateverTheNumberOfItsWindow)
{
    const ImportPatch patch(L"ovomfc.dll", "PropertySheetW",
                            reinterpret_cast<void*>(&sheetOfANegativeNumber));
    EXPECT_TRUE(sheet.Create(&owner));
    EXPECT_TRUE(sheet.IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(ModelessSheet, WithoutAParentItBelongsToTheDesktop)
{
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(::GetWindow(sheet, GW_OWNER));
    sheet.DestroyWindow();
}

TEST_F(ModelessSheet, TakesTheStylesThatTheHostWants)
{
    ASSERT_TRUE(sheet.Create(&owner, WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW));
    EXPECT_FALSE(sheet.IsWindowVisible());
    EXPECT_TRUE(sheet.GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_FALSE(sheet.GetStyle() & WS_SYSMENU);
    sheet.ShowWindow(SW_SHOW);
    EXPECT_TRUE(sheet.IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(ModelessSheet, MayBeAChildOfAnotherWindow)
{
    ASSERT_TRUE(sheet.Create(&owner, WS_CHILD | WS_VISIBLE, WS_EX_CONTROLPARENT));
    EXPECT_EQ(sheet.GetParent(), &owner);
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_TRUE(colours.IsWindowVisible());
    sheet.DestroyWindow();
}

TEST_F(ModelessSheet, TheUserMovesThroughItInTheHostsLoop)
{
    ASSERT_TRUE(sheet.Create(&owner));
    present(sheet);
    Robot()
        .click(tab(1))
        .waitFor("the second page", [this] { return sheet.GetActivePage() == &colours; })
        .click(Spot{[this] { return colours.GetDlgItem(IDC_NUMBER)->m_hWnd; }})
        .then([this] { colours.SetDlgItemText(IDC_NUMBER, L""); })
        .type(L"42")
        .waitFor("what was typed", [this] { return colours.GetDlgItemInt(IDC_NUMBER) == 42; });
    EXPECT_TRUE(sheet.SetActivePage(0));
    EXPECT_EQ(colours.number, 42);
}

TEST_F(ModelessSheet, EnterPressesNoHiddenButton)
{
    ASSERT_TRUE(sheet.Create(&owner));
    present(sheet);
    taken();
    Robot()
        .then([this] { general.GetDlgItem(IDC_NUMBER)->SetFocus(); })
        .key(VK_RETURN)
        .type(L"1")
        .waitFor("what was typed", [this] { return general.GetDlgItemInt(IDC_NUMBER) != 7; });
    EXPECT_TRUE(sheet.m_hWnd);
    EXPECT_EQ(taken(), Calls{});
}

TEST_F(ModelessSheet, TheCloseBoxDestroysItUnlessAPageRefuses)
{
    ASSERT_TRUE(sheet.Create(&owner));
    general.answers["query cancel"] = FALSE;
    sheet.SendMessage(WM_CLOSE);
    EXPECT_TRUE(sheet.m_hWnd);
    general.answers.clear();
    taken();
    sheet.SendMessage(WM_CLOSE);
    EXPECT_FALSE(sheet.m_hWnd);
    EXPECT_EQ(taken(), (Calls{"general query cancel", "general reset", "general cancel"}));
}

TEST_F(ModelessSheet, TheHostsOwnButtonAppliesAndCloses)
{
    ASSERT_TRUE(sheet.Create(&owner));
    general.SetDlgItemInt(IDC_NUMBER, 21);
    taken();
    sheet.PressButton(PSBTN_OK);
    Robot().waitFor("the end", [this] { return !sheet.m_hWnd; });
    EXPECT_EQ(taken(), (Calls{"general left", "general apply", "general ok"}));
    EXPECT_EQ(general.number, 21);
}

TEST_F(ModelessSheet, CancelIsNotMadeClose)
{
    ASSERT_TRUE(sheet.Create(&owner));
    const std::wstring ok = textOf(IDOK);
    general.CancelToClose();
    EXPECT_EQ(textOf(IDOK), ok);
}

TEST_F(ModelessSheet, OnTheHeapItMayDeleteItselfWithItsPages)
{
    const WindowCounter windows;
    auto* const heap = new TestSheet(L"Heap", &owner);
    auto* const page = new TestPage("heap", calls);
    page->deletesItself = true;
    heap->AddPage(page);
    bool gone = false;
    heap->onGone = [&] {
        gone = true;
        delete heap;
    };
    ASSERT_TRUE(heap->Create(&owner));
    heap->SendMessage(WM_CLOSE);
    EXPECT_TRUE(gone);
    EXPECT_EQ(windows.grown(), 0);
}

TEST_F(ModelessSheet, AnObjectThatGoesTakesItsWindowAlong)
{
    auto local = std::make_unique<CPropertySheet>(L"Local", &owner);
    local->AddPage(&general);
    ASSERT_TRUE(local->Create(&owner));
    const HWND wnd = local->m_hWnd;
    local.reset();
    EXPECT_FALSE(::IsWindow(wnd));
    EXPECT_FALSE(general.m_hWnd);
}

TEST_F(ModelessSheet, WhatIsRaisedAsItsObjectGoesWaitsForTheMessageLoop)
{
    support::RaisingChild child;
    {
        CPropertySheet local(L"Local", &owner);
        local.AddPage(&general);
        ASSERT_TRUE(local.Create(&owner));
        ASSERT_TRUE(child.createIn(local));
    }
    EXPECT_FALSE(general.m_hWnd);
    child.expectRaisedInLoop();
}

TEST_F(ModelessSheet, APageMayDestroyItInAnyCall)
{
    for (const char* call : {"left", "apply", "ok"}) {
        ASSERT_TRUE(sheet.Create(&owner));
        bool later = false;
        // A handler of the sheet must return to it: the host's way is a posted message.
        general.deeds[call] = [&] { later = sheet.PostMessage(WM_CLOSE) != FALSE; };
        sheet.PressButton(PSBTN_APPLYNOW);
        Robot().waitFor("the end", [this] { return !sheet.m_hWnd; });
        EXPECT_TRUE(later) << call;
        general.deeds.clear();
    }
}

TEST_F(ModelessSheet, WithoutPagesThereIsNone)
{
    CPropertySheet empty(L"Empty", &owner);
    EXPECT_FALSE(empty.Create(&owner));
    EXPECT_EQ(showUntilClosed(empty), -1);
    EXPECT_EQ(empty.GetActivePage(), nullptr);
}
