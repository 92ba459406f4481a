// Frames: making and unmaking, commands and keys, views and focus, the modal state.
#include "TestFrame.h"
#include "TestDialog.h"
#include "resource.h"

#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

// Life

TEST(Frame, DeletesItselfWithItsWindow)
{
    const int frames = TestFrame::s_alive;
    const int views = TestView::s_alive;
    TestFrame* frame = TestFrame::make();
    ASSERT_NE(frame, nullptr);
    frame->DestroyWindow();
    EXPECT_EQ(TestFrame::s_alive, frames);
    EXPECT_EQ(TestView::s_alive, views);
}

TEST(Frame, DeletesItselfWhenItCannotBeMade)
{
    const int before = TestFrame::s_alive;
    const WindowCounter windows;
    EXPECT_FALSE((new TestFrame)->Create(L"no such window class", L"Title"));
    EXPECT_EQ(TestFrame::s_alive, before);
    EXPECT_FALSE((new TestFrame)
                     ->Create(nullptr, L"Title", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr,
                              MAKEINTRESOURCE(IDR_FRAME_MISSING)))
        << "its menu is missing";
    EXPECT_EQ(TestFrame::s_alive, before);
    EXPECT_EQ(windows.grown(), 0);
}

TEST(Frame, WhoseContentsCannotBeMadeIsNotMade)
{
    class Hollow : public TestFrame
    {
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return FALSE; }
    };
    const int before = TestFrame::s_alive;
    EXPECT_FALSE((new Hollow)->Create(nullptr, L"Title"));
    EXPECT_EQ(TestFrame::s_alive, before);
}

TEST(Frame, AnErrorWhileItIsMadeComesOutOfCreate)
{
    class Failing : public TestFrame
    {
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { throw std::runtime_error("oak"); }
    };
    const int before = TestFrame::s_alive;
    EXPECT_THROW((new Failing)->Create(nullptr, L"Title"), std::runtime_error);
    EXPECT_EQ(TestFrame::s_alive, before);
    expectNothingPending();
}

TEST(Frame, ClosingItDestroysIt)
{
    const int before = TestFrame::s_alive;
    TestFrame* frame = TestFrame::make();
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(TestFrame::s_alive, before);
}

TEST(Frame, ClosingTheMainWindowEndsTheProgram)
{
    TestFrame* frame = TestFrame::make();
    AfxGetApp()->m_pMainWnd = frame;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(AfxGetApp()->m_pMainWnd, nullptr);
    GuiThread::settle();
    EXPECT_TRUE(GuiThread::tookQuit());
}

TEST(Frame, TheExitCommandClosesTheMainWindow)
{
    const int before = TestFrame::s_alive;
    TestFrame* frame = TestFrame::make();
    AfxGetApp()->m_pMainWnd = frame;
    frame->SendMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(TestFrame::s_alive, before);
    GuiThread::settle();
    EXPECT_TRUE(GuiThread::tookQuit());
}

// Resources

TEST(Frame, IsLoadedFromResourcesOfOneNumber)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    EXPECT_EQ(textIn(*frame), L"Frame of the test") << "up to the line feed";
    EXPECT_STREQ(frame->GetTitle(), L"Frame of the test");
    ASSERT_NE(frame->GetMenu(), nullptr);
    EXPECT_EQ(frame->GetMenu()->GetSubMenu(0)->GetMenuItemID(0), static_cast<UINT>(ID_TEST_ACT));
    EXPECT_EQ(frame->m_hMenuDefault, frame->GetMenu()->m_hMenu);
    EXPECT_FALSE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_FRAME))) << "it has its accelerators already";
    const HMENU menu = frame->m_hMenuDefault;
    frame->DestroyWindow();
    EXPECT_FALSE(::IsMenu(menu));
}

TEST(Frame, IsLoadedWithoutTheResourcesThatThereAreNot)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME_MISSING));
    EXPECT_EQ(textIn(*frame), L"");
    EXPECT_EQ(::GetMenu(*frame), nullptr);
    frame->DestroyWindow();
}

TEST(Frame, MakesTheViewOfItsContext)
{
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(TestView);
    TestView::s_log.clear();
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME, WS_OVERLAPPEDWINDOW, nullptr, &context));
    auto* view = dynamic_cast<TestView*>(frame->GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(frame->GetActiveView(), nullptr) << "not active yet";
    EXPECT_TRUE(TestView::s_log.empty()) << "a caller that gives a context tells the views when they are ready";
    EXPECT_TRUE(view->GetExStyle() & WS_EX_CLIENTEDGE);

    frame->InitialUpdateFrame(nullptr, FALSE);
    EXPECT_EQ(TestView::s_log, Log{"view initial update"});
    EXPECT_EQ(frame->GetActiveView(), view);
    EXPECT_FALSE(frame->IsWindowVisible());
    frame->DestroyWindow();
}

TEST(Frame, TellsItsViewsThatTheyAreReady)
{
    class WithView : public TestFrame
    {
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return addView() != nullptr; }
    };
    TestView::s_log.clear();
    auto* frame = new WithView;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    EXPECT_EQ(TestView::s_log, Log{"view initial update"});
    frame->DestroyWindow();
}

TEST(Frame, IsShownWithItsViewsReady)
{
    const MainFrame frame(TestFrame::makeEmpty());
    TestView* view = frame->addView();
    frame->InitialUpdateFrame(nullptr, TRUE);
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(TestView::s_log.front(), "view initial update") << "before it is seen";
    EXPECT_TRUE(GuiThread::runUntil([&] { return ::GetFocus() == view->m_hWnd; }));
}

TEST(Frame, AMenuPutInPlaceOfItsOwnStaysItsMakers)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    CMenu other;
    other.LoadMenu(IDR_POPUP);
    const HMENU own = frame->m_hMenuDefault;
    frame->SetMenu(&other);
    frame->DestroyWindow();
    EXPECT_FALSE(::IsMenu(own));
    EXPECT_TRUE(::IsMenu(other));
}

TEST(Frame, ItsTitleIsTheWindowsText)
{
    const MainFrame frame;
    EXPECT_STREQ(frame->GetTitle(), L"Test frame");
    frame->SetTitle(L"Oak");
    EXPECT_EQ(textIn(*frame), L"Oak");
    EXPECT_STREQ(frame->GetTitle(), L"Oak");
}

TEST(Frame, IsRestoredWhenItIsActivated)
{
    const MainFrame frame;
    frame->ActivateFrame();
    EXPECT_TRUE(frame->IsWindowVisible());
    frame->ShowWindow(SW_MINIMIZE);
    frame->ActivateFrame();
    EXPECT_FALSE(frame->IsIconic());
}

// Commands and keys

TEST(Frame, ACommandGoesToTheActiveViewThenToTheFrame)
{
    const MainFrame frame;
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(TestView::s_log, (Log{"view", "frame"}));
    TestView::s_log.clear();
    TestView::s_taker = "view";
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(TestView::s_log, Log{"view"});
    TestView::s_log.clear();
    frame->SetActiveView(nullptr);
    TestView::s_log.clear();
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(TestView::s_log, Log{"frame"}) << "a view that is not active is not asked";
}

TEST(Frame, ItsAcceleratorsAreItsCommands)
{
    auto* loaded = new TestFrame;
    ASSERT_TRUE(loaded->LoadFrame(IDR_FRAME));
    const MainFrame frame(loaded);
    TestView::s_taker = "frame";
    int others = 0;
    frame->onOther = [&] { ++others; };
    present(*frame);
    Robot().key(VK_F6).holding(VK_CONTROL).key('G').letGo(VK_CONTROL).key('G');
    EXPECT_EQ(frame->acted, 1);
    EXPECT_EQ(others, 1) << "the letter alone is none";
}

TEST(Frame, ItsAcceleratorsHoldInItsBarsAndItsModelessDialogs)
{
    auto* loaded = new TestFrame;
    ASSERT_TRUE(loaded->LoadFrame(IDR_FRAME));
    const MainFrame frame(loaded);
    present(*frame);
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(dialog.createModeless(&*frame));
    present(dialog);
    Robot().key(VK_TAB).key(VK_F6);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), TestDialog::kEdit) << "the dialog's own keys come first";
    dialog.DestroyWindow();
}

// Views and focus

TEST(Frame, TheActiveViewHasTheFocus)
{
    const MainFrame frame;
    present(*frame);
    EXPECT_EQ(::GetFocus(), frame->view->m_hWnd);
    frame->SetFocus();
    EXPECT_EQ(::GetFocus(), frame->view->m_hWnd);
}

TEST(Frame, AClickMakesAViewTheActiveOne)
{
    const MainFrame frame;
    TestView* second = frame->addView(AFX_IDW_PANE_FIRST + 1);
    second->name = "second";
    second->SetWindowPos(&CWnd::wndTop, 0, 0, 100, 100, 0);
    present(*frame);
    TestView::s_log.clear();
    Robot().click(Spot{*second});
    EXPECT_EQ(frame->GetActiveView(), second);
    EXPECT_EQ(::GetFocus(), second->m_hWnd);
    EXPECT_EQ(TestView::s_log, (Log{"view deactivated", "second activated"}));
}

TEST(Frame, AClickBringsTheFocusBackToTheActiveView)
{
    const MainFrame frame;
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 20), &*frame, 7);
    edit.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    present(*frame);
    edit.SetFocus();
    Robot().click(Spot{*frame->view});
    EXPECT_EQ(::GetFocus(), frame->view->m_hWnd);
}

TEST(Frame, TheViewIsToldWhenTheFrameIsActivated)
{
    const MainFrame frame;
    OwnerWindow other;
    present(*frame);
    TestView::s_log.clear();
    present(other);
    EXPECT_EQ(TestView::s_log, Log{"frame deactivated"});
    TestView::s_log.clear();
    present(*frame);
    EXPECT_EQ(TestView::s_log, (Log{"view activated again", "frame activated"}));
}

TEST(Frame, AViewThatGoesIsActiveNoLonger)
{
    const MainFrame frame;
    frame->view->DestroyWindow();
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    frame->SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(frame->acted, 1);
}

TEST(Frame, ScrollBarsBesideTheViewScrollIt)
{
    const MainFrame frame;
    CScrollBar bar;
    bar.Create(SBS_VERT | WS_CHILD, CRect(0, 0, 16, 100), &*frame, 7);
    TestView::s_log.clear();
    frame->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 42), reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(TestView::s_log, Log{"view scrolled 5 42"});
}

TEST(Frame, TheViewIsPaintedByItsDrawing)
{
    const MainFrame frame;
    present(*frame);
    const int before = frame->view->drawn;
    frame->view->Invalidate();
    frame->view->UpdateWindow();
    EXPECT_EQ(frame->view->drawn, before + 1);
}

// The modal state

TEST(Frame, AModalDialogHasTheProgramToItself)
{
    const MainFrame frame;
    present(*frame);
    TestDialog tool(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(tool.createModeless(&*frame));
    TestDialog disabledTool(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(disabledTool.createModeless(&*frame));
    disabledTool.EnableWindow(FALSE);
    OwnerWindow stranger;

    TestDialog modal(&*frame);
    std::vector<BOOL> meanwhile;
    BOOL modalState = FALSE;
    auto story =
        Robot()
            .waitFor("the modal dialog", [&] { return modal.m_hWnd && shownDialog() == modal.m_hWnd; })
            .then([&] {
                meanwhile = {frame->IsWindowEnabled(), tool.IsWindowEnabled(), stranger.IsWindowEnabled()};
                modalState = frame->InModalState();
            })
            .key(VK_ESCAPE)
            .start();
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_EQ(meanwhile, (std::vector<BOOL>{FALSE, FALSE, TRUE}));
    EXPECT_TRUE(modalState);
    EXPECT_FALSE(frame->InModalState());
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_TRUE(tool.IsWindowEnabled());
    EXPECT_FALSE(disabledTool.IsWindowEnabled()) << "what was disabled before stays so";
    tool.DestroyWindow();
    disabledTool.DestroyWindow();
}

TEST(Frame, ModalStatesNest)
{
    const MainFrame frame;
    frame->BeginModalState();
    frame->BeginModalState();
    frame->EndModalState();
    EXPECT_TRUE(frame->InModalState());
    EXPECT_FALSE(frame->IsWindowEnabled());
    frame->EndModalState();
    EXPECT_FALSE(frame->InModalState());
    EXPECT_TRUE(frame->IsWindowEnabled());
    frame->EndModalState();
    EXPECT_TRUE(frame->IsWindowEnabled()) << "one too many does nothing";
}

TEST(Frame, AWindowMayRefuseToBeDisabled)
{
    class Stubborn : public TestDialog
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_DISABLEMODAL ? 1 : TestDialog::WindowProc(message, wParam, lParam);
        }
    } tool;
    const MainFrame frame;
    ASSERT_TRUE(tool.createModeless(&*frame));
    frame->BeginModalState();
    EXPECT_TRUE(tool.IsWindowEnabled());
    frame->EndModalState();
    tool.DestroyWindow();
}

TEST(Frame, AFrameMayGoWhileItsModalDialogIsOpen)
{
    TestFrame* frame = TestFrame::make();
    TestDialog modal(frame);
    modal.onAct = [&](TestDialog&) { frame->DestroyWindow(); };
    auto story =
        whenShown().then([] { ::PostMessageW(shownDialog(), WM_COMMAND, TestDialog::kAct, 0); }).start();
    EXPECT_EQ(modal.DoModal(), IDABORT) << "the dialog has gone with its owner";
}

TEST(Frame, ItsOwnedWindowsAreHiddenAndShownTogether)
{
    const MainFrame frame;
    present(*frame);
    TestDialog tool(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(tool.createModeless(&*frame));
    frame->ShowOwnedWindows(FALSE);
    EXPECT_FALSE(tool.IsWindowVisible());
    frame->ShowOwnedWindows(TRUE);
    EXPECT_TRUE(tool.IsWindowVisible());
    tool.DestroyWindow();
}

// Its window class

TEST(FrameClass, HasTheArrowAWindowsBackgroundAndIsPaintedAnewWhenSized)
{
    const MainFrame frame;
    for (const HWND wnd : {frame->m_hWnd, frame->view->m_hWnd}) {
        EXPECT_EQ(::GetClassLongPtrW(wnd, GCL_STYLE), ULONG_PTR{CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW});
        EXPECT_EQ(::GetClassLongPtrW(wnd, GCLP_HBRBACKGROUND), ULONG_PTR{COLOR_WINDOW + 1});
        EXPECT_EQ(::GetClassLongPtrW(wnd, GCLP_HCURSOR),
                  reinterpret_cast<ULONG_PTR>(::LoadCursorW(nullptr, IDC_ARROW)));
    }
}

TEST(FrameClass, HasTheIconOfItsNumberElseTheStandardOne)
{
    const auto iconOf = [](UINT id) {
        auto* frame = new TestFrame;
        EXPECT_TRUE(frame->LoadFrame(id));
        const auto icon = reinterpret_cast<HICON>(::GetClassLongPtrW(frame->m_hWnd, GCLP_HICON));
        frame->DestroyWindow();
        return icon;
    };
    EXPECT_EQ(iconOf(IDR_FRAME), AfxGetApp()->LoadIcon(AFX_IDI_STD_FRAME)) << "it has none of its own";
    EXPECT_NE(iconOf(IDR_FRAME), nullptr);
    EXPECT_EQ(iconOf(IDR_POPUP), AfxGetApp()->LoadIcon(IDR_POPUP));
    EXPECT_NE(iconOf(IDR_POPUP), iconOf(IDR_FRAME));
}

TEST(FrameClass, ItsViewIsPaintedWholeWhenItGrows)
{
    class PaintedView : public TestView
    {
    public:
        CRect painted;
        using TestView::OnDraw;
        void OnDraw(CDC* dc) override { dc->GetClipBox(&painted); }
    };
    const MainFrame frame(TestFrame::makeEmpty());
    auto* view = new PaintedView;
    view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(), &*frame, AFX_IDW_PANE_FIRST);
    frame->RecalcLayout();
    present(*frame);
    view->painted.SetRectEmpty();
    frame->SetWindowPos(nullptr, 0, 0, 540, 440, SWP_NOMOVE | SWP_NOZORDER);
    GuiThread::settle();
    CRect client;
    view->GetClientRect(&client);
    EXPECT_EQ(view->painted, client);
}
