#include <testkit/GuiThread.h>

#include <afxwin.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

using namespace ovo::testkit;
using namespace std::chrono_literals;

namespace
{

/// Posts itself a message again and again.
class Restless : public CWnd
{
public:
    Restless()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", 0, CRect(), CWnd::FromHandle(HWND_MESSAGE), 0);
        PostMessage(WM_APP);
    }
    ~Restless() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
            PostMessage(WM_APP);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(GuiThread, RunsTheLoopUntilTheConditionHolds)
{
    int looks = 0;
    EXPECT_TRUE(GuiThread::runUntil([&] { return ++looks > 3; }));
}

TEST(GuiThread, GivesUpAtTheLimit)
{
    EXPECT_FALSE(GuiThread::runUntil([] { return false; }, 30ms));
}

TEST(GuiThread, FailsTheTestWhoseWindowsDoNotComeToRest)
{
    const Restless restless;

    EXPECT_NONFATAL_FAILURE(GuiThread::settle(30ms), "do not come to rest");
}

TEST(GuiThread, TakesQuitOutOfTheQueueAndRemembersItOnce)
{
    ::PostQuitMessage(3);
    GuiThread::settle();

    EXPECT_TRUE(GuiThread::tookQuit());
    EXPECT_FALSE(GuiThread::tookQuit());
}

TEST(GuiThread, AnswersAnotherThreadWhileItsLoopRuns)
{
    std::atomic<bool> over{false};
    DWORD answered = 0;
    std::thread asking{[&] {
        GuiThread::ask([&] { answered = ::GetCurrentThreadId(); });
        over = true;
    }};
    EXPECT_TRUE(GuiThread::runUntil([&] { return over.load(); }));
    asking.join();

    EXPECT_EQ(answered, ::GetCurrentThreadId());
}

TEST(GuiThread, HandsOnWhatTheQuestionThrows)
{
    std::atomic<bool> over{false};
    std::string caught;
    std::thread asking{[&] {
        try {
            GuiThread::ask([] { throw std::out_of_range("no such thing"); });
        } catch (const std::out_of_range& problem) {
            caught = problem.what();
        }
        over = true;
    }};
    EXPECT_TRUE(GuiThread::runUntil([&] { return over.load(); }));
    asking.join();

    EXPECT_EQ(caught, "no such thing");
}

TEST(GuiThread, QuestionThatWasGivenUpIsNeverAsked)
{
    bool asked = false;
    bool unanswered = false;
    std::thread asking{[&] {
        try {
            GuiThread::ask([&] { asked = true; }, 20ms);
        } catch (const Unanswered&) {
            unanswered = true;
        }
    }};
    asking.join(); // without looking for messages meanwhile
    GuiThread::settle();

    EXPECT_TRUE(unanswered);
    EXPECT_FALSE(asked);
}
