// Modal dialogs: results, owners, errors, nesting.
#include "TestDialog.h"
#include "resource.h"

#include <testkit/TestApp.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

struct Foreign
{
};

/// Raises an exception when a modal dialog of it is over.
class RaisingFrame : public CFrameWnd
{
public:
    RaisingFrame() { Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 500, 400)); }
    ~RaisingFrame() override { ::DestroyWindow(m_hWnd); }

    void EndModalState() override
    {
        CFrameWnd::EndModalState();
        throw std::runtime_error("the frame");
    }

protected:
    void PostNcDestroy() override {} // it is not on the heap
};

void pressAct()
{
    ::PostMessageW(shownDialog(), WM_COMMAND, TestDialog::kAct, 0);
}

} // namespace

// Results

TEST(ModalDialog, AnswersWhatItWasEndedWith)
{
    for (const WORD key : {VK_RETURN, VK_ESCAPE}) {
        TestDialog dialog;
        auto answering = whenShown().key(key).start();
        EXPECT_EQ(dialog.DoModal(), key == VK_RETURN ? IDOK : IDCANCEL);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
    }
    for (const int result : {4711, 0, -1, -4711}) {
        TestDialog dialog;
        dialog.onAct = [=](TestDialog& d) { d.EndDialog(result); };
        auto answering = whenShown().click([] { return shownControl(TestDialog::kAct); }).start();
        EXPECT_EQ(dialog.DoModal(), result);
    }
}

TEST(ModalDialog, IsMadeFromAResource)
{
    CDialog dialog(IDD_PLAIN);
    std::wstring title;
    auto answering = whenShown()
                         .then([&] { title = textOf(shownDialog()); })
                         .click([] { return shownControl(IDCANCEL); })
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(title, L"From a resource");
}

TEST(ModalDialog, WithoutATemplateAnswersMinusOne)
{
    OwnerWindow owner;
    CDialog numbered(IDD_MISSING, &owner);
    EXPECT_EQ(numbered.DoModal(), -1);
    CDialog named(L"NO_SUCH_DIALOG", &owner);
    EXPECT_EQ(named.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, ThatCannotBeCreatedAnswersMinusOne)
{
    class BadControl : public CDialog
    {
    public:
        BadControl()
            : memory(L"Bad")
        {
            memory.control(L"no such window class", 1, 0);
        }
        MemoryTemplate memory;
    };
    OwnerWindow owner;
    BadControl dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(dialog.memory.get(), &owner));
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, DestroyedInsteadOfEndedAnswersAbort)
{
    OwnerWindow owner;
    TestDialog dialog(&owner);
    dialog.onAct = [](TestDialog& d) { d.DestroyWindow(); };
    auto answering = whenShown().then(pressAct).start();
    EXPECT_EQ(dialog.DoModal(), IDABORT);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, AQuitEndsItAndTheLoopOutside)
{
    OwnerWindow owner;
    TestDialog dialog(&owner);
    auto story = whenShown().then([] { ::PostQuitMessage(3); }).start();
    EXPECT_EQ(dialog.DoModal(), IDABORT) << "no button has ended it";
    EXPECT_TRUE(owner.IsWindowEnabled());
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT)
        ::DispatchMessageW(&message);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 3u) << "with the exit code that it came with";
}

TEST(ModalDialog, MayBeShownAgainAndAgain)
{
    const WindowCounter windows;
    TestDialog dialog;
    for (int i = 0; i < 3; ++i) {
        auto answering = whenShown().key(VK_ESCAPE).start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
    EXPECT_EQ(dialog.destroyed, 3);
    EXPECT_EQ(windows.grown(), 0);
}

// Showing

TEST(ModalDialog, IsShownExactlyOnce)
{
    for (const DWORD visible : {DWORD{0}, DWORD{WS_VISIBLE}}) {
        TestDialog dialog(nullptr, TestDialog::kStyle | visible);
        auto answering = whenShown().key(VK_ESCAPE).start();
        dialog.DoModal();
        EXPECT_EQ(dialog.shown, 1) << (visible ? "WS_VISIBLE" : "hidden template");
    }
}

/// The queue is never empty then.
TEST(ModalDialog, IsShownBesideAWindowThatIsAlwaysToBePainted)
{
    class Film : public OwnerWindow
    {
    public:
        bool runs() const { return !m_stopped && ::GetTickCount64() < m_end; }
        void stop() { m_stopped = true; }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            const LRESULT result = OwnerWindow::WindowProc(message, wParam, lParam);
            if (message == WM_PAINT && runs())
                Invalidate();
            return result;
        }

    private:
        bool m_stopped = false;
        const ULONGLONG m_end = ::GetTickCount64() + 10000;
    };
    Film film;
    film.Invalidate();
    TestDialog dialog;
    bool ranOn = false;
    auto answering = whenShown()
                         .then([&] {
                             ranOn = film.runs();
                             film.stop();
                         })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(ranOn) << "it was shown after the film";
    EXPECT_EQ(dialog.shown, 1);
}

TEST(ModalDialog, EndedInItsInitialisationIsNeverShown)
{
    for (const DWORD visible : {DWORD{0}, DWORD{WS_VISIBLE}}) {
        OwnerWindow owner;
        TestDialog dialog(&owner, TestDialog::kStyle | visible);
        dialog.onInit = [](TestDialog& d) {
            d.EndDialog(77);
            return TRUE;
        };
        EXPECT_EQ(dialog.DoModal(), 77);
        EXPECT_EQ(dialog.shown, 0) << (visible ? "WS_VISIBLE" : "hidden template");
        EXPECT_EQ(dialog.destroyed, 1);
        EXPECT_TRUE(owner.IsWindowEnabled());
    }
}

TEST(ModalDialog, EndDialogLetsTheHandlerFinish)
{
    TestDialog dialog;
    bool finished = false;
    dialog.onAct = [&](TestDialog& d) {
        d.EndDialog(1);
        EXPECT_NE(d.m_hWnd, nullptr) << "the window outlives the handler";
        finished = true;
        d.EndDialog(2);
    };
    auto answering = whenShown().then(pressAct).start();
    EXPECT_EQ(dialog.DoModal(), 2) << "the last word counts";
    EXPECT_TRUE(finished);
}

TEST(ModalDialog, WhoseValuesCannotBeShownAnswersMinusOne)
{
    TestDialog dialog;
    dialog.onExchange = [](CDataExchange*) { AfxThrowUserException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.shown, 0);
}

// Owners

TEST(ModalDialog, DisablesItsOwnerAndGivesItBack)
{
    OwnerWindow owner;
    TestDialog dialog(&owner);
    BOOL enabledMeanwhile = TRUE;
    HWND itsOwner = nullptr;
    auto answering = whenShown()
                         .then([&] {
                             enabledMeanwhile = owner.IsWindowEnabled();
                             itsOwner = ::GetWindow(shownDialog(), GW_OWNER);
                         })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_EQ(itsOwner, owner.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, LeavesADisabledOwnerDisabled)
{
    OwnerWindow owner;
    owner.EnableWindow(FALSE);
    TestDialog dialog(&owner);
    dialog.onInit = [](TestDialog& d) {
        d.PostMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    };
    dialog.DoModal();
    EXPECT_FALSE(owner.IsWindowEnabled()) << "though some systems enable the owner of a dialog that ends";
    TestDialog destroyed(&owner);
    destroyed.onAct = [](TestDialog& d) { d.DestroyWindow(); };
    auto answering = whenShown().then(pressAct).start();
    destroyed.DoModal();
    EXPECT_FALSE(owner.IsWindowEnabled());
}

/// A host that always names its main window opens one from another one so.
TEST(ModalDialog, LeavesItsOwnerToTheDialogThatHasLockedIt)
{
    OwnerWindow owner;
    TestDialog outer(&owner);
    bool ownerEnabled = true;
    bool activeAgain = false;
    int focused = 0;
    outer.onAct = [&](TestDialog& d) {
        d.GotoDlgCtrl(d.GetDlgItem(TestDialog::kEdit));
        TestDialog inner(&owner);
        auto answering =
            Robot()
                .waitFor("the inner dialog", [&] { return shownDialog() && shownDialog() != d.m_hWnd; })
                .key(VK_ESCAPE)
                .start();
        EXPECT_EQ(inner.DoModal(), IDCANCEL);
        answering.finish();
        ownerEnabled = owner.IsWindowEnabled() != FALSE;
        activeAgain = ::GetActiveWindow() == d.m_hWnd;
        focused = ::GetDlgCtrlID(::GetFocus());
        d.EndDialog(IDOK);
    };
    auto story = whenShown().then(pressAct).start();
    EXPECT_EQ(outer.DoModal(), IDOK);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(activeAgain);
    EXPECT_EQ(focused, TestDialog::kEdit);
    EXPECT_TRUE(owner.IsWindowEnabled()) << "afterwards";
}

TEST(ModalDialog, OfAChildWindowIsOwnedByTheTopLevelWindow)
{
    OwnerWindow owner;
    CButton child;
    child.Create(L"Child", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &owner, 7);
    TestDialog dialog(&child);
    HWND itsOwner = nullptr;
    auto answering =
        whenShown().then([&] { itsOwner = ::GetWindow(shownDialog(), GW_OWNER); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_EQ(itsOwner, owner.m_hWnd);
}

TEST(ModalDialog, WithoutAParentIsOwnedByTheMainWindow)
{
    OwnerWindow main;
    AfxGetApp()->m_pMainWnd = &main;
    TestDialog dialog;
    HWND itsOwner = nullptr;
    auto answering =
        whenShown().then([&] { itsOwner = ::GetWindow(shownDialog(), GW_OWNER); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(itsOwner, main.m_hWnd);
}

TEST(ModalDialog, GivesTheFocusBackToTheControlThatHadIt)
{
    TestDialog outer;
    int focused = 0;
    outer.onAct = [&](TestDialog& d) {
        d.GotoDlgCtrl(d.GetDlgItem(TestDialog::kEdit));
        TestDialog inner(&d);
        auto answering =
            Robot()
                .waitFor("the inner dialog", [&] { return shownDialog() && shownDialog() != d.m_hWnd; })
                .key(VK_ESCAPE)
                .start();
        inner.DoModal();
        answering.finish();
        focused = ::GetDlgCtrlID(::GetFocus());
        d.EndDialog(IDOK);
    };
    auto story = whenShown().then(pressAct).start();
    outer.DoModal();
    EXPECT_EQ(focused, TestDialog::kEdit);
}

// Errors

TEST(ModalDialog, AnErrorInItsInitialisationComesOutOfDoModal)
{
    OwnerWindow owner;
    const WindowCounter windows;
    TestDialog dialog(&owner);
    dialog.onInit = [](TestDialog&) -> BOOL { throw std::runtime_error("oak"); };
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.destroyed, 1);
    EXPECT_EQ(windows.grown(), 0);
    expectNothingPending();

    dialog.onInit = [](TestDialog&) { return TRUE; };
    auto answering = whenShown().key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "the same object may be shown again";
}

TEST(ModalDialog, AnErrorInAHandlerComesOutOfDoModal)
{
    OwnerWindow owner;
    TestDialog dialog(&owner);
    dialog.onAct = [](TestDialog&) { throw Foreign{}; };
    auto acting = whenShown().then(pressAct).start();
    EXPECT_THROW(dialog.DoModal(), Foreign);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    acting.finish();
    expectNothingPending();
}

TEST(ModalDialog, AFrameworkExceptionIsReportedAndTheDialogStaysOpen)
{
    TestDialog dialog;
    dialog.onInit = [](TestDialog&) -> BOOL { AfxThrowResourceException(); };
    bool open = false;
    auto story = whenShown().then([&] { open = true; }).key(VK_ESCAPE).start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(open);
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
}

TEST(ModalDialog, AnErrorComesThroughBothOfTwoNestedDialogs)
{
    OwnerWindow owner;
    TestDialog outer(&owner);
    bool innerOwnerEnabled = false;
    outer.onAct = [&](TestDialog& d) {
        TestDialog inner(&d);
        inner.onInit = [](TestDialog&) -> BOOL { throw std::runtime_error("elm"); };
        try {
            inner.DoModal();
        } catch (...) {
            innerOwnerEnabled = d.IsWindowEnabled() != FALSE;
            throw;
        }
    };
    auto acting = whenShown().then(pressAct).start();
    EXPECT_THROW(outer.DoModal(), std::runtime_error);
    EXPECT_TRUE(innerOwnerEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(outer.m_hWnd, nullptr);
    acting.finish();
    expectNothingPending();
}

// Nesting

TEST(ModalDialog, MayOpenAnother)
{
    TestDialog outer;
    INT_PTR innerResult = 0;
    HWND outerWnd = nullptr;
    BOOL outerEnabled = TRUE;
    outer.onAct = [&](TestDialog& d) {
        outerWnd = d.m_hWnd;
        TestDialog inner(&d);
        innerResult = inner.DoModal();
    };
    auto story = whenShown()
                     .click([] { return shownControl(TestDialog::kAct); })
                     .waitFor("the inner dialog",
                              [&] { return outerWnd && shownDialog() && shownDialog() != outerWnd; })
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

TEST(ModalDialog, WhatItsFrameRaisesAtTheEndComesOutOfIt)
{
    RaisingFrame frame;
    TestDialog dialog(&frame);
    auto answering = whenShown().key(VK_ESCAPE).start();
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(frame.IsWindowEnabled());
    expectNothingPending();
}

TEST(ModalDialog, WhatItsFrameRaisesBehindAnotherExceptionWaitsForTheMessageLoop)
{
    RaisingFrame frame;
    TestDialog dialog(&frame);
    dialog.onInit = [](TestDialog&) -> BOOL { throw Foreign{}; };
    EXPECT_THROW(dialog.DoModal(), Foreign);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(frame.IsWindowEnabled());
    frame.PostMessage(WM_NULL); // the loop has something to do
    EXPECT_THROW(AfxPumpMessage(), std::runtime_error);
}
