// The tip of the button that the keyboard is at.
#include "ToolBarScene.h"

#include <testkit/ImportPatch.h>

#include <ovoui/frame/Geometry.h>

#include <gtest/gtest.h>

#include <map>
#include <utility>

using namespace ovo::testkit;

namespace
{

/// What the bar's timers are set to, by their number.
std::map<UINT_PTR, std::vector<UINT>> tipTimers;
bool tipsGoSoon = false;
bool tipsStayAway = false; ///< until one is brought, however slow the machine is

UINT_PTR WINAPI noteTipTimer(HWND wnd, UINT_PTR id, UINT elapse, TIMERPROC procedure)
{
    tipTimers[id].push_back(elapse);
    if (tipsGoSoon && id == 44)
        elapse = 10;
    if (tipsStayAway && id == 43)
        elapse = 300'000; // milliseconds, more than a test may take
    return ::SetTimer(wnd, id, elapse, procedure);
}

class BarKeyboardTips : public ::testing::Test
{
protected:
    BarKeyboardTips()
    {
        tipTimers.clear();
        tipsGoSoon = false;
        tipsStayAway = false;
        scene.user.moveTo(scene.outside()); // no tip of the mouse
    }

    static HWND tip() { return shownWindow(nullptr, TOOLTIPS_CLASSW); }
    static std::wstring tipText()
    {
        CString text;
        if (tip())
            CWnd::FromHandle(tip())->GetWindowText(text);
        return text.GetString();
    }
    static auto tipSays(const wchar_t* text)
    {
        return [=] { return tipText() == text; };
    }
    CRect place(int index) const
    {
        CRect rect;
        scene.bar().GetItemRect(index, &rect);
        scene.bar().ClientToScreen(&rect);
        return rect;
    }

    BarScene scene;
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noteTipTimer)};
};

} // namespace

TEST_F(BarKeyboardTips, ShowAfterAWhileAndTheNextOnesSooner)
{
    scene.bar().FocusButtons();
    EXPECT_EQ(tip(), nullptr) << "not at once";
    scene.user.waitFor("the tip", tipSays(L"Plain"))
        .then([&] {
            CRect shown;
            ::GetWindowRect(tip(), &shown);
            EXPECT_GE(shown.top, place(BarScene::Plain).bottom);
            EXPECT_NEAR(shown.left, place(BarScene::Plain).left, 1) << "its border may lie outside";
        })
        .key(VK_RIGHT)
        .waitFor("the next tip", tipSays(L"Line"));
    const UINT first = ::GetDoubleClickTime(); // as the platform's tips have it
    EXPECT_EQ(tipTimers[43], (std::vector<UINT>{first, first / 5}));
    EXPECT_EQ(tipTimers[44], (std::vector<UINT>{first * 10, first * 10}));
    tipsStayAway = true; // the next one
    scene.user.key(VK_RIGHT).then([] { EXPECT_EQ(tip(), nullptr) << "the one of before goes at once"; });
}

TEST_F(BarKeyboardTips, GoByThemselves)
{
    tipsGoSoon = true;
    scene.bar().FocusButtons();
    scene.user.waitFor("its time", [] { return !tipTimers[44].empty(); }).waitFor("the tip to go", [] {
        return tip() == nullptr;
    });
    EXPECT_EQ(::GetFocus(), scene.bar().m_hWnd);
}

TEST_F(BarKeyboardTips, GoWithTheKeyboardAndWhenAFlyoutOpens)
{
    scene.bar().FocusButtons();
    scene.user.waitFor("the tip", tipSays(L"Plain")).key(VK_ESCAPE).then([] { EXPECT_EQ(tip(), nullptr); });
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .waitFor("the tip", tipSays(L"Line"))
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .then([] { EXPECT_EQ(tip(), nullptr); })
        .key(VK_ESCAPE);
}

TEST_F(BarKeyboardTips, DoNotComeOverAFlyoutThatIsOpenedBefore)
{
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT)
        .key(VK_DOWN)
        .waitFor("the flyout", &BarScene::flyoutShown)
        .then([&] {
            EXPECT_FALSE(::KillTimer(scene.bar().m_hWnd, 43)) << "none is awaited";
            EXPECT_EQ(tip(), nullptr);
        })
        .key(VK_ESCAPE);
}

TEST_F(BarKeyboardTips, NeedTheStyleAndAText)
{
    tipsStayAway = true;
    scene.bar().FocusButtons();
    scene.user.key(VK_END).waitFor("its timer", [] { return tipTimers[43].size() == 2; });
    const MessageCounter timers(TOOLBARCLASSNAMEW, WM_TIMER, 43);
    ::SetTimer(scene.bar().m_hWnd, 43, USER_TIMER_MINIMUM, nullptr);
    scene.user.waitFor("the timer", [&] { return timers.count() > 0; });
    EXPECT_EQ(tip(), nullptr) << "the command has no string";
    scene.user.key(VK_ESCAPE);

    tipTimers.clear();
    scene.bar().SetBarStyle(scene.bar().GetBarStyle() & ~CBRS_TOOLTIPS);
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    EXPECT_TRUE(tipTimers[43].empty());
}

TEST_F(BarKeyboardTips, TheOwnerIsAskedForTheTextAsWithTheMouse)
{
    static const std::wstring kLong =
        L"Words that are longer than the eighty characters that fit into what the "
        L"owner is given for the text";
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code != TTN_GETDISPINFOW || header->idFrom != ID_PLAIN)
            return 0;
        reinterpret_cast<NMTTDISPINFOW*>(header)->lpszText = const_cast<wchar_t*>(kLong.c_str());
        return 1;
    };
    scene.bar().FocusButtons();
    scene.user.waitFor("the owner's words", tipSays(kLong.c_str()));
    scene.frame().onNotify = nullptr;
}

TEST_F(BarKeyboardTips, TheOwnerMayNameAString)
{
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code != TTN_GETDISPINFOW || header->idFrom != ID_PLAIN)
            return 0;
        auto& asked = *reinterpret_cast<NMTTDISPINFOW*>(header);
        asked.hinst = ::GetModuleHandleW(nullptr);
        asked.lpszText = MAKEINTRESOURCEW(IDS_PALETTE);
        return 1;
    };
    scene.bar().FocusButtons();
    scene.user.waitFor("the string", tipSays(L"Palette"));
    scene.frame().onNotify = nullptr;
}

TEST_F(BarKeyboardTips, TheOwnerMayDestroyTheBarWhenItIsAsked)
{
    bool asked = false;
    scene.frame().onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code == TTN_GETDISPINFOW && !std::exchange(asked, true))
            scene.deleteBar();
        return 0;
    };
    scene.bar().FocusButtons();
    scene.user.waitFor("the question", [&] { return asked; });
    EXPECT_EQ(tip(), nullptr);
    scene.frame().onNotify = nullptr;
}

TEST_F(BarKeyboardTips, AtTheLowerEdgeOfTheWorkAreaTheyAreAbove)
{
    CRect frame;
    scene.frame().GetWindowRect(&frame);
    const CRect area(GetWorkArea(frame));
    const int down = area.bottom - place(BarScene::Plain).bottom - 4;
    scene.frame().SetWindowPos(nullptr, frame.left, frame.top + down, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    scene.bar().FocusButtons();
    scene.user.waitFor("the tip", tipSays(L"Plain")).then([&] {
        CRect shown;
        ::GetWindowRect(tip(), &shown);
        EXPECT_LE(shown.bottom, place(BarScene::Plain).top);
    });
}
