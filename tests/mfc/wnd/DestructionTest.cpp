// How an object loses its window.
#include "Windows.h"

#include <testkit/GuiThread.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

Log s_log;

class Ending : public Hidden<>
{
public:
    explicit Ending(const char* name = "window")
        : m_name(name)
    {
    }

protected:
    afx_msg void OnDestroy()
    {
        s_log.push_back(m_name + " destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        s_log.push_back(m_name + (FromHandlePermanent(m_hWnd) == this ? " ncdestroy" : " detached too early"));
        CWnd::OnNcDestroy();
        s_log.push_back(m_name + (m_hWnd ? " still attached" : " detached"));
    }
    void PostNcDestroy() override { s_log.push_back(m_name + " end"); }
    DECLARE_MESSAGE_MAP()

private:
    std::string m_name;
};

BEGIN_MESSAGE_MAP(Ending, Hidden<>)
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

struct Oak : std::runtime_error
{
    Oak()
        : std::runtime_error("oak")
    {
    }
};

/// Throws from one message.
class Throwing : public Hidden<>
{
public:
    UINT from = 0;
    int ended = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == from)
            throw Oak();
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++ended; }
};

} // namespace

TEST(Destruction, TheStepsComeInTheirOrder)
{
    s_log.clear();
    Ending wnd;
    wnd.create();
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(s_log, (Log{"window destroy", "window ncdestroy", "window end", "window detached"}));
}

TEST(Destruction, TheSystemsFunctionIsAsGood)
{
    s_log.clear();
    Ending wnd;
    wnd.create();
    ::DestroyWindow(wnd.m_hWnd);
    EXPECT_EQ(s_log, (Log{"window destroy", "window ncdestroy", "window end", "window detached"}));
}

TEST(Destruction, ChildrenGoWithTheirParent)
{
    s_log.clear();
    Ending parent("parent");
    Ending child("child");
    parent.create();
    child.createChild(parent, 3);
    parent.DestroyWindow();
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(s_log, (Log{"parent destroy", "child destroy", "child ncdestroy", "child end", "child detached",
                          "parent ncdestroy", "parent end", "parent detached"}));
}

TEST(Destruction, AnExceptionDoesNotKeepTheObjectFromLettingGo)
{
    for (const UINT message : {WM_DESTROY, WM_NCDESTROY}) {
        Throwing wnd;
        wnd.create();
        const HWND handle = wnd.m_hWnd;
        wnd.from = message;
        EXPECT_THROW(wnd.DestroyWindow(), Oak);
        EXPECT_EQ(wnd.m_hWnd, nullptr) << message;
        EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr) << message;
        EXPECT_EQ(wnd.ended, message == WM_DESTROY ? 1 : 0) << message;
    }
}

TEST(Destruction, AChildsExceptionDoesNotKeepItsParentFromLettingGo)
{
    Throwing parent;
    Throwing child;
    parent.create();
    child.createChild(parent, 3);
    child.from = WM_DESTROY;
    EXPECT_THROW(parent.DestroyWindow(), Oak);
    EXPECT_EQ(parent.m_hWnd, nullptr);
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(parent.ended, 1);
    EXPECT_EQ(child.ended, 1);
}

TEST(Destruction, AHandlerThatForgetsTheBaseClassLeavesNoDeadWindowInTheMap)
{
    class Forgetful : public Hidden<>
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_NCDESTROY ? 0 : CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    wnd.create();
    const HWND handle = wnd.m_hWnd;
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Destruction, AWindowWithAForeignProcedureIsDestroyedThroughItsObject)
{
    const PlainWindow plain;
    CWnd wnd;
    wnd.Attach(plain);
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(plain));
}

TEST(Destruction, ATemporaryObjectKnowsThatItsWindowIsGone)
{
    const PlainWindow plain;
    CWnd* temporary = CWnd::FromHandle(plain);
    EXPECT_TRUE(temporary->DestroyWindow());
    EXPECT_EQ(temporary->m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(plain));

    Hidden<> ours;
    ours.create();
    const HWND handle = ours.Detach();
    CWnd* second = CWnd::FromHandle(handle);
    ASSERT_TRUE(ours.Attach(handle));
    ours.DestroyWindow();
    EXPECT_EQ(second->m_hWnd, nullptr);
}

TEST(Destruction, AnAttachedWindowGoesWithItsObjectADetachedOneDoesNot)
{
    const PlainWindow first;
    const PlainWindow second;
    {
        CWnd keeper;
        keeper.Attach(first);
        CWnd passer;
        passer.Attach(second);
        passer.Detach();
    }
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_TRUE(::IsWindow(second));
}

TEST(Destruction, ALoopThatHasNoWindowLeftEnds)
{
    CWinThread* thread = AfxGetThread();
    Hidden<> main;
    Hidden<> other;
    main.create();
    other.create();
    thread->m_pMainWnd = &main;
    thread->m_pActiveWnd = &other;
    GuiThread::tookQuit();

    other.DestroyWindow();
    EXPECT_EQ(thread->m_pActiveWnd, nullptr);
    GuiThread::settle();
    EXPECT_FALSE(GuiThread::tookQuit()) << "only the main window counts";

    main.DestroyWindow();
    EXPECT_EQ(thread->m_pMainWnd, nullptr);
    EXPECT_TRUE(GuiThread::runUntil([] { return GuiThread::tookQuit(); }));
}

TEST(Destruction, TheLastReferenceDestroysTheWindow)
{
    s_log.clear();
    Ending wnd;
    wnd.create();
    EXPECT_EQ(wnd.InternalRelease(), 0u);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(s_log.back(), "window detached");
}

TEST(Destruction, TheConstantsForTheStackingOrderOwnNothing)
{
    Hidden<> wnd;
    wnd.create(WS_POPUP);
    EXPECT_TRUE(wnd.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE));
    EXPECT_TRUE(wnd.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_TRUE(wnd.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE));
    EXPECT_FALSE(wnd.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_EQ(CWnd::wndTop.m_hWnd, HWND_TOP);
    EXPECT_EQ(CWnd::wndBottom.m_hWnd, HWND_BOTTOM);
}
