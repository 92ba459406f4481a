// Idle updates: who is asked, and the rest after the host's command interface was restarted.
#include "ToolBarScene.h"

#include <testkit/ImportPatch.h>
#include <testkit/RecordingParent.h>

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

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

namespace
{

/// What an owner is asked with.
struct Asked
{
    UINT id;
    CWnd* about;
    UINT index; ///< of a button, and how many there are
    UINT count;

    friend bool operator==(const Asked&, const Asked&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Asked& asked)
    {
        return out << asked.id << " at " << asked.index << " of " << asked.count;
    }
};

/// An owner that takes down what it is asked, and answers.
class Looking : public RecordingParent
{
public:
    std::vector<Asked> asked;
    std::function<void(CCmdUI&)> answer;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (code != static_cast<int>(CN_UPDATE_COMMAND_UI))
            return RecordingParent::OnCmdMsg(id, code, extra, info);
        auto& ui = *static_cast<CCmdUI*>(extra);
        asked.push_back({ui.m_nID, ui.m_pOther, ui.m_nIndex, ui.m_nIndexMax});
        if (answer)
            answer(ui);
        return TRUE;
    }
};

/// A bar that knows itself how one of its commands stands.
class Knowing : public TestBar
{
private:
    void onPlain(CCmdUI* ui) { ui->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Knowing, TestBar)
    ON_UPDATE_COMMAND_UI(ID_PLAIN, &Knowing::onPlain)
END_MESSAGE_MAP()

} // namespace

TEST_F(BarUpdate, AHandlerSeesEachButtonAndThenTheControlsInTheBar)
{
    TBBUTTON place{};
    place.idCommand = IDC_BAR_EDIT;
    place.iBitmap = 100;
    place.fsStyle = TBSTYLE_SEP;
    place.fsState = TBSTATE_ENABLED;
    scene.bar().InsertButton(BarScene::Other, &place);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 18), &scene.bar(), IDC_BAR_EDIT);
    Looking owner;
    scene.bar().SetOwner(&owner);
    scene.bar().OnUpdateCmdUI(nullptr, TRUE);
    scene.bar().SetOwner(&scene.frame());
    CWnd* const bar = &scene.bar();
    EXPECT_EQ(owner.asked, (std::vector<Asked>{{ID_PLAIN, bar, 0, 6},
                                               {ID_LINE, bar, 1, 6},
                                               {ID_BOX, bar, 2, 6},
                                               {ID_OTHER, bar, 5, 6},
                                               {IDC_BAR_EDIT, &edit, 0, 0}}));
}

TEST_F(BarUpdate, ABarThatKnowsItselfIsAskedInPlaceOfItsOwner)
{
    Knowing bar;
    bar.CreateEx(&scene.frame(), TBSTYLE_FLAT, WS_CHILD | CBRS_TOP);
    static constexpr UINT kButtons[] = {ID_PLAIN, ID_OTHER};
    bar.SetButtons(kButtons, 2);
    Looking owner;
    bar.SetOwner(&owner);
    bar.OnUpdateCmdUI(nullptr, TRUE);
    EXPECT_TRUE(bar.GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_EQ(owner.asked, (std::vector<Asked>{{ID_OTHER, &bar, 1, 2}}));
}

TEST_F(BarUpdate, ButtonsShowWhatTheHandlersSayAndKeepTheirTexts)
{
    scene.bar().SetWindowText(L"Drawing");
    Looking owner;
    bool on = true;
    owner.answer = [&](CCmdUI& ui) {
        if (ui.m_nID == ID_PLAIN)
            ui.SetCheck(on ? 1 : 0);
        else if (ui.m_nID == ID_LINE)
            ui.SetCheck(on ? 2 : 0);
        else if (ui.m_nID == ID_BOX)
            ui.SetRadio(on);
        else
            ui.SetText(L"Words for a menu");
    };
    const auto shown = [&] {
        constexpr UINT kChecks = TBBS_CHECKBOX | TBBS_CHECKED | TBBS_INDETERMINATE;
        scene.bar().OnUpdateCmdUI(nullptr, TRUE);
        std::vector<UINT> styles;
        for (const int index : {BarScene::Plain, BarScene::Lines, BarScene::Shapes, BarScene::Other})
            styles.push_back(scene.bar().GetButtonStyle(index) & kChecks);
        return styles;
    };
    scene.bar().SetOwner(&owner);
    EXPECT_EQ(shown(), (std::vector<UINT>{TBBS_CHECKBOX | TBBS_CHECKED, TBBS_CHECKBOX | TBBS_INDETERMINATE,
                                          TBBS_CHECKBOX | TBBS_CHECKED, 0}));
    on = false;
    EXPECT_EQ(shown(), (std::vector<UINT>{TBBS_CHECKBOX, TBBS_CHECKBOX, TBBS_CHECKBOX, 0}));
    scene.bar().SetOwner(&scene.frame());
    CString title;
    scene.bar().GetWindowText(title);
    EXPECT_STREQ(title, L"Drawing");
    EXPECT_STREQ(scene.bar().GetButtonText(BarScene::Other), L"");
}
