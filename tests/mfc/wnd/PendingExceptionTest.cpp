// Exceptions out of message handlers come out of the call that sent the message, whatever the system does between.
#include <afxwin.h>

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

struct Oak : std::runtime_error
{
    Oak()
        : std::runtime_error("oak")
    {
    }
};

/// Throws from one message.
class Throwing : public CWnd
{
public:
    UINT from = 0;
    bool pointer = false;

    BOOL create() { return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr); }
    void destroyQuietly()
    {
        from = 0;
        DestroyWindow();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == from && pointer)
            AfxThrowNotSupportedException();
        if (message == from)
            throw Oak();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(PendingException, ComesOutOfSendMessage)
{
    Throwing wnd;
    wnd.create();
    wnd.from = WM_APP;
    EXPECT_THROW(wnd.SendMessage(WM_APP), Oak);
    wnd.destroyQuietly();
}

TEST(PendingException, ComesOutOfTheCreation)
{
    for (const UINT message : {WM_NCCREATE, WM_CREATE, WM_GETMINMAXINFO}) {
        Throwing wnd;
        wnd.from = message;
        if (message == WM_GETMINMAXINFO)
            EXPECT_THROW(wnd.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr,
                                      nullptr),
                         Oak);
        else
            EXPECT_THROW(wnd.create(), Oak) << message;
        wnd.destroyQuietly();
    }
}

TEST(PendingException, ComesOutOfMovingShowingPaintingAndDestroying)
{
    Throwing wnd;
    wnd.create();
    wnd.from = WM_SIZE;
    EXPECT_THROW(wnd.MoveWindow(0, 0, 70, 70), Oak);
    wnd.from = WM_SHOWWINDOW;
    EXPECT_THROW(wnd.ShowWindow(SW_SHOW), Oak);
    wnd.from = 0;
    wnd.ShowWindow(SW_SHOW);
    wnd.from = WM_PAINT;
    EXPECT_THROW(wnd.RedrawWindow(), Oak);
    wnd.from = WM_DESTROY;
    EXPECT_THROW(wnd.DestroyWindow(), Oak);
    EXPECT_EQ(wnd.m_hWnd, nullptr) << "destroyed all the same";
}

TEST(PendingException, ComesOutOfTheLoopForAPostedMessage)
{
    Throwing wnd;
    wnd.create();
    wnd.from = WM_APP;
    wnd.PostMessage(WM_APP);
    EXPECT_THROW(
        for (int i = 0; i < 20; ++i) {
            MSG message;
            if (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
                AfxPumpMessage();
        },
        Oak);
    wnd.destroyQuietly();
}

TEST(PendingException, LeavesNothingBehindForTheNextCall)
{
    Throwing wnd;
    wnd.create();
    wnd.from = WM_SIZE;
    EXPECT_THROW(wnd.MoveWindow(0, 0, 70, 70), Oak);
    wnd.from = 0;
    EXPECT_NO_THROW(wnd.MoveWindow(0, 0, 80, 80));
    EXPECT_NO_THROW(wnd.SendMessage(WM_APP));
    wnd.DestroyWindow();
}

TEST(PendingException, AnMfcExceptionIsReportedAtTheWindowProcedure)
{
    Throwing wnd;
    wnd.create();
    wnd.from = WM_COMMAND;
    wnd.pointer = true;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 5), 1);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_FALSE(TestApp::instance().boxes()[0].text.empty());
    wnd.destroyQuietly();
}

TEST(PendingException, AnMfcExceptionInTheCreationMeansNoWindow)
{
    Throwing wnd;
    wnd.from = WM_CREATE;
    wnd.pointer = true;
    EXPECT_FALSE(wnd.create());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}
