// Loops that a window runs until it has what it waits for.
#include "Windows.h"

#include <afxpriv.h>

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

constexpr UINT kEnd = WM_APP + 1;
constexpr UINT kAct = WM_APP + 2;

/// Ends its loop with the number posted to it.
class Waiting : public Hidden<>
{
public:
    int shown = 0;
    std::vector<LONG> kicks;
    size_t kicksWanted = 0; // ends the loop with 100 after so many
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message) {
        case kEnd:
            EndModalLoop(static_cast<int>(wParam));
            break;
        case kAct:
            act();
            break;
        case WM_TIMER:
            KillTimer(wParam);
            EndModalLoop(7);
            break;
        case WM_SHOWWINDOW:
            shown += wParam ? 1 : 0;
            break;
        case WM_KICKIDLE:
            EXPECT_EQ(wParam, static_cast<WPARAM>(MSGF_DIALOGBOX));
            kicks.push_back(static_cast<LONG>(lParam));
            if (kicks.size() == kicksWanted)
                EndModalLoop(100 + (IsWindowVisible() ? 1 : 0));
            return kicks.size() < kicksWanted;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Owner : public Hidden<>
{
public:
    int idles = 0;
    HWND who = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
            ++idles;
            who = reinterpret_cast<HWND>(lParam);
            ::PostMessageW(who, kEnd, 7, 0);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(ModalLoop, GivesWhatItWasEndedWith)
{
    Waiting wnd;
    wnd.create();
    wnd.PostMessage(kEnd, 42);
    EXPECT_EQ(wnd.RunModalLoop(), 42);
    wnd.PostMessage(kEnd, 43);
    EXPECT_EQ(wnd.RunModalLoop(), 43) << "and may be run again";
    EXPECT_FALSE(wnd.ContinueModal()) << "no loop runs now";
}

TEST(ModalLoop, ShowsTheWindowOnceTheQueueIsEmptyIfAskedTo)
{
    Waiting wnd;
    wnd.create();
    wnd.kicksWanted = 1;
    EXPECT_EQ(wnd.RunModalLoop(), 100) << "unasked it stays hidden";
    EXPECT_EQ(wnd.shown, 0);
    wnd.kicks.clear();
    EXPECT_EQ(wnd.RunModalLoop(MLF_SHOWONIDLE), 101);
    EXPECT_EQ(wnd.shown, 1);
    wnd.ShowWindow(SW_HIDE);
}

TEST(ModalLoop, ThatEndsAtOnceNeverShowsTheWindow)
{
    Waiting wnd;
    wnd.create();
    wnd.PostMessage(kEnd, 1);
    wnd.RunModalLoop(MLF_SHOWONIDLE);
    EXPECT_EQ(wnd.shown, 0);
}

TEST(ModalLoop, KicksTheWindowAsLongAsItHasIdleWork)
{
    Waiting wnd;
    wnd.create();
    wnd.kicksWanted = 3;
    EXPECT_EQ(wnd.RunModalLoop(), 100);
    EXPECT_EQ(wnd.kicks, (std::vector<LONG>{0, 1, 2}));
}

TEST(ModalLoop, DoesNotKickIfToldSo)
{
    Waiting wnd;
    wnd.create();
    wnd.SetTimer(1, 20, nullptr);
    EXPECT_EQ(wnd.RunModalLoop(MLF_NOKICKIDLE), 7);
    EXPECT_TRUE(wnd.kicks.empty());
}

TEST(ModalLoop, TellsTheOwnerThatItIsIdleUnlessToldNotTo)
{
    Owner owner;
    owner.create();
    Waiting wnd;
    wnd.create(WS_POPUP, &owner);
    wnd.SetTimer(1, 10'000, nullptr); // the owner ends the loop before
    EXPECT_EQ(wnd.RunModalLoop(), 7);
    wnd.KillTimer(1);
    EXPECT_GE(owner.idles, 1);
    EXPECT_EQ(owner.who, wnd.m_hWnd);
    owner.idles = 0;
    wnd.SetTimer(1, 20, nullptr);
    EXPECT_EQ(wnd.RunModalLoop(MLF_NOIDLEMSG), 7);
    EXPECT_EQ(owner.idles, 0);
}

TEST(ModalLoop, EndsWhenTheWindowIsDestroyed)
{
    Waiting wnd;
    wnd.create();
    wnd.PostMessage(WM_CLOSE);
    EXPECT_EQ(wnd.RunModalLoop(), -1);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(ModalLoop, LeavesTheEndOfTheProgramToTheLoopOutside)
{
    Waiting wnd;
    wnd.create();
    ::PostQuitMessage(9);
    EXPECT_EQ(wnd.RunModalLoop(), -1);
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 9u) << "with the exit code that it came with";
}

TEST(ModalLoop, MayRunInsideOfAnother)
{
    Waiting outer;
    outer.create();
    Waiting inner;
    inner.create();
    int innerResult = 0;
    outer.act = [&] {
        inner.PostMessage(kEnd, 5);
        innerResult = inner.RunModalLoop();
        EXPECT_TRUE(outer.ContinueModal()) << "the outer one goes on";
        outer.PostMessage(kEnd, 6);
    };
    outer.PostMessage(kAct);
    EXPECT_EQ(outer.RunModalLoop(), 6);
    EXPECT_EQ(innerResult, 5);
}

TEST(ModalLoop, WhoseWindowIsToldToEndFromWithinAnInnerOneEndsAfterThat)
{
    Waiting outer;
    outer.create();
    Waiting inner;
    inner.create();
    outer.act = [&] {
        outer.PostMessage(kEnd, 6);
        inner.PostMessage(kEnd, 5);
        EXPECT_EQ(inner.RunModalLoop(), 5);
    };
    outer.PostMessage(kAct);
    EXPECT_EQ(outer.RunModalLoop(), 6);
}

TEST(ModalLoop, CanBeHeldByAnOverride)
{
    class Counting : public Waiting
    {
    public:
        int left = 3;

        BOOL ContinueModal() override { return --left > 0; }
    } wnd;
    wnd.create();
    wnd.SetTimer(1, 10, nullptr);
    wnd.RunModalLoop();
    EXPECT_LE(wnd.left, 0);
    wnd.KillTimer(1);
}

TEST(ModalLoop, LetsExceptionsOutAndCanBeRunAgain)
{
    Waiting wnd;
    wnd.create();
    wnd.act = [] { throw std::runtime_error("oak"); };
    wnd.PostMessage(kAct);
    EXPECT_THROW(wnd.RunModalLoop(), std::runtime_error);
    EXPECT_FALSE(wnd.ContinueModal());
    wnd.PostMessage(kEnd, 3);
    EXPECT_EQ(wnd.RunModalLoop(), 3);
}

TEST(ModalLoop, KeepsTemporaryObjectsForTheHandlerThatRunsIt)
{
    const PlainWindow plain;
    Waiting outer;
    outer.create();
    Waiting inner;
    inner.create();
    outer.act = [&] {
        CWnd* temporary = CWnd::FromHandle(plain);
        inner.PostMessage(kEnd, 1);
        inner.RunModalLoop();
        AfxGetThread()->OnIdle(1);
        EXPECT_EQ(CWnd::FromHandle(plain), temporary);
        EXPECT_EQ(temporary->m_hWnd, static_cast<HWND>(plain));
    };
    outer.SendMessage(kAct);
}
