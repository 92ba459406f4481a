// F1: which help is shown, and that it is shown once.
#include "TestDialog.h"
#include "HelpFrame.h"
#include "resource.h"

#include <testkit/TestApp.h>

#include <gmock/gmock.h>

using namespace ovo::testkit;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class HelpKey : public ::testing::Test
{
protected:
    explicit HelpKey(HelpFrame* frame = HelpFrame::make())
        : m_frame(frame)
        , m_main(frame)
    {
    }

    HelpFrame* m_frame;
    MainFrame m_main;
    Robot m_robot;
};

} // namespace

TEST_F(HelpKey, AsksForTheFramesHelpThroughItsAccelerator)
{
    m_frame->LoadAccelTable(MAKEINTRESOURCEW(IDR_HELP_KEYS));
    present(*m_frame);
    m_robot.key(VK_F1);
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_RESOURCE + HelpFrame::kHelpId));
}

TEST_F(HelpKey, AsksForTheFramesHelpWithoutAnAccelerator)
{
    present(*m_frame);
    m_robot.key(VK_F1);
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_RESOURCE + HelpFrame::kHelpId));
}

TEST_F(HelpKey, WithAModifierIsAnotherKey)
{
    present(*m_frame);
    m_robot.holding(VK_CONTROL).key(VK_F1);
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(HelpKey, IsSilentInAProgramWithoutHelp)
{
    m_frame->handlesHelp = false;
    present(*m_frame);
    m_robot.key(VK_F1);
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(HelpKey, AsksForTheDefaultHelpWhereThereIsNoContext)
{
    m_frame->m_nIDHelp = 0;
    present(*m_frame);
    m_robot.key(VK_F1);
    EXPECT_THAT(asked(), ElementsAre(0u));
    ASSERT_EQ(TestApp::instance().helps().size(), 1u);
    EXPECT_EQ(TestApp::instance().helps()[0].command, UINT{HELP_FINDER});
}

TEST_F(HelpKey, InAMenuAsksForTheCommand)
{
    CMenu menu;
    menu.LoadMenu(IDR_FRAME);
    m_frame->SetMenu(&menu);
    present(*m_frame);
    m_robot.holding(VK_MENU)
        .key('T')
        .letGo(VK_MENU)
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .key(VK_DOWN)
        .key(VK_F1)
        .key(VK_ESCAPE, 2);
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_COMMAND + ID_TEST_OTHER));
    m_frame->SetMenu(nullptr);
}

TEST_F(HelpKey, InADialogAsksForTheDialog)
{
    present(*m_frame);
    TestDialog dialog(m_frame);
    dialog.SetHelpID(44);
    auto acting = whenShown().key(VK_F1).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_RESOURCE + 44));
}

TEST_F(HelpKey, InADialogWithoutHelpAsksForItsOwners)
{
    m_frame->LoadAccelTable(MAKEINTRESOURCEW(IDR_HELP_KEYS));
    present(*m_frame);
    TestDialog dialog(m_frame);
    auto acting = whenShown().key(VK_F1).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_RESOURCE + HelpFrame::kHelpId));
}

TEST_F(HelpKey, InAMessageBoxAsksForTheMessage)
{
    TestApp::instance().showBoxes();
    present(*m_frame);
    auto acting = whenShown().key(VK_F1).key(VK_RETURN).start();
    AfxMessageBox(L"Help on this is number 55.", MB_OK, 55);
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_PROMPT + 55));
}

TEST_F(HelpKey, InAMessageBoxWithoutHelpIsSilent)
{
    TestApp::instance().showBoxes();
    present(*m_frame);
    auto acting = whenShown().key(VK_F1).key(VK_RETURN).start();
    AfxMessageBox(L"There is no help on this.");
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(HelpKey, InAMessageBoxOfADialogAsksForTheMessageToo)
{
    TestApp::instance().showBoxes();
    present(*m_frame);
    TestDialog dialog(m_frame);
    dialog.SetHelpID(44);
    dialog.onAct = [](TestDialog&) {
        AfxMessageBox(L"Help on this is number 55.", MB_OK, 55);
        AfxMessageBox(L"There is no help on this.");
    };
    const auto box = [](const wchar_t* text) { return [text] { return boxShows(text); }; };
    auto acting = whenShown()
                      .click(Spot([] { return shownControl(TestDialog::kAct); }))
                      .waitFor("the first box", box(L"Help on this is number 55."))
                      .key(VK_F1)
                      .key(VK_RETURN)
                      .waitFor("the second box", box(L"There is no help on this."))
                      .key(VK_F1)
                      .key(VK_RETURN)
                      .waitFor("the dialog", [&] { return shownDialog() == dialog.m_hWnd; })
                      .key(VK_ESCAPE)
                      .start();
    dialog.DoModal();
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_PROMPT + 55));
}

TEST_F(HelpKey, TheOtherCommandsAskForWhatTheyAreNamedAfter)
{
    CWinApp& app = *AfxGetApp();
    app.OnHelpIndex();
    app.OnHelpUsing();
    app.m_eHelpType = afxHTMLHelp;
    app.OnHelpFinder();
    app.OnHelpIndex();
    app.m_eHelpType = afxWinHelp;
    std::vector<UINT> commands;
    for (const AskedHelp& help : TestApp::instance().helps())
        commands.push_back(help.command);
    EXPECT_THAT(commands, ElementsAre(HELP_INDEX, HELP_HELPONHELP, HH_DISPLAY_TOPIC, HH_DISPLAY_INDEX));
}
