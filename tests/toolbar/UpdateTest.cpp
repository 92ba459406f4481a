// Idle updates: who is asked, and the rest after the host's command interface was restarted.
#include "ToolBarScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

DWORD now;

DWORD WINAPI toldNow()
{
    return now;
}

constexpr UINT_PTR kTimer = 42;

std::vector<UINT> waits; ///< that the bar's timer was set to

UINT_PTR WINAPI noteWait(HWND wnd, UINT_PTR id, UINT elapse, TIMERPROC procedure)
{
    if (id == kTimer)
        waits.push_back(elapse);
    return ::SetTimer(wnd, id, elapse, procedure);
}

/// The tick count is what a test says.
class BarUpdate : public ::testing::Test
{
protected:
    ~BarUpdate() override { CVantorToolBar::ms_apiRestartedTickCount = 0; }

    /// An idle update this long after the restart; gives whether it ran.
    bool runsAfter(DWORD passed, DWORD restarted = 5000)
    {
        CVantorToolBar::ms_apiRestartedTickCount = restarted;
        now = restarted + passed;
        const int before = scene.bar().updates;
        scene.bar().SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        return scene.bar().updates > before;
    }

    /// Whether the bar's timer is set; it is no more afterwards.
    bool takeTimer() { return ::KillTimer(scene.bar().m_hWnd, kTimer) != FALSE; }

    BarScene scene;
    const ImportPatch clock{L"ovoui.dll", "GetTickCount", reinterpret_cast<void*>(&toldNow)};
};

} // namespace

TEST_F(BarUpdate, RestsFor250MillisecondsAfterTheRestart)
{
    for (DWORD passed : {0u, 1u, 100u, 249u, 250u}) {
        EXPECT_FALSE(runsAfter(passed)) << passed;
        EXPECT_TRUE(TestBar::ms_idleTimerPending) << passed;
        EXPECT_TRUE(takeTimer()) << passed;
    }
    for (DWORD passed : {251u, 252u, 100000u})
        EXPECT_TRUE(runsAfter(passed)) << passed;
}

TEST_F(BarUpdate, TheTimerWaitsFor250Milliseconds)
{
    waits.clear();
    const ImportPatch setTimer{L"ovoui.dll", "SetTimer", reinterpret_cast<void*>(&noteWait)};
    runsAfter(10);
    runsAfter(251);
    EXPECT_EQ(waits, std::vector<UINT>{250});
}

TEST_F(BarUpdate, TheTickCountMayWrapRoundMeanwhile)
{
    EXPECT_FALSE(runsAfter(250, 0xFFFFFFFE));
    EXPECT_TRUE(runsAfter(251, 0xFFFFFFFE));
    EXPECT_FALSE(runsAfter(0, 0xFFFFFFFF));
    EXPECT_TRUE(runsAfter(1000, 0));
}

TEST_F(BarUpdate, AnUpdateThatRunsEndsTheWait)
{
    runsAfter(10);
    EXPECT_TRUE(runsAfter(251));
    EXPECT_FALSE(TestBar::ms_idleTimerPending);
    EXPECT_FALSE(takeTimer()) << "it was ended";
}

TEST_F(BarUpdate, TheTimerEndsAndPostsAnUpdate)
{
    runsAfter(10);
    now += 300;
    const int before = scene.bar().updates;
    std::vector<UINT> seen;
    scene.bar().seeing = [&](UINT message, WPARAM wParam) {
        if ((message == WM_TIMER && wParam == kTimer) || (message == WM_IDLEUPDATECMDUI && wParam == TRUE))
            seen.push_back(message);
    };
    scene.bar().SendMessage(WM_TIMER, kTimer);
    EXPECT_FALSE(TestBar::ms_idleTimerPending);
    EXPECT_FALSE(takeTimer());
    MSG message;
    ASSERT_TRUE(
        ::PeekMessageW(&message, scene.bar().m_hWnd, WM_IDLEUPDATECMDUI, WM_IDLEUPDATECMDUI, PM_REMOVE));
    EXPECT_EQ(message.wParam, static_cast<WPARAM>(TRUE));
    EXPECT_EQ(scene.bar().updates, before) << "posted, not sent";
    ::DispatchMessageW(&message);
    EXPECT_EQ(scene.bar().updates, before + 1);
    EXPECT_EQ(seen, (std::vector<UINT>{WM_TIMER, WM_IDLEUPDATECMDUI}));
}

TEST_F(BarUpdate, AsksForEveryButtonButSeparators)
{
    scene.frame().disabled = {ID_BOX};
    scene.frame().askedFor = 0;
    EXPECT_TRUE(runsAfter(5000));
    EXPECT_EQ(scene.frame().askedFor, 4);
    EXPECT_TRUE(scene.bar().GetButtonStyle(BarScene::Shapes) & TBBS_DISABLED);
    EXPECT_FALSE(scene.bar().GetButtonStyle(BarScene::Lines) & TBBS_DISABLED);
}

namespace
{

/// An owner that is no frame.
class Answering : public RecordingParent
{
public:
    int asked = 0;

    BOOL OnCmdMsg(UINT, int code, void*, AFX_CMDHANDLERINFO*) override
    {
        asked += code == static_cast<int>(CN_UPDATE_COMMAND_UI);
        return TRUE;
    }
};

} // namespace

TEST_F(BarUpdate, AsksTheOwnerAndNotTheWindowNamed)
{
    Answering owner;
    scene.bar().SetOwner(&owner);
    scene.frame().askedFor = 0;
    scene.bar().OnUpdateCmdUI(&scene.frame(), TRUE);
    EXPECT_EQ(owner.asked, 4);
    EXPECT_EQ(scene.frame().askedFor, 0);
    scene.bar().SetOwner(nullptr); // then the parent
    scene.bar().OnUpdateCmdUI(nullptr, TRUE);
    EXPECT_EQ(owner.asked, 4);
    EXPECT_EQ(scene.frame().askedFor, 4);
}
