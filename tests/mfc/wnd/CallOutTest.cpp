// Exceptions that handlers raise while the system is in between: where they come out, and what they leave
// alone.
#include "Windows.h"

#include <testkit/DebugOutput.h>
#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <stdexcept>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

struct Oak : std::runtime_error
{
    explicit Oak(const std::string& what = "oak")
        : std::runtime_error(what)
    {
    }
};

/// Does what it is told on a message, and counts the messages.
class Acting : public Hidden<>
{
public:
    std::map<UINT, std::function<void()>> on;
    std::map<UINT, int> count;

    void throwOn(UINT message)
    {
        on[message] = [] { throw Oak(); };
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++count[message];
        if (const auto found = on.find(message); found != on.end()) {
            const auto deed = found->second;
            deed();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// Calls that have nothing to do with an exception that waits.
void everyGetter(CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    wnd.GetWindowTextLength();
    wnd.GetStyle();
    wnd.GetFont();
    wnd.IsWindowVisible();
    wnd.GetIcon(TRUE);
    wnd.SendMessage(WM_NULL);
    wnd.SetWindowText(L"ash");
    wnd.EnableWindow();
    wnd.UpdateWindow();
}

/// The message loop goes on, until the queue is empty.
void goOn(CWnd& wnd)
{
    wnd.PostMessage(WM_NULL);
    GuiThread::settle();
}

/// Whether any call of the framework still has an exception to raise.
bool nothingIsLeft()
{
    Hidden<> probe;
    try {
        probe.create();
        probe.SendMessage(WM_NULL);
        goOn(probe);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

class CallOuts : public ::testing::Test
{
protected:
    CallOuts() { wnd.create(WS_OVERLAPPEDWINDOW); }
    ~CallOuts() override
    {
        wnd.on.clear();
        wnd.DestroyWindow();
        EXPECT_TRUE(nothingIsLeft());
    }

    Acting wnd;
};

} // namespace

TEST_F(CallOuts, RaiseWhatAHandlerRaised)
{
    struct Case
    {
        UINT message;
        std::function<void(CWnd&)> call;
    };
    const std::vector<Case> cases{
        {WM_APP, [](CWnd& w) { w.SendMessage(WM_APP); }},
        {WM_COMMAND, [](CWnd& w) { w.SendMessage(WM_COMMAND, 5); }},
        {WM_SIZE, [](CWnd& w) { w.SetWindowPos(nullptr, 0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER); }},
        {WM_MOVE, [](CWnd& w) { w.MoveWindow(40, 50, 300, 300); }},
        {WM_WINDOWPOSCHANGING,
         [](CWnd& w) { w.SetWindowPos(nullptr, 9, 9, 0, 0, SWP_NOSIZE | SWP_NOZORDER); }},
        {WM_STYLECHANGED, [](CWnd& w) { w.ModifyStyle(WS_MAXIMIZEBOX, 0); }},
        {WM_NCCALCSIZE, [](CWnd& w) { w.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED); }},
        {WM_ENABLE, [](CWnd& w) { w.EnableWindow(FALSE); }},
        {WM_SHOWWINDOW, [](CWnd& w) { w.ShowWindow(SW_SHOWNOACTIVATE); }},
        {WM_PAINT, [](CWnd& w) { w.RedrawWindow(); }},
        {WM_PAINT, [](CWnd& w) { w.Invalidate(), w.UpdateWindow(); }},
        {WM_ERASEBKGND,
         [](CWnd& w) { w.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW); }},
        {WM_SETFOCUS, [](CWnd& w) { w.SetFocus(); }},
        {WM_SETTEXT, [](CWnd& w) { w.SetWindowText(L"ash"); }},
        {WM_GETTEXT,
         [](CWnd& w) {
             CString text;
             w.GetWindowText(text);
         }},
        {WM_GETTEXTLENGTH, [](CWnd& w) { w.GetWindowTextLength(); }},
        {WM_CAPTURECHANGED,
         [](CWnd& w) {
             w.SetCapture();
             Hidden<> next;
             next.create();
             next.SetCapture();
         }},
        {WM_PRINT,
         [](CWnd& w) {
             CClientDC dc(nullptr);
             w.Print(&dc, PRF_CLIENT);
         }},
        {WM_SETFONT, [](CWnd& w) { w.SetFont(nullptr); }},
        {WM_SETICON, [](CWnd& w) { w.SetIcon(nullptr, TRUE); }},
    };
    for (const Case& c : cases) {
        wnd.on.clear();
        wnd.EnableWindow();
        wnd.throwOn(c.message);
        EXPECT_THROW(c.call(wnd), Oak) << "message " << c.message;
        wnd.on.clear();
        EXPECT_NO_THROW(wnd.SendMessage(WM_NULL)) << "left behind by message " << c.message;
    }
    ::ReleaseCapture();
}

TEST_F(CallOuts, OfTheLoopRaiseForPostedMessagesTimersAndPainting)
{
    const auto pump = [] { GuiThread::runUntil([] { return false; }, std::chrono::milliseconds{5000}); };

    wnd.throwOn(WM_APP);
    wnd.PostMessage(WM_APP);
    EXPECT_THROW(pump(), Oak);

    wnd.on.clear();
    wnd.throwOn(WM_TIMER);
    wnd.SetTimer(7, 10, nullptr);
    EXPECT_THROW(pump(), Oak);
    wnd.KillTimer(7);

    wnd.on.clear();
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    GuiThread::settle();
    wnd.throwOn(WM_PAINT);
    wnd.Invalidate();
    EXPECT_THROW(pump(), Oak);
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr)) << "a window that cannot paint is not asked for ever";
    wnd.on.clear();
    wnd.ShowWindow(SW_HIDE);
}

TEST_F(CallOuts, RaiseThroughEveryLevel)
{
    wnd.on[WM_APP] = [this] { wnd.SendMessage(WM_APP + 1); };
    wnd.on[WM_APP + 1] = [this] { wnd.MoveWindow(1, 2, 333, 222); };
    wnd.throwOn(WM_SIZE);
    EXPECT_THROW(wnd.SendMessage(WM_APP), Oak);
}

TEST_F(CallOuts, LetAHandlerOnTheWayCatchIt)
{
    bool caught = false;
    wnd.on[WM_APP] = [&] {
        try {
            wnd.SendMessage(WM_APP + 1);
        } catch (const Oak&) {
            caught = true;
        }
    };
    wnd.throwOn(WM_APP + 1);
    EXPECT_NO_THROW(wnd.SendMessage(WM_APP));
    EXPECT_TRUE(caught);
}

TEST_F(CallOuts, DoNotInterruptHandlersThatComeAfterTheOneThatFailed)
{
    // WM_SIZE follows WM_MOVE within the same call of the system. Its handler makes calls of its own, which
    // must not raise what WM_MOVE's handler raised.
    bool finished = false;
    wnd.throwOn(WM_MOVE);
    wnd.on[WM_SIZE] = [&] {
        wnd.SendMessage(WM_NULL);
        wnd.SetWindowText(L"elm");
        finished = true;
    };
    EXPECT_THROW(wnd.MoveWindow(70, 80, 333, 222), Oak);
    EXPECT_GT(wnd.count[WM_SIZE], 0);
    EXPECT_TRUE(finished);
}

TEST_F(CallOuts, RaiseTheFirstOfSeveral)
{
    wnd.on[WM_MOVE] = [] { throw Oak("first"); };
    wnd.on[WM_SIZE] = [] { throw Oak("second"); };
    try {
        wnd.MoveWindow(70, 80, 333, 222);
        ADD_FAILURE() << "nothing was raised";
    } catch (const Oak& oak) {
        EXPECT_STREQ(oak.what(), "first");
    }
}

TEST_F(CallOuts, OfALaterHandlerStillRaiseTheirOwn)
{
    // Inside the handler that comes after the failed one, a call of its own fails as well: it learns of that.
    bool learned = false;
    wnd.on[WM_MOVE] = [] { throw Oak("outer"); };
    wnd.on[WM_APP] = [] { throw Oak("inner"); };
    wnd.on[WM_SIZE] = [&] {
        try {
            wnd.SendMessage(WM_APP);
        } catch (const Oak& oak) {
            learned = std::string(oak.what()) == "inner";
        }
    };
    try {
        wnd.MoveWindow(70, 80, 333, 222);
        ADD_FAILURE() << "nothing was raised";
    } catch (const Oak& oak) {
        EXPECT_STREQ(oak.what(), "outer");
    }
    EXPECT_TRUE(learned);
}

TEST_F(CallOuts, DoNotRaiseWhileAnotherExceptionUnwinds)
{
    struct Moving
    {
        CWnd& wnd;
        ~Moving() { wnd.MoveWindow(70, 80, 333, 222); } // would end the program if it raised
    };
    wnd.throwOn(WM_SIZE);
    try {
        const Moving moving{wnd};
        throw std::logic_error("elm");
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "elm");
    }
    wnd.on.clear();
    EXPECT_NO_THROW(everyGetter(wnd));
    EXPECT_THROW(goOn(wnd), Oak) << "it is not lost: the message loop raises it";
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, HandOverToTheCallFurtherOutWhatADestructorHadToKeep)
{
    struct Moving
    {
        CWnd& wnd;
        ~Moving() { wnd.MoveWindow(70, 80, 333, 222); }
    };
    bool finished = false;
    wnd.throwOn(WM_SIZE);
    wnd.on[WM_APP] = [&] {
        try {
            const Moving moving{wnd};
            throw std::logic_error("elm");
        } catch (const std::logic_error&) {
        }
        everyGetter(wnd);
        finished = true;
    };
    EXPECT_THROW(wnd.SendMessage(WM_APP), Oak);
    EXPECT_TRUE(finished) << "calls of the same handler do not raise it";
}

TEST_F(CallOuts, OfAHandlerThatRunsDuringUnwindingRaiseInsideIt)
{
    bool caught = false;
    wnd.on[WM_APP] = [&] {
        try {
            wnd.SendMessage(WM_APP + 1);
        } catch (const Oak&) {
            caught = true;
        }
    };
    wnd.throwOn(WM_APP + 1);
    struct Sending
    {
        CWnd& wnd;
        ~Sending() { wnd.SendMessage(WM_APP); }
    };
    try {
        const Sending sending{wnd};
        throw std::logic_error("elm");
    } catch (const std::logic_error&) {
    }
    EXPECT_TRUE(caught);
}

TEST_F(CallOuts, RaiseWhatADestructorHadToKeep)
{
    // ~CWnd destroys the child, of which the parent is told.
    {
        CWnd child;
        wnd.on.clear();
        child.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 9, 9), &wnd, 5);
        wnd.throwOn(WM_PARENTNOTIFY);
    }
    wnd.on.clear();
    EXPECT_NO_THROW(everyGetter(wnd));
    EXPECT_THROW(goOn(wnd), Oak);
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, OfTheSystemsOwnFunctionsAreMadeUpForByTheLoop)
{
    wnd.throwOn(WM_SIZE);
    EXPECT_TRUE(::SetWindowPos(wnd, nullptr, 0, 0, 333, 222, SWP_NOMOVE));
    wnd.on.clear();
    EXPECT_NO_THROW(everyGetter(wnd));
    CTreeCtrl tree;
    EXPECT_NO_THROW(tree.Create(WS_CHILD, CRect(0, 0, 90, 90), &wnd, 4));
    EXPECT_NO_THROW(tree.InsertItem(L"oak"));
    EXPECT_EQ(tree.GetCount(), 1u);
    EXPECT_THROW(goOn(wnd), Oak);
    EXPECT_NO_THROW(goOn(wnd));
    EXPECT_EQ(tree.GetCount(), 1u);
    tree.DestroyWindow();
}

TEST_F(CallOuts, OfTheSystemsOwnFunctionsAreMadeUpForByAModalLoop)
{
    wnd.throwOn(WM_SIZE);
    ::SetWindowPos(wnd, nullptr, 0, 0, 333, 222, SWP_NOMOVE);
    wnd.on.clear();
    wnd.PostMessage(WM_CLOSE); // ends the loop if nothing else does
    EXPECT_THROW(wnd.RunModalLoop(), Oak);
    EXPECT_NO_THROW(everyGetter(wnd));
}

TEST_F(CallOuts, OfTheSystemsOwnFunctionsInAHandlerAreMadeUpForByTheCallThatLedThere)
{
    bool finished = false;
    wnd.throwOn(WM_SIZE);
    wnd.on[WM_APP] = [&] {
        ::SetWindowPos(wnd, nullptr, 0, 0, 333, 222, SWP_NOMOVE);
        everyGetter(wnd);
        finished = true;
    };
    EXPECT_THROW(wnd.SendMessage(WM_APP), Oak);
    EXPECT_TRUE(finished);
}

TEST_F(CallOuts, AreNotNeededWhereTheProgramItselfSendsTheMessage)
{
    wnd.throwOn(WM_APP);
    EXPECT_THROW(::SendMessageW(wnd, WM_APP, 0, 0), Oak);
    EXPECT_THROW(::SendMessageA(wnd, WM_APP, 0, 0), Oak);
    EXPECT_EQ(CWnd::GetCurrentMessage()->message, 0u) << "no message is being handled any more";
    EXPECT_NO_THROW(everyGetter(wnd));
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, LetAHandlerCatchWhatItsOwnMessageRaises)
{
    bool caught = false;
    wnd.throwOn(WM_APP + 1);
    wnd.on[WM_APP] = [&] {
        try {
            ::SendMessageW(wnd, WM_APP + 1, 0, 0);
        } catch (const Oak&) {
            caught = true;
        }
    };
    EXPECT_NO_THROW(wnd.SendMessage(WM_APP));
    EXPECT_TRUE(caught);
    // The outer message comes from within the system, which is not to be left through.
    caught = false;
    wnd.on[WM_SIZE] = wnd.on[WM_APP];
    EXPECT_NO_THROW(wnd.MoveWindow(1, 2, 320, 240));
    EXPECT_TRUE(caught);
}

TEST_F(CallOuts, RaiseWhatAHandlerLetsPass)
{
    wnd.throwOn(WM_APP + 1);
    wnd.on[WM_SIZE] = [&] { ::SendMessageW(wnd, WM_APP + 1, 0, 0); };
    EXPECT_THROW(wnd.MoveWindow(1, 2, 320, 240), Oak);
    EXPECT_NO_THROW(everyGetter(wnd));
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, OfADestructorThatSendsWhileTheStackIsUnwoundKeepIt)
{
    struct Sending
    {
        CWnd& wnd;
        ~Sending() { ::SendMessageW(wnd, WM_APP, 0, 0); }
    };
    wnd.throwOn(WM_APP);
    try {
        const Sending sending{wnd};
        throw std::logic_error("elm");
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "elm");
    }
    EXPECT_NO_THROW(everyGetter(wnd));
    EXPECT_THROW(goOn(wnd), Oak);
}

TEST_F(CallOuts, AreNotCutShortByAnExceptionThroughTheSystemsOwnLoops)
{
    // A message box runs a loop of its own. An exception that left through it would leave the box behind.
    wnd.throwOn(WM_APP);
    wnd.PostMessage(WM_APP);
    Robot robot;
    auto answering = robot.waitFor("the box", [] { return shownDialog() != nullptr; }).key(VK_RETURN).start();
    EXPECT_EQ(::MessageBoxW(nullptr, L"oak?", L"box", MB_OK), IDOK);
    EXPECT_EQ(shownDialog(), nullptr);
    EXPECT_THROW(goOn(wnd), Oak);
}

TEST_F(CallOuts, DropTheSecondOfTwoThatWaitAndSaySo)
{
    const DebugOutput output;
    wnd.on[WM_MOVE] = [] { throw Oak("first"); };
    wnd.on[WM_SIZE] = [] { throw Oak("second"); };
    EXPECT_THROW(wnd.MoveWindow(70, 80, 333, 222), Oak);
    EXPECT_EQ(output.count(L"dropped"), 1);
    EXPECT_EQ(output.count(L"second"), 1);
    EXPECT_EQ(output.count(L"first"), 0);
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, SayThatOneWaitsForTheLoop)
{
    const DebugOutput output;
    wnd.throwOn(WM_SIZE);
    ::SetWindowPos(wnd, nullptr, 0, 0, 333, 222, SWP_NOMOVE);
    EXPECT_EQ(output.count(L"oak"), 1);
    ::SetWindowPos(wnd, nullptr, 0, 0, 320, 240, SWP_NOMOVE);
    EXPECT_EQ(output.count(L"dropped"), 1);
    EXPECT_THROW(goOn(wnd), Oak);
    EXPECT_NO_THROW(goOn(wnd));
}

TEST_F(CallOuts, RaiseForAReflectedNotification)
{
    class Tree : public CTreeCtrl
    {
    public:
        bool throws = false;

    protected:
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (throws && message == WM_NOTIFY &&
                reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(TVN_SELCHANGED))
                throw Oak();
            return CTreeCtrl::OnChildNotify(message, wParam, lParam, result);
        }
    } tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 90, 90), &wnd, 4));
    const HTREEITEM item = tree.InsertItem(L"oak");
    const HTREEITEM other = tree.InsertItem(L"elm");
    tree.throws = true;
    EXPECT_THROW(tree.SelectItem(item), Oak);
    tree.throws = false;
    EXPECT_NO_THROW(tree.SelectItem(other));
    EXPECT_EQ(tree.GetSelectedItem(), other) << "the control is in order";
    tree.DestroyWindow();
}

TEST_F(CallOuts, RaiseForEveryDescendant)
{
    Acting child;
    child.createChild(wnd, 5);
    for (const BOOL onlyPermanent : {FALSE, TRUE}) {
        child.throwOn(WM_APP);
        EXPECT_THROW(wnd.SendMessageToDescendants(WM_APP, 0, 0, TRUE, onlyPermanent), Oak);
        child.on.clear();
        EXPECT_NO_THROW(wnd.SendMessage(WM_NULL));
    }
    child.DestroyWindow();
}

TEST_F(CallOuts, OfAFrameworkExceptionAreReportedInPlace)
{
    wnd.on[WM_APP] = [] { AfxThrowResourceException(); };
    EXPECT_NO_THROW(wnd.SendMessage(WM_APP));
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u);
    wnd.on[WM_APP] = [] { AfxThrowUserException(); };
    wnd.SendMessage(WM_APP);
    EXPECT_EQ(TestApp::instance().boxes().size(), 1u) << "the user has been told already";
}

TEST_F(CallOuts, AFrameworkExceptionWhilePaintingValidatesTheWindow)
{
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    GuiThread::settle();
    wnd.on[WM_PAINT] = [] { AfxThrowUserException(); };
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    wnd.on.clear();
    wnd.ShowWindow(SW_HIDE);
}
