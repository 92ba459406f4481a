// Shift+F1: the user points at what to get help on.
#include "HelpFrame.h"
#include "resource.h"

#include <gmock/gmock.h>

using namespace ovo::testkit;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class ContextHelp : public ::testing::Test
{
protected:
    ContextHelp()
        : m_frame(HelpFrame::make())
        , m_main(m_frame)
    {
        m_frame->LoadAccelTable(MAKEINTRESOURCEW(IDR_HELP_KEYS));
        m_status.Create(m_frame);
        const UINT panes[] = {ID_SEPARATOR};
        m_status.SetIndicators(panes, 1);
        m_bar.Create(m_frame);
        m_bar.LoadToolBar(IDR_FRAME);
        m_menu.LoadMenu(IDR_FRAME);
        m_frame->SetMenu(&m_menu);
        m_frame->RecalcLayout();
        present(*m_frame);
    }
    ~ContextHelp() override { m_frame->SetMenu(nullptr); }

    static bool inMode() { return AfxGetApp()->m_bHelpMode != FALSE; }

    /// A story that begins when the mode is on.
    Story afterShiftF1()
    {
        return m_robot.holding(VK_SHIFT).key(VK_F1).letGo(VK_SHIFT).waitFor("the help mode", &inMode);
    }

    Spot button(int index)
    {
        return Spot([this, index] {
            CRect rect;
            m_bar.GetItemRect(index, &rect);
            m_bar.ClientToScreen(&rect);
            return rect.CenterPoint();
        });
    }

    HelpFrame* m_frame;
    MainFrame m_main;
    CStatusBar m_status;
    CToolBar m_bar;
    CMenu m_menu;
    Robot m_robot;
};

} // namespace

TEST_F(ContextHelp, AClickIntoTheViewAsksForTheFrame)
{
    afterShiftF1().click(Spot(*m_frame->view, CPoint(60, 60)));
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_RESOURCE + HelpFrame::kHelpId));
    EXPECT_FALSE(inMode());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ContextHelp, AClickOnAButtonAsksForItsCommandAndDoesNotCarryItOut)
{
    m_frame->onOther = [] { ADD_FAILURE() << "the command was carried out"; };
    afterShiftF1().click(button(1));
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_COMMAND + ID_TEST_OTHER));
}

TEST_F(ContextHelp, AClickOnABarBesideItsButtonsAsksForTheBar)
{
    afterShiftF1().click(Spot(m_bar, CPoint(400, 8)));
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_CONTROL + AFX_IDW_TOOLBAR));
}

TEST_F(ContextHelp, AClickOnTheTitleAsksForTheTitle)
{
    const Spot title([this] {
        CRect rect;
        m_frame->GetWindowRect(&rect);
        return CPoint(rect.CenterPoint().x, rect.top + ::GetSystemMetrics(SM_CYSIZEFRAME) + 6);
    });
    afterShiftF1().click(title);
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_NCAREAS + HTCAPTION));
}

TEST_F(ContextHelp, AnAcceleratorAsksForItsCommandAndDoesNotCarryItOut)
{
    afterShiftF1().key(VK_F6).waitFor("the end of the help mode", [] { return !inMode(); });
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_COMMAND + ID_TEST_ACT));
    EXPECT_EQ(m_frame->acted, 0);
    EXPECT_THAT(TestView::s_log, ::testing::Not(::testing::Contains("frame")));
}

TEST_F(ContextHelp, ACommandOfTheMenuIsAskedForAndNotCarriedOut)
{
    m_frame->onOther = [] { ADD_FAILURE() << "the command was carried out"; };
    afterShiftF1()
        .holding(VK_MENU)
        .key('T')
        .letGo(VK_MENU)
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .key('O')
        .waitFor("the end of the help mode", [] { return !inMode(); });
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_COMMAND + ID_TEST_OTHER));
}

TEST_F(ContextHelp, AClickIntoTheMenuBarOpensTheMenu)
{
    const Spot menuBar([this] {
        MENUBARINFO info{};
        m_frame->GetMenuBarInfo(static_cast<LONG>(OBJID_MENU), 1, &info);
        return CRect(info.rcBar).CenterPoint();
    });
    afterShiftF1()
        .click(menuBar)
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .key('O')
        .waitFor("the end of the help mode", [] { return !inMode(); });
    EXPECT_THAT(asked(), ElementsAre(HID_BASE_COMMAND + ID_TEST_OTHER));
}

TEST_F(ContextHelp, EscapeEndsItWithoutHelp)
{
    std::wstring during;
    afterShiftF1()
        .then([&] { during = m_status.GetPaneText(0).GetString(); })
        .key(VK_ESCAPE)
        .waitFor("the end of the help mode", [] { return !inMode(); });
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_EQ(during, L"Click the item that you want help with");
    EXPECT_EQ(m_status.GetPaneText(0), L"Ready");
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ContextHelp, OtherKeysDoNothing)
{
    class KeyCounter : public CEdit
    {
    } edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), m_frame->view, 9);
    edit.SetFocus();
    afterShiftF1()
        .type(L"abc")
        .then([] { EXPECT_TRUE(inMode()); })
        .key(VK_ESCAPE)
        .waitFor("the end of the help mode", [] { return !inMode(); });
    EXPECT_EQ(textIn(edit), L"");
    m_robot.type(L"d");
    EXPECT_EQ(textIn(edit), L"d") << "they work again afterwards";
    edit.DestroyWindow();
}

TEST_F(ContextHelp, WhereNothingKnowsAContextTheDefaultHelpIsShown)
{
    m_frame->m_nIDHelp = 0;
    afterShiftF1().click(Spot(*m_frame->view, CPoint(60, 60)));
    EXPECT_THAT(asked(), ElementsAre(0u));
}

TEST_F(ContextHelp, EndsWithItsMainWindow)
{
    afterShiftF1().then([this] { m_frame->DestroyWindow(); });
    EXPECT_FALSE(inMode());
    EXPECT_THAT(asked(), IsEmpty());
    m_frame = HelpFrame::make(); // for the end of the test
    const MainFrame last(m_frame);
}
