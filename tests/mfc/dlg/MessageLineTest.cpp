// The message line: prompts of commands, texts of the program, tooltips.
#include "TestFrame.h"
#include "resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class MessageLine : public ::testing::Test
{
protected:
    MessageLine()
    {
        m_bar.Create(&*m_frame);
        static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_NUM};
        m_bar.SetIndicators(kPanes, 2);
        GuiThread::settle();
    }

    std::wstring line() { return m_bar.GetPaneText(0).GetString(); }

    void select(UINT id, UINT flags = 0)
    {
        m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(id, flags), reinterpret_cast<LPARAM>(m_menu.m_hMenu));
        GuiThread::settle();
    }

    CStatusBar m_bar;
    CMenu m_menu;
    MainFrame m_frame{[] {
        auto* frame = new TestFrame;
        frame->LoadFrame(IDR_FRAME);
        TestView::s_taker = "frame";
        return frame;
    }()};
};

} // namespace

TEST_F(MessageLine, SaysReadyAtFirst)
{
    EXPECT_EQ(line(), L"Ready");
}

TEST_F(MessageLine, ShowsTextsAndStringsOfTheProgram)
{
    m_frame->SetMessageText(L"Planting");
    EXPECT_EQ(line(), L"Planting");
    EXPECT_EQ(textIn(m_bar), L"Planting");
    m_frame->SetMessageText(ID_TEST_ACT);
    EXPECT_EQ(line(), L"Does the act") << "what follows the line feed is the tooltip";
    m_frame->SetMessageText(ID_TEST_UNHANDLED);
    EXPECT_EQ(line(), L"") << "there is no such string";
}

TEST_F(MessageLine, TellsOfTheSelectedCommand)
{
    m_menu.CreatePopupMenu();
    select(ID_TEST_ACT);
    EXPECT_EQ(line(), L"Does the act");
    EXPECT_EQ(m_frame->m_nIDTracking, static_cast<UINT>(ID_TEST_ACT));
    select(0, MF_SEPARATOR);
    EXPECT_EQ(line(), L"");
    select(ID_TEST_OTHER);
    EXPECT_EQ(line(), L"Does something else");
    select(0, MF_POPUP);
    EXPECT_EQ(line(), L"");
}

TEST_F(MessageLine, TellsOfTheSystemMenusCommands)
{
    m_menu.CreatePopupMenu();
    select(SC_CLOSE, MF_SYSMENU);
    EXPECT_EQ(line(), L"Closes the window");
    select(SC_SIZE, MF_SYSMENU);
    EXPECT_EQ(line(), L"Changes the size of the window");
}

TEST_F(MessageLine, SaysReadyWhenTheMenuIsClosed)
{
    m_menu.CreatePopupMenu();
    select(ID_TEST_ACT);
    m_frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    GuiThread::settle();
    EXPECT_EQ(line(), L"Ready");
}

TEST_F(MessageLine, FollowsTheUserThroughTheMenus)
{
    present(*m_frame);
    const auto shows = [this](const wchar_t* text) { return [=, this] { return line() == text; }; };
    Robot()
        .key(VK_MENU)
        .key(VK_DOWN)
        .waitFor("the prompt of the first item", shows(L"Does the act"))
        .key(VK_DOWN)
        .waitFor("the prompt of the next item", shows(L"Does something else"))
        .key(VK_ESCAPE, 2)
        .waitFor("the menu to close", shows(L"Ready"));
    EXPECT_EQ(line(), L"Ready");
}

TEST_F(MessageLine, AMenuCommandIsCarriedOut)
{
    present(*m_frame);
    Robot().key(VK_MENU).key(VK_DOWN).waitFor("the menu", [] { return shownMenu(); }).key(VK_RETURN);
    EXPECT_EQ(m_frame->acted, 1);
}

TEST_F(MessageLine, GivesBackWhatItSaidBefore)
{
    m_frame->SetMessageText(ID_TEST_ACT);
    const LRESULT before = m_frame->SendMessage(WM_SETMESSAGESTRING, ID_TEST_OTHER, 0);
    EXPECT_EQ(before, ID_TEST_ACT);
    EXPECT_EQ(m_frame->SendMessage(WM_POPMESSAGESTRING, static_cast<WPARAM>(before), 0), ID_TEST_OTHER);
    EXPECT_EQ(line(), L"Does the act");
}

TEST_F(MessageLine, AProgramHasItsOwnTexts)
{
    class Poetic : public TestFrame
    {
    public:
        void GetMessageString(UINT id, CString& message) const override
        {
            message.Format(L"number %d", static_cast<int>(id));
        }
    };
    auto* frame = new Poetic;
    frame->Create(nullptr, L"Poetic");
    CStatusBar bar;
    bar.Create(frame);
    static constexpr UINT kPanes[] = {ID_SEPARATOR};
    bar.SetIndicators(kPanes, 1);
    frame->SetMessageText(7);
    EXPECT_STREQ(bar.GetPaneText(0), L"number 7");
    frame->DestroyWindow();
}

TEST_F(MessageLine, ATooltipIsThePartAfterTheLineFeed)
{
    NMTTDISPINFOW tip{};
    tip.hdr.code = TTN_NEEDTEXTW;
    tip.hdr.idFrom = ID_TEST_ACT;
    tip.hdr.hwndFrom = m_bar.m_hWnd;
    tip.lpszText = tip.szText;
    m_frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.lpszText, L"Act");

    tip.szText[0] = 0;
    tip.hdr.idFrom = ID_TEST_OTHER;
    m_frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.lpszText, L"") << "its string has no such part";

    CButton button;
    button.Create(L"Act", WS_CHILD, CRect(), &*m_frame, ID_TEST_ACT);
    tip.hdr.idFrom = reinterpret_cast<UINT_PTR>(button.m_hWnd);
    tip.uFlags = TTF_IDISHWND;
    m_frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.lpszText, L"Act") << "a control's tool bears its window";
}

TEST(MessageLineMissing, TextsAreNoErrorWithoutABar)
{
    const MainFrame frame;
    EXPECT_EQ(frame->GetMessageBar(), nullptr);
    frame->SetMessageText(L"Planting");
    frame->SetMessageText(ID_TEST_ACT);
}
