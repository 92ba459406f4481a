#include <testkit/Desktop.h>
#include "ProbeWindow.h"
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <gtest/gtest-spi.h>

#include <stdexcept>

using namespace ovo::testkit;

namespace
{

class ThrowingWindow : public RecordingParent
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_LBUTTONDOWN)
            throw std::runtime_error("from the handler");
        return RecordingParent::WindowProc(message, wParam, lParam);
    }
};

constexpr int kAnswer = 17;

/// A box with one button that Escape and its title bar do not close.
class StubbornBox : public CDialog
{
public:
    INT_PTR DoModal() override
    {
        const struct
        {
            DLGTEMPLATE box;
            WORD menuClassTitle[3];
        } nothing{{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 20, 20, 120, 60}, {}};
        InitModalIndirect(&nothing.box);
        return CDialog::DoModal();
    }

protected:
    BOOL OnInitDialog() override
    {
        m_button.Create(L"Answer", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 34), this, kAnswer);
        return CDialog::OnInitDialog();
    }
    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        if (LOWORD(wParam) == kAnswer)
            EndDialog(kAnswer);
        return TRUE;
    }

private:
    CButton m_button;
};

/// Acts a story in a box, where it then waits for what never comes. Gives the answer of the box.
int answerOfTheBoxThatIsStuck(Story story)
{
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(
        {
            auto acting = story
                              .waitFor(
                                  "what never comes", [] { return false; }, 20ms)
                              .start();
            answer = AfxMessageBox(L"Stuck", MB_OKCANCEL);
        },
        "what never comes");
    return answer;
}

} // namespace

TEST(Story, AnswersAModalDialogThatTheTestOpensAfterwards)
{
    Robot robot;
    TestApp::instance().showBoxes();

    auto answering = robot.waitFor("the box", [] { return shownDialog() != nullptr; }).key(VK_ESCAPE).start();

    EXPECT_EQ(AfxMessageBox(L"Really?", MB_OKCANCEL), IDCANCEL);
}

TEST(Story, GoesOnThroughADialogThatOpensAnother)
{
    ProbeWindow owner;
    Robot robot;
    int inner = 0;
    const auto isShown = [](const wchar_t* title) {
        return [title] { return shownWindow(title) != nullptr; };
    };

    auto answering = robot.waitFor("the first box", isShown(L"First"))
                         .then([&] { owner.PostMessage(WM_APP); })
                         .waitFor("the second box", isShown(L"Second"))
                         .key(VK_RETURN)
                         .waitFor("the second box to go", [=] { return !isShown(L"Second")(); })
                         .key(VK_ESCAPE)
                         .start();
    owner.onPrivateMessage = [&] {
        inner = ::MessageBoxW(shownWindow(L"First"), L"Inner", L"Second", MB_YESNO);
    };
    const int outer = ::MessageBoxW(owner, L"Outer", L"First", MB_OKCANCEL);

    EXPECT_EQ(inner, IDYES);
    EXPECT_EQ(outer, IDCANCEL);
}

TEST(Story, ChoosesFromAMenu)
{
    ProbeWindow probe;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 11, L"First");
    menu.AppendMenu(MF_STRING, 12, L"Second");
    Robot robot;

    auto choosing = robot.waitFor("the menu", [] { return shownMenu() != nullptr; })
                        .key(VK_DOWN, 2)
                        .key(VK_RETURN)
                        .start();
    const BOOL chosen = menu.TrackPopupMenu(TPM_RETURNCMD, 200, 200, &probe);

    EXPECT_EQ(chosen, 12);
}

TEST(Story, ConditionsAndDeedsRunOnTheThreadWithTheWindows)
{
    const DWORD own = ::GetCurrentThreadId();
    DWORD asked = 0;
    DWORD done = 0;
    Robot robot;

    robot.waitFor("a look", [&] { return (asked = ::GetCurrentThreadId()) != 0; }).then([&] {
        done = ::GetCurrentThreadId();
    });

    EXPECT_EQ(asked, own);
    EXPECT_EQ(done, own);
}

TEST(Story, WaitsUntilTheConditionHolds)
{
    ProbeWindow probe;
    Robot robot;
    probe.SetTimer(1, 40, nullptr);
    int looks = 0;

    robot.waitFor("some looks", [&] { return ++looks == 5; }).then([&] { probe.KillTimer(1); });

    EXPECT_EQ(looks, 5);
}

TEST(Story, TimeoutFailsInTheWordsOfTheCondition)
{
    Robot robot;

    EXPECT_NONFATAL_FAILURE(robot.waitFor(
                                "the moon to rise", [] { return false; }, 50ms),
                            "waited in vain for the moon to rise");
}

TEST(Story, StepsAfterAFailureAreNotActed)
{
    Robot robot;
    bool went = false;

    EXPECT_NONFATAL_FAILURE(robot
                                .waitFor(
                                    "rain", [] { return false; }, 20ms)
                                .then([&] { went = true; }),
                            "rain");

    EXPECT_FALSE(went);
}

TEST(Story, ConditionThatThrowsFailsTheStory)
{
    Robot robot;
    const auto condition = []() -> bool { throw std::runtime_error("no such leaf"); };

    EXPECT_NONFATAL_FAILURE(robot.waitFor("a leaf", condition), "no such leaf");
}

TEST(Story, WhateverADeedThrowsFailsTheStory)
{
    Robot robot;

    EXPECT_NONFATAL_FAILURE(robot.then([] { throw 5; }), "no exception of the standard library");
    EXPECT_NONFATAL_FAILURE(robot.then([] { ::AfxThrowNotSupportedException(); }), "a CException: L\"");
}

TEST(Story, PointingAtAWindowThatIsGoneFailsTheStory)
{
    Robot robot;
    CWnd none;

    EXPECT_NONFATAL_FAILURE(robot.click(Spot{none}), "does not exist");
}

TEST(Story, FailureClosesTheDialogThatTheTestIsIn)
{
    Robot robot;
    TestApp::instance().showBoxes();

    EXPECT_EQ(answerOfTheBoxThatIsStuck(robot.waitFor("the box", [] { return shownDialog() != nullptr; })),
              IDCANCEL);
}

TEST(Story, FailureClosesTheMenuThatTheTestIsIn)
{
    ProbeWindow probe;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 11, L"First");
    Robot robot;
    BOOL chosen = TRUE;

    EXPECT_NONFATAL_FAILURE(
        {
            auto choosing = robot.waitFor("the menu", [] { return shownMenu() != nullptr; })
                                .waitFor(
                                    "what never comes", [] { return false; }, 20ms)
                                .start();
            chosen = menu.TrackPopupMenu(TPM_RETURNCMD, 200, 200, &probe);
        },
        "what never comes");

    EXPECT_EQ(chosen, FALSE);
}

TEST(Story, FailureEndsTheMoveThatTheTestIsIn)
{
    Robot robot;
    TestApp::instance().showBoxes();
    const auto title = [] {
        CRect box;
        ::GetWindowRect(shownDialog(), &box);
        return CPoint(box.CenterPoint().x, box.top + 10);
    };

    EXPECT_EQ(
        answerOfTheBoxThatIsStuck(
            robot.waitFor("the box", [] { return shownDialog() != nullptr; }).press(title).moveBy(40, 30)),
        IDCANCEL);
}

TEST(Story, FailureAnswersTheBoxThatCannotBeCancelled)
{
    Robot robot;
    StubbornBox box;
    int answer = 0;

    EXPECT_NONFATAL_FAILURE(
        {
            auto answering = robot.waitFor("the box", [] { return shownDialog() != nullptr; })
                                 .waitFor(
                                     "what never comes", [] { return false; }, 20ms)
                                 .start();
            answer = static_cast<int>(box.DoModal());
        },
        "what never comes");

    EXPECT_EQ(answer, kAnswer);
}

TEST(Story, FailureEndsTheLoopThatTheTestIsIn)
{
    ProbeWindow probe;
    Robot robot;
    int result = 0;

    EXPECT_NONFATAL_FAILURE(
        {
            auto waiting = robot
                               .waitFor(
                                   "what never comes", [] { return false; }, 20ms)
                               .start();
            result = probe.RunModalLoop();
        },
        "what never comes");

    EXPECT_EQ(result, -1);
    EXPECT_TRUE(GuiThread::tookQuit()) << "the loop's own end";
}

TEST(Story, WhatAHandlerThrowsComesOutOfTheStory)
{
    ThrowingWindow window;
    present(window);
    Robot robot;

    EXPECT_THROW(robot.click(Spot{window}), std::runtime_error);
}

TEST(Story, WhatAHandlerThrowsComesOutOfAStoryThatTheTestHasStartedAndLeft)
{
    ThrowingWindow window;
    present(window);
    Robot robot;

    EXPECT_THROW({ auto clicking = robot.click(Spot{window}).start(); }, std::runtime_error);
}

TEST(Story, IsOverWithWhatItSetOffWhenTheNextStatementBegins)
{
    RecordingParent parent;
    CButton button;
    button.Create(L"Go", WS_CHILD | WS_VISIBLE, CRect(20, 20, 120, 50), &parent, 7);
    present(parent);
    parent.log().record(WM_APP + 1);
    Robot robot;

    robot.click(Spot{button}).then([&] { parent.PostMessage(WM_APP + 1, 5); });

    EXPECT_EQ(parent.log().all().back().message, static_cast<UINT>(WM_APP + 1));
}
