// Modal dialogs: results, nesting, errors, focus.
#include "MemoryTemplate.h"

#include "support/Desktop.h"
#include "support/Robot.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace ovotest;

namespace
{

class TestDialog : public CDialog
{
public:
    std::function<BOOL(TestDialog&)> onInit = [](TestDialog&) { return TRUE; };
    std::function<void(TestDialog&)> onCommand;
    int shown = 0;

    explicit TestDialog(CWnd* parent = nullptr)
        : CDialog()
        , m_template(L"Test dialog")
    {
        m_template.control(L"BUTTON", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, L"OK")
            .control(L"EDIT", 100, WS_TABSTOP | WS_BORDER)
            .control(L"BUTTON", 101, BS_PUSHBUTTON | WS_TABSTOP, L"Act");
        InitModalIndirect(m_template.get(), parent);
    }

    using CDialog::EndDialog;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        return onInit(*this);
    }
    afx_msg void OnAct()
    {
        if (onCommand)
            onCommand(*this);
    }
    afx_msg void OnShowWindow(BOOL show, UINT status)
    {
        shown += show != FALSE;
        CDialog::OnShowWindow(show, status);
    }
    DECLARE_MESSAGE_MAP()

private:
    MemoryTemplate m_template;
};

BEGIN_MESSAGE_MAP(TestDialog, CDialog)
    ON_COMMAND(101, OnAct)
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

Story whenShown()
{
    return Robot().waitFor("a dialog", [] { return shownDialog() != nullptr; });
}

class Owner : public CWnd
{
public:
    Owner() { CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr); }
    ~Owner() override { DestroyWindow(); }
};

} // namespace

TEST(ModalDialog, AnswersWhatItWasEndedWith)
{
    for (const WORD key : {VK_RETURN, VK_ESCAPE}) {
        TestDialog dialog;
        auto answering = whenShown().key(key).start();
        EXPECT_EQ(dialog.DoModal(), key == VK_RETURN ? IDOK : IDCANCEL);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
    }
    TestDialog dialog;
    dialog.onCommand = [](TestDialog& d) { d.EndDialog(4711); };
    auto answering = whenShown().click([] { return ::GetDlgItem(shownDialog(), 101); }).start();
    EXPECT_EQ(dialog.DoModal(), 4711);
}

TEST(ModalDialog, IsShownExactlyOnce)
{
    TestDialog dialog;
    auto answering = whenShown().key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(dialog.shown, 1);
}

TEST(ModalDialog, WithoutATemplateAnswersMinusOne)
{
    Owner owner;
    CDialog dialog(12345, &owner);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, EndedInItsInitialisationIsNeverShown)
{
    Owner owner;
    TestDialog dialog(&owner);
    dialog.onInit = [](TestDialog& d) {
        d.EndDialog(77);
        return TRUE;
    };
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(dialog.shown, 0);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, DisablesItsOwnerAndGivesItBack)
{
    Owner owner;
    TestDialog dialog(&owner);
    BOOL enabledMeanwhile = TRUE;
    auto answering = whenShown().then([&] { enabledMeanwhile = owner.IsWindowEnabled(); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, AnErrorInItsInitialisationComesOutOfDoModal)
{
    Owner owner;
    TestDialog dialog(&owner);
    dialog.onInit = [](TestDialog&) -> BOOL { throw std::runtime_error("oak"); };
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(shownDialog(), nullptr);

    dialog.onInit = [](TestDialog&) { return TRUE; };
    auto answering = whenShown().key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "the same object may be shown again";
}

TEST(ModalDialog, AnErrorInAHandlerComesOutOfDoModal)
{
    Owner owner;
    TestDialog dialog(&owner);
    dialog.onCommand = [](TestDialog&) { throw std::runtime_error("elm"); };
    auto acting = whenShown().then([] { ::PostMessageW(shownDialog(), WM_COMMAND, 101, 0); }).start();
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, MayOpenAnother)
{
    TestDialog outer;
    INT_PTR innerResult = 0;
    HWND outerWnd = nullptr;
    BOOL outerEnabled = TRUE;
    outer.onCommand = [&](TestDialog& d) {
        outerWnd = d.m_hWnd;
        TestDialog inner(&d);
        innerResult = inner.DoModal();
    };
    auto story = whenShown()
                     .click([] { return ::GetDlgItem(shownDialog(), 101); })
                     .waitFor("the inner dialog", [&] { return outerWnd && shownDialog() && shownDialog() != outerWnd; })
                     .then([&] { outerEnabled = ::IsWindowEnabled(outerWnd); })
                     .key(VK_ESCAPE)
                     .waitFor("the outer dialog again", [&] { return shownDialog() == outerWnd; })
                     .key(VK_RETURN)
                     .start();
    EXPECT_EQ(outer.DoModal(), IDOK);
    story.finish();
    EXPECT_EQ(innerResult, IDCANCEL);
    EXPECT_FALSE(outerEnabled);
}

TEST(ModalDialog, KeepsTheFocusThatItsInitialisationSet)
{
    TestDialog dialog;
    int focused = 0;
    dialog.onInit = [](TestDialog& d) {
        d.GetDlgItem(101)->SetFocus();
        return FALSE;
    };
    auto story = whenShown().then([&] { focused = ::GetDlgCtrlID(::GetFocus()); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(focused, 101);
}

TEST(ModalDialog, AQuitEndsItAndTheLoopOutside)
{
    TestDialog dialog;
    auto story = whenShown().then([] { ::PostQuitMessage(3); }).start();
    dialog.DoModal();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    MSG message{};
    bool quit = false;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        quit = quit || message.message == WM_QUIT;
    EXPECT_TRUE(quit || GuiThread::tookQuit());
}
