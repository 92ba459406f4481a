// The tips that a window gives for its tools.
#include "Windows.h"

#include <afxcmn.h>

#include <testkit/Desktop.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace wndtest;

namespace
{

HWND shownTip()
{
    return shownWindow(nullptr, TOOLTIPS_CLASSW);
}

std::wstring tipText()
{
    wchar_t text[100]{};
    if (const HWND tip = shownTip())
        ::GetWindowTextW(tip, text, static_cast<int>(std::size(text)));
    return text;
}

std::function<bool()> tipSays(std::wstring text)
{
    return [text] { return tipText() == text; };
}

bool noTip()
{
    return !shownTip();
}

/// Answers with the number of the control or tool.
class Tipped : public Hidden<>
{
public:
    Tipped()
    {
        create(WS_OVERLAPPEDWINDOW);
        MoveWindow(100, 100, 400, 300);
        button.Create(L"button", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 50), this, 5);
        label.Create(L"label", WS_CHILD | WS_VISIBLE, CRect(10, 70, 110, 110), this, 6);
        disabled.Create(L"disabled", WS_CHILD | WS_VISIBLE | WS_DISABLED, CRect(10, 130, 110, 170), this, 7);
    }
    ~Tipped() override { DestroyWindow(); }

    CPoint elsewhere() const { return CPoint(250, 150); }

    CButton button;
    CStatic label;
    CButton disabled;
    std::vector<UINT_PTR> asked; ///< the tools for which a text was wanted
    bool rested = false;         ///< the timer has run out

protected:
    BOOL OnNeedText(UINT, NMHDR* header, LRESULT*)
    {
        auto* tip = reinterpret_cast<TOOLTIPTEXT*>(header);
        const UINT_PTR number = (tip->uFlags & TTF_IDISHWND)
                                    ? static_cast<UINT_PTR>(::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom)))
                                    : header->idFrom;
        asked.push_back(number);
        wcscpy(tip->szText, (L"tip " + std::to_wstring(number)).c_str());
        return TRUE;
    }
    void OnTimer(UINT_PTR timer)
    {
        KillTimer(timer);
        rested = true;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Tipped, Hidden<>)
    ON_WM_TIMER()
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &Tipped::OnNeedText)
END_MESSAGE_MAP()

/// Has tools that are no windows: 30 on the left, 31 on the right, with a text of its own.
class Zoned : public Tipped
{
public:
    UINT flags = 0;

    CPoint left() const { return CPoint(200, 150); }
    CPoint right() const { return CPoint(300, 150); }

protected:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override
    {
        if (point.x < 150)
            return Tipped::OnToolHitTest(point, info);
        if (info) {
            info->hwnd = m_hWnd;
            info->uFlags = flags;
            info->uId = point.x < 250 ? 30 : 31;
            info->rect = point.x < 250 ? CRect(150, 0, 250, 300) : CRect(250, 0, 400, 300);
            info->lpszText = point.x < 250 ? LPSTR_TEXTCALLBACK : const_cast<LPTSTR>(L"right");
        }
        return point.x < 250 ? 30 : 31;
    }
};

class ToolTips : public ::testing::Test
{
protected:
    ToolTips()
    {
        wnd.EnableToolTips();
        present(wnd);
        robot.moveTo(Spot{wnd, CPoint(380, 260)});
    }

    /// Leaves the pointer where it is until a tip would have come: tips wait for as long as a double click may take, and
    /// this timer is set after theirs.
    void restForATip(Story story)
    {
        story
            .then([this] {
                wnd.rested = false;
                wnd.SetTimer(1, ::GetDoubleClickTime(), nullptr);
            })
            .waitFor("the time that tips take", [this] { return wnd.rested; });
    }

    /// Takes the pointer to a place of the window at once. Where the hand is slow, tools on the way show their tips.
    Story jumpTo(CPoint client)
    {
        return robot.then([this, client]() mutable {
            wnd.ClientToScreen(&client);
            ::SetCursorPos(client.x, client.y);
        });
    }

    Zoned wnd;
    Robot robot;
};

} // namespace

TEST(ToolHitTest, FindsTheVisibleChildUnderThePoint)
{
    Tipped wnd;
    TOOLINFO info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(wnd.OnToolHitTest(CPoint(20, 20), &info), 5);
    EXPECT_EQ(info.hwnd, wnd.m_hWnd);
    EXPECT_EQ(info.uId, reinterpret_cast<UINT_PTR>(wnd.button.m_hWnd));
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACK);
    EXPECT_EQ(info.uFlags, static_cast<UINT>(TTF_IDISHWND)) << "a button";
    EXPECT_EQ(wnd.OnToolHitTest(CPoint(20, 80), &info), 6);
    EXPECT_EQ(info.uFlags, static_cast<UINT>(TTF_IDISHWND | TTF_NOTBUTTON | TTF_CENTERTIP));
    EXPECT_EQ(wnd.OnToolHitTest(wnd.elsewhere(), &info), -1);
    EXPECT_EQ(wnd.OnToolHitTest(CPoint(20, 20), nullptr), 5) << "the number alone may be wanted";
    wnd.button.ShowWindow(SW_HIDE);
    EXPECT_EQ(wnd.OnToolHitTest(CPoint(20, 20), nullptr), -1);
}

TEST_F(ToolTips, AppearOverAChild)
{
    robot.moveTo(Spot{wnd.button}).waitFor("the tip", tipSays(L"tip 5"));
    EXPECT_EQ(tipText(), L"tip 5");
}

TEST_F(ToolTips, AppearOverALabelWhichLetsTheMouseThrough)
{
    robot.moveTo(Spot{wnd.label}).waitFor("the tip", tipSays(L"tip 6"));
    EXPECT_EQ(tipText(), L"tip 6");
}

TEST_F(ToolTips, AppearOverADisabledControl)
{
    robot.moveTo(Spot{wnd.disabled}).waitFor("the tip", tipSays(L"tip 7"));
    EXPECT_EQ(tipText(), L"tip 7");
}

TEST_F(ToolTips, GoWhenThePointerLeavesTheTool)
{
    robot.moveTo(Spot{wnd.button}).waitFor("the tip", tipSays(L"tip 5"));
    robot.moveTo(Spot{wnd, CPoint(130, 200)}).waitFor("the tip to go", noTip);
    EXPECT_TRUE(noTip());
}

TEST_F(ToolTips, FollowThePointerFromToolToTool)
{
    robot.moveTo(Spot{wnd, wnd.left()}).waitFor("the left tip", tipSays(L"tip 30"));
    robot.moveTo(Spot{wnd, wnd.right()}).waitFor("the right tip", tipSays(L"right"));
    jumpTo(CPoint(60, 30)).waitFor("the button's tip", tipSays(L"tip 5")); // past the left one
    EXPECT_EQ(wnd.asked, (std::vector<UINT_PTR>{30, 5})) << "the right one has a text of its own";
}

TEST_F(ToolTips, GoWhenAKeyIsPressed)
{
    robot.moveTo(Spot{wnd.label}).waitFor("the tip", tipSays(L"tip 6")).key(VK_SHIFT).waitFor("the tip to go", noTip);
    EXPECT_TRUE(noTip());
}

TEST_F(ToolTips, GoWhenTheyAreCancelled)
{
    robot.moveTo(Spot{wnd.label}).waitFor("the tip", tipSays(L"tip 6"));
    CWnd::CancelToolTips();
    EXPECT_TRUE(noTip());
    CWnd::CancelToolTips();
}

TEST_F(ToolTips, OfAPressedButtonStayAwayUntilThePointerHasLeftIt)
{
    robot.moveTo(Spot{wnd.button}).waitFor("the tip", tipSays(L"tip 5"));
    robot.click(Spot{wnd.button}).waitFor("the tip to go", noTip);
    restForATip(robot.moveBy(3, 3));
    robot.moveTo(Spot{wnd.label}).waitFor("the label's tip", tipSays(L"tip 6"));
    robot.moveTo(Spot{wnd.button}).waitFor("the button's tip again", tipSays(L"tip 5"));
    EXPECT_EQ(wnd.asked, (std::vector<UINT_PTR>{5, 6, 5})) << "none for the button after the click";
}

TEST_F(ToolTips, OfOtherToolsComeBackAfterAPress)
{
    wnd.flags = TTF_NOTBUTTON;
    robot.moveTo(Spot{wnd, wnd.left()}).waitFor("the tip", tipSays(L"tip 30"));
    robot.press(Spot{wnd, wnd.left()}).waitFor("the tip to go", noTip).release().moveBy(4, 4).waitFor(
        "the tip again", tipSays(L"tip 30"));
    EXPECT_EQ(wnd.asked, (std::vector<UINT_PTR>{30, 30}));
}

TEST_F(ToolTips, GoWithTheirWindow)
{
    robot.moveTo(Spot{wnd.button}).waitFor("the tip", tipSays(L"tip 5"));
    wnd.DestroyWindow();
    EXPECT_TRUE(noTip());
    Tipped second;
    second.EnableToolTips();
    present(second);
    robot.moveTo(Spot{second, CPoint(300, 200)}).moveTo(Spot{second.label}).waitFor("the tip", tipSays(L"tip 6"));
}

TEST_F(ToolTips, GoWhenTheyAreSwitchedOff)
{
    robot.moveTo(Spot{wnd.button}).waitFor("the tip", tipSays(L"tip 5"));
    EXPECT_FALSE(wnd.EnableToolTips(FALSE));
    EXPECT_TRUE(noTip());
    MSG move{};
    move.hwnd = wnd.label;
    move.message = WM_MOUSEMOVE;
    ::GetCursorPos(&move.pt);
    EXPECT_FALSE(wnd.PreTranslateMessage(&move));
    EXPECT_TRUE(noTip());
    EXPECT_TRUE(wnd.EnableToolTips());
}

TEST_F(ToolTips, OfAnInactiveWindowAppearOnlyIfTheyAreAlwaysToAppear)
{
    Hidden<> other;
    other.create(WS_OVERLAPPEDWINDOW);
    other.MoveWindow(600, 500, 200, 100);
    present(other);
    wnd.flags = TTF_ALWAYSTIP;
    robot.moveTo(Spot{wnd, wnd.right()}).waitFor("the right tip", tipSays(L"right"));
    wnd.flags = 0;
    restForATip(robot.moveTo(Spot{wnd, wnd.left()}));
    EXPECT_TRUE(noTip());
    EXPECT_EQ(wnd.asked, std::vector<UINT_PTR>());
}
