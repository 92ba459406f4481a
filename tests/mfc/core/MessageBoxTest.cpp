// AfxMessageBox.
#include "Texts.h"
#include "resource.h"
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <afxwin.h>

using namespace ovo::testkit;

namespace
{

HWND openBox()
{
    return shownWindow(AfxGetAppName(), L"#32770");
}

BOOL CALLBACK findIcon(HWND child, LPARAM found)
{
    wchar_t name[16];
    ::GetClassNameW(child, name, 16);
    if (::_wcsicmp(name, L"Static") == 0 && (::GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
        *reinterpret_cast<HICON*>(found) = reinterpret_cast<HICON>(::SendMessageW(child, STM_GETICON, 0, 0));
    return TRUE;
}

HICON iconOf(HWND box)
{
    HICON icon = nullptr;
    ::EnumChildWindows(box, &findIcon, reinterpret_cast<LPARAM>(&icon));
    return icon;
}

/// Shows a real box, closes it with Enter, and gives the icon it had.
HICON shownIcon(UINT type)
{
    TestApp::instance().showBoxes();
    HICON icon = nullptr;
    Robot robot;
    auto answering = robot.waitFor("the box", [] { return openBox() != nullptr; })
                         .then([&] { icon = iconOf(openBox()); })
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(AfxMessageBox(L"text", type), IDOK);
    return icon;
}

} // namespace

TEST(MessageBoxes, GoesThroughTheProgramsOwnFunction)
{
    TestApp& app = TestApp::instance();
    app.answerBoxes({IDNO});
    EXPECT_EQ(AfxMessageBox(L"Shall I?", MB_YESNO | MB_ICONQUESTION, 77), IDNO);
    EXPECT_EQ(AfxMessageBox(L"plain"), IDOK);
    ASSERT_EQ(app.boxes().size(), 2u);
    EXPECT_EQ(app.boxes()[0].text, L"Shall I?");
    EXPECT_EQ(app.boxes()[0].type, UINT{MB_YESNO | MB_ICONQUESTION});
    EXPECT_EQ(app.boxes()[0].helpId, 77u);
    EXPECT_EQ(app.boxes()[1].type, UINT{MB_OK});
    EXPECT_EQ(app.boxes()[1].helpId, 0u);
}

TEST(MessageBoxes, TakesItsTextFromAResource)
{
    TestApp& app = TestApp::instance();
    AfxMessageBox(IDS_QUESTION, MB_OK, 5);
    AfxMessageBox(IDS_QUESTION);
    ASSERT_EQ(app.boxes().size(), 2u);
    EXPECT_EQ(app.boxes()[0].text, L"Really?");
    EXPECT_EQ(app.boxes()[0].helpId, 5u);
    EXPECT_EQ(app.boxes()[1].helpId, UINT{IDS_QUESTION}) << "help on the text itself";
}

TEST(MessageBoxes, WithoutAnIconGetsTheExclamationMark)
{
    EXPECT_EQ(shownIcon(MB_OK), ::LoadIconW(nullptr, IDI_EXCLAMATION));
}

TEST(MessageBoxes, AnIconThatWasAskedForIsKept)
{
    EXPECT_EQ(shownIcon(MB_OK | MB_ICONINFORMATION), ::LoadIconW(nullptr, IDI_ASTERISK));
}

TEST(MessageBoxes, TheMainWindowIsDisabledMeanwhileAndOwnsTheBox)
{
    TestApp& app = TestApp::instance();
    app.showBoxes();
    RecordingParent window;
    present(window);
    app.m_pMainWnd = &window;
    BOOL enabledMeanwhile = TRUE;
    HWND owner = nullptr;
    Robot robot;
    {
        auto answering = robot.waitFor("the box", [] { return openBox() != nullptr; })
                             .then([&] {
                                 enabledMeanwhile = window.IsWindowEnabled();
                                 owner = ::GetWindow(openBox(), GW_OWNER);
                             })
                             .key(VK_RETURN)
                             .start();
        EXPECT_EQ(AfxMessageBox(L"text"), IDOK);
    }
    app.m_pMainWnd = nullptr;
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_EQ(owner, window.m_hWnd);
    EXPECT_TRUE(window.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), window.m_hWnd);
}

TEST(MessageBoxes, ATaskModalOneDisablesTheThreadsWindowsAndGivesTheActiveOneItsPlaceAgain)
{
    TestApp::instance().showBoxes();
    RecordingParent window;
    present(window);
    BOOL enabledMeanwhile = TRUE;
    Robot robot;
    auto answering = robot.waitFor("the box", [] { return openBox() != nullptr; })
                         .then([&] { enabledMeanwhile = window.IsWindowEnabled(); })
                         .key(VK_RETURN)
                         .start();
    EXPECT_EQ(AfxMessageBox(L"text", MB_OK | MB_TASKMODAL), IDOK);
    EXPECT_FALSE(enabledMeanwhile);
    EXPECT_EQ(::GetActiveWindow(), window.m_hWnd);
}

TEST(MessageBoxes, GivesTheButtonThatWasPressed)
{
    TestApp::instance().showBoxes();
    Robot robot;
    auto answering = robot.waitFor("the box", [] { return openBox() != nullptr; }).key(VK_ESCAPE).start();
    EXPECT_EQ(AfxMessageBox(L"text", MB_OKCANCEL), IDCANCEL);
}
