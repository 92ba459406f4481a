// CWinThread: the message loop, who is asked before a message is dispatched, idle work, and exceptions.
#include "Texts.h"
#include "resource.h"
#include <testkit/GuiThread.h>
#include <testkit/RecordingParent.h>
#include <testkit/TestApp.h>

#include <afxwin.h>
#include <afxpriv.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr UINT kSystemTimer = 0x0118; // what makes a caret blink

/// A window that notes who was asked and what arrived.
class CProbeWnd : public CWnd
{
public:
    CProbeWnd(CString& journal, wchar_t name)
        : m_journal(journal)
        , m_name(name)
    {
    }
    ~CProbeWnd() override { DestroyWindow(); }

    void create(CWnd* parent, DWORD style)
    {
        ASSERT_TRUE(
            CreateEx(0, AfxRegisterWndClass(0), L"", style, CRect(0, 0, 50, 50), parent, parent ? 1 : 0));
    }
    void createTopLevel() { create(nullptr, WS_POPUP); }
    void createChild(CWnd& parent) { create(&parent, WS_CHILD | WS_VISIBLE); }

    bool takes = false; ///< whether it is done with the messages it is asked for
    UINT wanted = WM_APP;
    std::function<void()> act; ///< on arrival of the wanted message

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == wanted)
            m_journal.AppendFormat(L"%c? ", m_name);
        return takes && message->message == wanted;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == wanted) {
            m_journal.AppendFormat(L"%c! ", m_name);
            if (act)
                act();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    CString& m_journal;
    wchar_t m_name;
};

/// Makes a window the main window.
class MainWindow
{
public:
    explicit MainWindow(CWnd& window) { AfxGetThread()->m_pMainWnd = &window; }
    ~MainWindow() { AfxGetThread()->m_pMainWnd = nullptr; }
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
};

/// A loop whose idle work is the test's.
class CLoop : public CWinThread
{
public:
    std::vector<LONG> counts;
    std::function<BOOL(LONG)> idle;

    BOOL OnIdle(LONG count) override
    {
        counts.push_back(count);
        return idle(count);
    }
};

/// Fetches and handles messages until one of this number has been handled.
void pumpUntil(UINT message)
{
    do
        ASSERT_TRUE(AfxPumpMessage());
    while (AfxGetCurrentMessage()->message != message);
}

MSG messageOf(UINT message, POINT point = {})
{
    MSG made{};
    made.message = message;
    made.pt = point;
    return made;
}

} // namespace

// Running

TEST(MessageLoop, EndsAtQuitWithItsCode)
{
    CLoop loop;
    loop.idle = [](LONG) { return FALSE; };
    AfxPostQuitMessage(7);
    EXPECT_EQ(loop.Run(), 7);
    EXPECT_EQ(loop.m_msgCur.message, UINT{WM_QUIT});
}

TEST(MessageLoop, IdlesWhileThereIsNothingElseAndTheAnswerIsTrue)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    GuiThread::settle();

    CLoop loop;
    bool again = false;
    loop.idle = [&](LONG count) {
        if (count < 2)
            return TRUE;
        if (std::exchange(again, true))
            AfxPostQuitMessage(0);
        else
            window.PostMessage(WM_APP); // after which idling begins anew
        return FALSE;
    };
    loop.Run();
    EXPECT_EQ(loop.counts, (std::vector<LONG>{0, 1, 2, 0, 1, 2}));
    EXPECT_EQ(journal, L"w? w! ");
}

TEST(MessageLoop, DoesNotIdleWhileMessagesWait)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    GuiThread::settle();
    window.PostMessage(WM_APP);
    window.PostMessage(WM_APP);

    CLoop loop;
    loop.idle = [&](LONG) {
        EXPECT_EQ(journal, L"w? w! w? w! ");
        AfxPostQuitMessage(0);
        return FALSE;
    };
    loop.Run();
    EXPECT_EQ(loop.counts.size(), 1u);
}

TEST(MessageLoop, PumpingSaysWhenItIsOver)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    window.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(AfxGetCurrentMessage()->hwnd, window.m_hWnd);
    AfxPostQuitMessage(0);
    while (AfxPumpMessage()) {
    }
    EXPECT_EQ(AfxGetCurrentMessage()->message, UINT{WM_QUIT});
}

TEST(MessageLoop, TheEndOfTheMainWindowEndsTheProgram)
{
    CString journal;
    CProbeWnd other(journal, L'o');
    CProbeWnd window(journal, L'w');
    other.createTopLevel();
    window.createTopLevel();
    const MainWindow main(window);

    other.DestroyWindow();
    GuiThread::settle();
    EXPECT_FALSE(GuiThread::tookQuit());
    window.DestroyWindow();
    EXPECT_EQ(AfxGetThread()->m_pMainWnd, nullptr);
    GuiThread::settle();
    EXPECT_TRUE(GuiThread::tookQuit());
}

TEST(MessageLoop, TheSystemsTimerReachesItsWindow)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.wanted = kSystemTimer;
    window.createTopLevel();
    window.PostMessage(kSystemTimer);
    pumpUntil(kSystemTimer);
    EXPECT_EQ(journal, L"w? w! ");
}

// Who is asked before

TEST(PreTranslation, GoesFromTheWindowUpToTheMainWindow)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    CProbeWnd middle(journal, L'p');
    CProbeWnd child(journal, L'c');
    main.createTopLevel();
    middle.createChild(main);
    child.createChild(middle);
    const MainWindow role(main);
    child.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"c? p? m? c! ");
}

TEST(PreTranslation, WhoTakesTheMessageEndsIt)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    CProbeWnd middle(journal, L'p');
    CProbeWnd child(journal, L'c');
    main.createTopLevel();
    middle.createChild(main);
    child.createChild(middle);
    middle.takes = true;
    const MainWindow role(main);
    child.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"c? p? ");
}

TEST(PreTranslation, AsksTheMainWindowLastWhenItIsNotOnTheWay)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    CProbeWnd popup(journal, L'p');
    CProbeWnd child(journal, L'c');
    main.createTopLevel();
    popup.createTopLevel();
    child.createChild(popup);
    const MainWindow role(main);
    child.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"c? p? m? c! ");

    journal.Empty();
    main.takes = true;
    child.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"c? p? m? ");
}

TEST(PreTranslation, GoesNoFurtherThanTheMainWindow)
{
    CString journal;
    CProbeWnd outside(journal, L'o');
    CProbeWnd main(journal, L'm');
    CProbeWnd child(journal, L'c');
    outside.createTopLevel();
    main.createChild(outside);
    child.createChild(main);
    const MainWindow role(main);
    child.PostMessage(WM_APP);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"c? m? c! ");
}

TEST(PreTranslation, PassesOverWindowsWithoutAnObject)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    main.createTopLevel();
    const HWND plain =
        ::CreateWindowExW(0, L"Static", nullptr, WS_CHILD, 0, 0, 10, 10, main, nullptr, nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    CWnd::FromHandle(plain); // a temporary object is not asked either
    ::PostMessageW(plain, WM_APP, 0, 0);
    pumpUntil(WM_APP);
    EXPECT_EQ(journal, L"m? ");
}

namespace
{

class CThreadWithMap : public CWinThread
{
public:
    WPARAM seen = 0;

    afx_msg void onThreadMessage(WPARAM wParam, LPARAM) { seen = wParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThreadWithMap, CWinThread)
    ON_THREAD_MESSAGE(WM_APP + 5, &CThreadWithMap::onThreadMessage)
END_MESSAGE_MAP()

} // namespace

TEST(PreTranslation, MessagesOfTheThreadGoToItsOwnMap)
{
    CThreadWithMap thread;
    MSG message = messageOf(WM_APP + 5);
    message.wParam = 12;
    EXPECT_TRUE(thread.PreTranslateMessage(&message));
    EXPECT_EQ(thread.seen, 12u);
    message.message = WM_APP + 6;
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
}

TEST(ThreadMessages, ArriveInTheQueue)
{
    ASSERT_TRUE(AfxGetThread()->PostThreadMessage(WM_APP + 7, 3, 4));
    pumpUntil(WM_APP + 7);
    EXPECT_EQ(AfxGetCurrentMessage()->hwnd, nullptr);
    EXPECT_EQ(AfxGetCurrentMessage()->wParam, 3u);
    EXPECT_EQ(AfxGetCurrentMessage()->lParam, 4);
}

// Idle work

TEST(Idle, IsNotDueAfterMessagesThatChangeNothing)
{
    CWinThread thread;
    MSG paint = messageOf(WM_PAINT);
    MSG caret = messageOf(kSystemTimer);
    EXPECT_FALSE(thread.IsIdleMessage(&paint));
    EXPECT_FALSE(thread.IsIdleMessage(&caret));
    for (const UINT message : {WM_KEYDOWN, WM_LBUTTONDOWN, WM_TIMER, WM_APP, WM_COMMAND}) {
        MSG any = messageOf(message);
        EXPECT_TRUE(thread.IsIdleMessage(&any)) << message;
    }
}

TEST(Idle, IsDueAfterTheMouseMovedAndNotWhenItRests)
{
    CWinThread thread;
    MSG move = messageOf(WM_MOUSEMOVE, {10, 10});
    EXPECT_TRUE(thread.IsIdleMessage(&move));
    EXPECT_FALSE(thread.IsIdleMessage(&move));
    MSG further = messageOf(WM_MOUSEMOVE, {11, 10});
    EXPECT_TRUE(thread.IsIdleMessage(&further));
    MSG outside = messageOf(WM_NCMOUSEMOVE, {11, 10});
    EXPECT_TRUE(thread.IsIdleMessage(&outside)) << "now over the frame";
    EXPECT_FALSE(thread.IsIdleMessage(&outside));
}

TEST(Idle, FirstUpdatesTheCommandsAndThenHasNothingLeftToDo)
{
    EXPECT_TRUE(AfxGetThread()->CWinThread::OnIdle(0));
    EXPECT_FALSE(AfxGetThread()->CWinThread::OnIdle(1));
}

TEST(Idle, UpdatesTheVisibleMainWindowAndAllInIt)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    CProbeWnd child(journal, L'c');
    CProbeWnd grandchild(journal, L'g');
    CProbeWnd stranger(journal, L's');
    for (CProbeWnd* window : {&main, &child, &grandchild, &stranger})
        window->wanted = WM_IDLEUPDATECMDUI;
    main.createTopLevel();
    child.createChild(main);
    grandchild.createChild(child);
    stranger.createTopLevel();
    const MainWindow role(main);

    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(journal, L"") << "no window is shown";
    main.ShowWindow(SW_SHOWNA);
    stranger.ShowWindow(SW_SHOWNA);
    journal.Empty();
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(journal, L"m! c! g! ");
    AfxGetThread()->OnIdle(1);
    EXPECT_EQ(journal, L"m! c! g! ");
}

namespace
{

class CProbeFrame : public CFrameWnd
{
public:
    static inline int updates = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_IDLEUPDATECMDUI)
            ++updates;
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(Idle, UpdatesOtherVisibleFramesToo)
{
    auto* const frame = new CProbeFrame; // deletes itself
    ASSERT_TRUE(frame->Create(nullptr, L"floating", WS_POPUP | WS_CAPTION, CRect(0, 0, 100, 100)));
    CProbeFrame::updates = 0;
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(CProbeFrame::updates, 0);
    frame->ShowWindow(SW_SHOWNA);
    CProbeFrame::updates = 0;
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(CProbeFrame::updates, 1);
    frame->DestroyWindow();
}

TEST(Idle, AHandlerMayDestroyItsWindow)
{
    CString journal;
    CProbeWnd main(journal, L'm');
    CProbeWnd child(journal, L'c');
    main.createTopLevel();
    child.createChild(main);
    main.wanted = WM_IDLEUPDATECMDUI;
    child.wanted = WM_IDLEUPDATECMDUI;
    const MainWindow role(main);
    main.ShowWindow(SW_SHOWNA);
    GuiThread::settle();
    main.act = [&] { main.DestroyWindow(); };
    journal.Empty();
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(journal, L"m! ");
    GuiThread::settle();
    EXPECT_TRUE(GuiThread::tookQuit());
}

TEST(Idle, TakesTemporaryObjectsAwayWhenNoMessageIsBeingHandled)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    const HWND plain =
        ::CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    // What a temporary object was told it forgets with its end.
    CWnd::FromHandle(plain)->SetOwner(&window);
    ASSERT_EQ(CWnd::FromHandle(plain)->GetOwner(), &window);

    window.act = [] { AfxGetThread()->OnIdle(1); };
    window.SendMessage(WM_APP);
    EXPECT_EQ(CWnd::FromHandle(plain)->GetOwner(), &window)
        << "a handler that runs a loop keeps its pointers";

    AfxGetThread()->OnIdle(1);
    EXPECT_NE(CWnd::FromHandle(plain)->GetOwner(), &window);
    ::DestroyWindow(plain);
}

// Exceptions

TEST(LoopExceptions, ComeOutOfThePump)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    window.act = [] { throw std::runtime_error("from the handler"); };
    window.PostMessage(WM_APP);
    EXPECT_THROW(pumpUntil(WM_APP), std::runtime_error);

    window.act = nullptr;
    window.PostMessage(WM_APP);
    EXPECT_NO_THROW(pumpUntil(WM_APP)) << "and it goes on working";
}

TEST(LoopExceptions, ComeOutOfPaintingToo)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.wanted = WM_PAINT;
    window.createTopLevel();
    window.ShowWindow(SW_SHOWNA);
    GuiThread::settle();
    window.act = [&] {
        window.act = nullptr;
        throw std::runtime_error("from painting");
    };
    window.Invalidate();
    EXPECT_THROW(pumpUntil(WM_PAINT), std::runtime_error);
    GuiThread::settle();
}

TEST(LoopExceptions, ComeOutOfIdleWork)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.wanted = WM_IDLEUPDATECMDUI;
    window.createTopLevel();
    const MainWindow role(window);
    window.ShowWindow(SW_SHOWNA);
    GuiThread::settle();
    window.act = [] { throw std::runtime_error("from updating"); };
    EXPECT_THROW(AfxGetThread()->OnIdle(0), std::runtime_error);
    window.act = nullptr;
    EXPECT_NO_THROW(AfxGetThread()->OnIdle(0));
}

TEST(LoopExceptions, TheFrameworksOwnAreReportedAndTheLoopGoesOn)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    window.act = [] { AfxThrowNotSupportedException(); };
    window.PostMessage(WM_APP);
    EXPECT_NO_THROW(pumpUntil(WM_APP));
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_FALSE(TestApp::instance().boxes()[0].text.empty());
}

TEST(ProcessedExceptions, FailCreationWithoutAWord)
{
    CNotSupportedException exception(FALSE);
    const MSG message = messageOf(WM_CREATE);
    EXPECT_EQ(AfxGetThread()->ProcessWndProcException(&exception, &message), -1);
    EXPECT_TRUE(TestApp::instance().boxes().empty());
}

TEST(ProcessedExceptions, EndPaintingWithoutAWord)
{
    CString journal;
    CProbeWnd window(journal, L'w');
    window.createTopLevel();
    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    ASSERT_TRUE(::GetUpdateRect(window, nullptr, FALSE));
    CNotSupportedException exception(FALSE);
    MSG message = messageOf(WM_PAINT);
    message.hwnd = window;
    EXPECT_EQ(AfxGetThread()->ProcessWndProcException(&exception, &message), 0);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE)) << "or it would be asked to paint for ever";
    EXPECT_TRUE(TestApp::instance().boxes().empty());
}

TEST(ProcessedExceptions, OfACommandAreShownAndTheCommandCountsAsHandled)
{
    CSimpleException exception(FALSE, IDS_QUESTION);
    const MSG message = messageOf(WM_COMMAND);
    EXPECT_EQ(AfxGetThread()->ProcessWndProcException(&exception, &message), 1);
    const auto& boxes = TestApp::instance().boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, L"Really?");
    EXPECT_EQ(boxes[0].type & MB_ICONMASK, UINT{MB_ICONEXCLAMATION});
}

TEST(ProcessedExceptions, WithoutATextSayWhatFailed)
{
    CException exception(FALSE);
    MSG message = messageOf(WM_COMMAND);
    AfxGetThread()->ProcessWndProcException(&exception, &message);
    message.message = WM_APP;
    EXPECT_EQ(AfxGetThread()->ProcessWndProcException(&exception, &message), 0);
    const auto& boxes = TestApp::instance().boxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].text, L"The command could not be completed.");
    EXPECT_NE(boxes[1].text, boxes[0].text);
    EXPECT_FALSE(boxes[1].text.empty());
}

TEST(ProcessedExceptions, OfTheUserSayNothing)
{
    CUserException exception(FALSE);
    const MSG message = messageOf(WM_COMMAND);
    EXPECT_EQ(AfxGetThread()->ProcessWndProcException(&exception, &message), 1);
    EXPECT_TRUE(TestApp::instance().boxes().empty());
}
