// Tips of a bar's buttons and controls, and their prompts in the message line, as the bar's style has them at
// the time.
#include "TestFrame.h"
#include "resource.h"

#include <testkit/ImportPatch.h>

#include <afxcmn.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kTips = CBRS_TOOLTIPS;
constexpr DWORD kPrompts = CBRS_FLYBY;

HWND shownTip()
{
    return shownWindow(nullptr, TOOLTIPS_CLASSW);
}

bool tipSays(const wchar_t* text)
{
    return shownTip() && textIn(*CWnd::FromHandle(shownTip())) == text;
}

/// Whether any tooltip control of the thread, shown or not, has a tool in this window: without one no tip can
/// come.
bool hasTool(const CWnd& bar)
{
    struct Search
    {
        HWND bar;
        bool found;
    } search{bar.m_hWnd, false};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND wnd, LPARAM lParam) -> BOOL {
            auto& to = *reinterpret_cast<Search*>(lParam);
            wchar_t name[32]{};
            ::GetClassNameW(wnd, name, static_cast<int>(std::size(name)));
            TOOLINFO tool{};
            tool.cbSize = TTTOOLINFOW_V2_SIZE;
            if (std::wstring(name) == TOOLTIPS_CLASSW &&
                ::SendMessageW(wnd, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)))
                to.found = to.found || tool.hwnd == to.bar;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Runs out after longer than a test may take.
UINT_PTR WINAPI setLateTimer(HWND wnd, UINT_PTR id, UINT, TIMERPROC procedure)
{
    return ::SetTimer(wnd, id, 300'000, procedure);
}

class BarTips : public ::testing::Test
{
protected:
    BarTips()
    {
        m_status.Create(&*m_frame);
        static constexpr UINT kPanes[] = {ID_SEPARATOR};
        m_status.SetIndicators(kPanes, 1);
        m_bar.CreateEx(&*m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
        m_bar.LoadToolBar(IDR_FRAME);
        m_frame->RecalcLayout();
        present(*m_frame);
        m_robot.moveTo(elsewhere()); // where the pointer may rest already, it would not move
    }
    ~BarTips() override
    {
        m_bar.DestroyWindow();
        m_status.DestroyWindow();
    }

    void add(DWORD bits) { m_bar.SetBarStyle(m_bar.GetBarStyle() | bits); }
    void remove(DWORD bits) { m_bar.SetBarStyle(m_bar.GetBarStyle() & ~bits); }

    Spot button(int index) const
    {
        return Spot{[=, this] {
            CRect rect;
            m_bar.GetItemRect(index, &rect);
            m_bar.ClientToScreen(&rect);
            return rect.CenterPoint();
        }};
    }
    Spot elsewhere() const { return Spot{*m_frame->view}; }

    bool lineSays(const wchar_t* text) const { return m_status.GetPaneText(0) == text; }

    CToolBar m_bar;
    CStatusBar m_status;
    MainFrame m_frame;
    Robot m_robot;
};

} // namespace

TEST_F(BarTips, AStyleThatIsSetLaterCounts)
{
    add(kTips);
    m_robot.moveTo(button(0)).waitFor("the tip", [] { return tipSays(L"Act"); });
    EXPECT_TRUE(hasTool(m_bar));
    EXPECT_TRUE(lineSays(L"Ready")) << "prompts are another style";
}

TEST_F(BarTips, AStyleThatIsTakenAwayCounts)
{
    add(kTips | kPrompts);
    m_robot.moveTo(button(0)).waitFor("the tip", [] { return tipSays(L"Act"); }).waitFor("the prompt", [&] {
        return lineSays(L"Does the act");
    });
    remove(kTips);
    EXPECT_EQ(shownTip(), nullptr) << "the tip goes with the style";
    m_robot.moveTo(button(1)).waitFor("the next prompt", [&] { return lineSays(L"Does something else"); });
    EXPECT_FALSE(hasTool(m_bar));

    remove(kPrompts);
    m_robot.waitFor("the prompt to go", [&] { return lineSays(L"Ready"); });
    add(kTips);
    m_robot.moveTo(elsewhere()).moveTo(button(0)).waitFor("the tip", [] { return tipSays(L"Act"); });
    EXPECT_TRUE(lineSays(L"Ready"));
}

TEST_F(BarTips, PromptsNeedNoTips)
{
    add(kPrompts);
    m_robot.moveTo(button(0)).waitFor("the prompt", [&] { return lineSays(L"Does the act"); });
    EXPECT_FALSE(hasTool(m_bar));
    m_robot.moveTo(elsewhere()).waitFor("the prompt to go", [&] { return lineSays(L"Ready"); });
}

TEST_F(BarTips, APromptIsNotShownOnTheWay)
{
    add(kPrompts);
    {
        // The pointer is off the button in time, however slow the hand is.
        const ImportPatch timer(L"ovomfc.dll", "SetTimer", reinterpret_cast<void*>(&setLateTimer));
        m_robot.moveTo(button(0)).moveTo(elsewhere());
    }
    EXPECT_TRUE(lineSays(L"Ready"));
    m_robot.moveTo(button(1)).waitFor("the prompt", [&] { return lineSays(L"Does something else"); });
}

TEST_F(BarTips, ControlsInTheBarHaveThemToo)
{
    CButton child;
    ASSERT_TRUE(child.Create(L"Act", WS_CHILD | WS_VISIBLE, CRect(150, 0, 210, 20), &m_bar, ID_TEST_ACT));
    add(kTips | kPrompts);
    m_robot.moveTo(Spot{child}).waitFor("the tip", [] { return tipSays(L"Act"); }).waitFor("the prompt", [&] {
        return lineSays(L"Does the act");
    });
    remove(kTips | kPrompts);
    EXPECT_EQ(shownTip(), nullptr);
    m_robot.waitFor("the prompt to go", [&] { return lineSays(L"Ready"); });
}

TEST_F(BarTips, AHostMayDestroyTheBarWhenItIsAskedForTheText)
{
    class Destroying : public CToolBar
    {
    public:
        int asked = 0;

    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (reinterpret_cast<NMHDR*>(lParam)->code != TTN_GETDISPINFOW)
                return CToolBar::OnNotify(wParam, lParam, result);
            ++asked;
            DestroyWindow();
            return TRUE;
        }
    } bar;
    ASSERT_TRUE(bar.CreateEx(&*m_frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | kTips | kPrompts,
                             CRect(0, 0, 0, 0), AFX_IDW_TOOLBAR + 0x20));
    ASSERT_TRUE(bar.LoadToolBar(IDR_FRAME));
    m_frame->RecalcLayout();
    const CPoint where = [&] {
        CRect rect;
        bar.GetItemRect(0, &rect);
        bar.ClientToScreen(&rect);
        return rect.CenterPoint();
    }();
    m_robot.moveTo(where).waitFor("the question", [&] { return bar.asked > 0; });
    m_robot.moveTo(elsewhere());
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR + 0x20), nullptr);
}
