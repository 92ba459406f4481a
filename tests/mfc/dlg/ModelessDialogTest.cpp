// Modeless dialogs: making, hiding, destroying.
#include "TestDialog.h"
#include "resource.h"

#include <support/RaisingChild.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

/// A modeless dialog as it is meant to be: made with new, deleted with its window.
class SelfMadeDialog : public TestDialog
{
public:
    static int s_alive;

    SelfMadeDialog() { ++s_alive; }
    ~SelfMadeDialog() override { --s_alive; }

protected:
    void OnCancel() override { DestroyWindow(); }
    void PostNcDestroy() override { delete this; }
};

int SelfMadeDialog::s_alive = 0;

} // namespace

TEST(ModelessDialog, IsMadeFromAResource)
{
    OwnerWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &owner));
    EXPECT_EQ(textOf(dialog), L"From a resource");
    EXPECT_EQ(::GetWindow(dialog, GW_OWNER), owner.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_FALSE(dialog.IsWindowVisible()) << "its template does not say WS_VISIBLE";
    dialog.DestroyWindow();
}

TEST(ModelessDialog, WithoutATemplateIsNotMade)
{
    CDialog dialog;
    EXPECT_FALSE(dialog.Create(IDD_MISSING));
    EXPECT_FALSE(dialog.Create(L"NO_SUCH_DIALOG"));
    EXPECT_FALSE(dialog.CreateIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
    EXPECT_FALSE(dialog.CreateIndirect(static_cast<HGLOBAL>(nullptr)));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, IsMadeFromAMemoryHandle)
{
    const MemoryTemplate memory(L"From a handle");
    CDialog dialog;
    // A fixed block's handle is its address.
    ASSERT_TRUE(dialog.CreateIndirect(static_cast<HGLOBAL>(const_cast<DLGTEMPLATE*>(memory.get()))));
    EXPECT_EQ(textOf(dialog), L"From a handle");
    dialog.DestroyWindow();
}

TEST(ModelessDialog, WithoutAParentIsOwnedByTheMainWindow)
{
    OwnerWindow main;
    AfxGetApp()->m_pMainWnd = &main;
    TestDialog dialog;
    ASSERT_TRUE(dialog.createModeless());
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(::GetWindow(dialog, GW_OWNER), main.m_hWnd);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, EndDialogOnlyHidesIt)
{
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(dialog.createModeless());
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.EndDialog(IDOK);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(::IsWindow(dialog));
    dialog.ShowWindow(SW_SHOW);
    EXPECT_TRUE(dialog.IsWindowVisible()) << "it can be shown again";
    dialog.DestroyWindow();
}

TEST(ModelessDialog, EndedInItsInitialisationIsNotMade)
{
    const WindowCounter windows;
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    dialog.onInit = [](TestDialog& d) {
        d.EndDialog(1);
        return TRUE;
    };
    EXPECT_FALSE(dialog.createModeless());
    EXPECT_EQ(dialog.shown, 0);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(ModelessDialog, WhoseValuesCannotBeShownIsNotMade)
{
    TestDialog dialog;
    dialog.onExchange = [](CDataExchange*) { AfxThrowUserException(); };
    EXPECT_FALSE(dialog.createModeless());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModelessDialog, AnErrorInItsInitialisationComesOutOfCreate)
{
    const WindowCounter windows;
    TestDialog dialog;
    dialog.onInit = [](TestDialog&) -> BOOL { throw std::runtime_error("ash"); };
    EXPECT_THROW(dialog.createModeless(), std::runtime_error);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(windows.grown(), 0);
    expectNothingPending();
}

TEST(ModelessDialog, DeletesItselfWithItsWindow)
{
    auto* dialog = new SelfMadeDialog;
    ASSERT_TRUE(dialog->createModeless());
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(SelfMadeDialog::s_alive, 0);
}

TEST(ModelessDialog, MayDestroyItselfInItsInitialisation)
{
    auto* dialog = new SelfMadeDialog;
    dialog->onInit = [](TestDialog& d) {
        d.DestroyWindow();
        return FALSE;
    };
    EXPECT_FALSE(dialog->createModeless());
    EXPECT_EQ(SelfMadeDialog::s_alive, 0);
}

TEST(ModelessDialog, ThatFailsToInitialiseDeletesItself)
{
    auto* ended = new SelfMadeDialog;
    ended->onInit = [](TestDialog& d) {
        d.EndDialog(1);
        return TRUE;
    };
    EXPECT_FALSE(ended->createModeless());
    EXPECT_EQ(SelfMadeDialog::s_alive, 0);

    auto* failed = new SelfMadeDialog;
    failed->onInit = [](TestDialog&) -> BOOL { throw std::runtime_error("yew"); };
    EXPECT_THROW(failed->createModeless(), std::runtime_error);
    EXPECT_EQ(SelfMadeDialog::s_alive, 0);
}

TEST(ModelessDialog, IsDestroyedWithItsObject)
{
    HWND wnd = nullptr;
    {
        TestDialog dialog;
        ASSERT_TRUE(dialog.createModeless());
        wnd = dialog.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(wnd));
}

TEST(ModelessDialog, WhatIsRaisedAsItsObjectGoesWaitsForTheMessageLoop)
{
    OwnerWindow owner;
    support::RaisingChild child;
    {
        TestDialog dialog;
        ASSERT_TRUE(dialog.createModeless(&owner));
        ASSERT_TRUE(child.createIn(dialog));
    }
    child.expectRaisedInLoop();
}

TEST(ModelessDialog, ReadsItsValuesOnOk)
{
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    CString name(L"Oak");
    dialog.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, TestDialog::kEdit, name); };
    ASSERT_TRUE(dialog.createModeless());
    EXPECT_EQ(textOf(::GetDlgItem(dialog, TestDialog::kEdit)), L"Oak");
    dialog.SetDlgItemText(TestDialog::kEdit, L"Elm");
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_STREQ(name, L"Oak") << "cancelled";
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_STREQ(name, L"Elm");
    dialog.DestroyWindow();
}

TEST(ModelessDialog, ListsAreFilledFromTheirResource)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_LISTS));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT), 2);
    wchar_t text[8] = L"";
    dialog.SendDlgItemMessage(IDC_LIST, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"Elm") << "in their order";
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT), 1);
    dialog.DestroyWindow();
}

TEST(ModelessDialog, ListsAreFilledFromMemory)
{
    const MemoryTemplate memory = [] {
        MemoryTemplate made(L"Lists");
        made.control(L"LISTBOX", IDC_LIST, 0);
        return made;
    }();
    // control, message, length (low and high), text, end
    WORD data[] = {IDC_LIST, LB_ADDSTRING, 4, 0, MAKEWORD('O', 'a'), MAKEWORD('k', 0), 0};
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.get(), nullptr, data));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT), 1);
    dialog.DestroyWindow();
}
