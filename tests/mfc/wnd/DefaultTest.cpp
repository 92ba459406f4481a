// The default handling, and the message that is being handled.
#include "Windows.h"

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

/// Writes down what comes to the default procedure.
class Writing : public Hidden<>
{
public:
    struct Seen
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Seen&) const = default;
    };
    std::vector<Seen> defaults;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        defaults.push_back({message, wParam, lParam});
        return message >= WM_APP ? 9 : CWnd::DefWindowProc(message, wParam, lParam);
    }
};

class Passing : public Writing
{
public:
    int nested = 0;

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point)
    {
        // Another message in between must not change what the default works on.
        SendMessage(WM_APP + 1, 1, 2);
        defaults.clear();
        CWnd::OnLButtonDown(flags + 100, point + CPoint(50, 60));
    }
    afx_msg LRESULT OnAsk(WPARAM, LPARAM) { return Default() + 1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Passing, Writing)
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_APP + 2, &Passing::OnAsk)
END_MESSAGE_MAP()

} // namespace

TEST(DefaultHandling, OfABaseHandlerUsesTheOriginalParameters)
{
    Passing wnd;
    wnd.create();
    wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 4));
    ASSERT_EQ(wnd.defaults.size(), 1u);
    EXPECT_EQ(wnd.defaults[0], (Writing::Seen{WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 4)}));
}

TEST(DefaultHandling, GivesTheDefaultProceduresResult)
{
    Passing wnd;
    wnd.create();
    EXPECT_EQ(wnd.SendMessage(WM_APP + 2, 5, 6), 10);
    EXPECT_EQ(wnd.SendMessage(WM_APP + 3, 5, 6), 9) << "it has no handler";
}

TEST(DefaultHandling, TheCurrentMessageIsTheInnermostOne)
{
    class Asking : public Hidden<>
    {
    public:
        MSG outer{};
        MSG inner{};
        MSG again{};

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP) {
                outer = *GetCurrentMessage();
                SendMessage(WM_APP + 1, 3, 4);
                again = *GetCurrentMessage();
            } else if (message == WM_APP + 1) {
                inner = *GetCurrentMessage();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    wnd.create();
    wnd.SendMessage(WM_APP, 1, 2);
    EXPECT_EQ(wnd.outer.hwnd, wnd.m_hWnd);
    EXPECT_EQ(wnd.outer.message, static_cast<UINT>(WM_APP));
    EXPECT_EQ(wnd.inner.message, static_cast<UINT>(WM_APP + 1));
    EXPECT_EQ(wnd.inner.wParam, 3u);
    EXPECT_EQ(wnd.inner.lParam, 4);
    EXPECT_EQ(wnd.again.message, wnd.outer.message);
    EXPECT_EQ(wnd.again.wParam, 1u);
    EXPECT_EQ(wnd.again.lParam, 2);
}

TEST(DefaultHandling, AMessageMayBeTakenBeforeTheMap)
{
    class Early : public Hidden<>
    {
    protected:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message != WM_APP)
                return CWnd::OnWndMsg(message, wParam, lParam, result);
            *result = 21;
            return TRUE;
        }
    } wnd;
    wnd.create();
    EXPECT_EQ(wnd.SendMessage(WM_APP), 21);
}

TEST(DefaultHandling, TheResultMayBeUnwanted)
{
    Passing wnd;
    wnd.create();
    EXPECT_TRUE(wnd.OnWndMsg(WM_APP + 2, 0, 0, nullptr));
    EXPECT_FALSE(wnd.OnWndMsg(WM_APP + 3, 0, 0, nullptr));
    EXPECT_FALSE(wnd.OnWndMsg(WM_COMMAND, 7, 0, nullptr));
}
