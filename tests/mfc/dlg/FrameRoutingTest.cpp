// Frames: the order in which a command's targets are asked, menu updates, the message line, the frame's end.
#include <afxwin.h>
#include <afxext.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> s_log;
std::string s_taker;
int s_frames = 0;

BOOL note(const char* who)
{
    s_log.push_back(who);
    return s_taker == who;
}

class TestView : public CView
{
public:
    using CView::CView;
    TestView() = default;

protected:
    void OnDraw(CDC*) override {}
    afx_msg BOOL OnAny(UINT) { return note("view"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestView, CView)
    ON_COMMAND_EX(ID_EDIT_COPY, OnAny)
END_MESSAGE_MAP()

class TestFrame : public CFrameWnd
{
public:
    TestView* view = nullptr;

    TestFrame() { ++s_frames; }
    ~TestFrame() override { --s_frames; }

    bool create()
    {
        s_log.clear();
        s_taker.clear();
        if (!Create(nullptr, L"Test frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400)))
            return false;
        view = new TestView;
        view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(), this, AFX_IDW_PANE_FIRST);
        SetActiveView(view, FALSE);
        RecalcLayout();
        return true;
    }

    bool enabled = true;

protected:
    afx_msg BOOL OnAny(UINT) { return note("frame"); }
    afx_msg void OnCut() {}
    afx_msg void OnUpdateUndo(CCmdUI* ui)
    {
        ui->Enable(enabled);
        ui->SetCheck(1);
        ui->SetText(L"Undo oak");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
    ON_COMMAND_EX(ID_EDIT_COPY, OnAny)
    ON_COMMAND(ID_EDIT_CUT, OnCut)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, OnUpdateUndo)
END_MESSAGE_MAP()

} // namespace

TEST(FrameRouting, TheActiveViewComesBeforeTheFrame)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->create());
    frame->SendMessage(WM_COMMAND, ID_EDIT_COPY);
    EXPECT_EQ(s_log, (std::vector<std::string>{"view", "frame"}));
    s_log.clear();
    s_taker = "view";
    frame->SendMessage(WM_COMMAND, ID_EDIT_COPY);
    EXPECT_EQ(s_log, std::vector<std::string>{"view"});
    frame->DestroyWindow();
}

TEST(FrameRouting, AFrameDeletesItselfWithItsWindow)
{
    auto* frame = new TestFrame;
    frame->create();
    const int before = s_frames;
    frame->DestroyWindow();
    EXPECT_EQ(s_frames, before - 1);
}

TEST(FrameRouting, AMenuIsBroughtUpToDateBeforeItOpens)
{
    auto* frame = new TestFrame;
    frame->create();
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_EDIT_UNDO, L"Undo");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_EDIT_CUT, L"Cut");
    menu.AppendMenu(MF_STRING, ID_EDIT_FIND, L"Find");
    frame->enabled = false;
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);

    const auto greyed = [&](UINT position) { return (menu.GetMenuState(position, MF_BYPOSITION) & MF_GRAYED) != 0; };
    EXPECT_TRUE(greyed(0)) << "its handler says so";
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED);
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, L"Undo oak");
    EXPECT_FALSE(greyed(2)) << "there is a command handler";
    EXPECT_TRUE(greyed(3)) << "nobody handles it";

    frame->m_bAutoMenuEnable = FALSE;
    menu.EnableMenuItem(3, MF_BYPOSITION | MF_ENABLED);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_FALSE(greyed(3));
    frame->DestroyWindow();
}

TEST(FrameRouting, BarsTakeTheirPartAndTheViewTheRest)
{
    auto* frame = new TestFrame;
    frame->create();
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(frame));
    frame->RecalcLayout();
    CRect client, view, status;
    frame->GetClientRect(&client);
    frame->view->GetWindowRect(&view);
    frame->ScreenToClient(&view);
    bar.GetWindowRect(&status);
    frame->ScreenToClient(&status);
    EXPECT_EQ(status.bottom, client.bottom);
    EXPECT_EQ(status.Width(), client.Width());
    EXPECT_EQ(view.bottom, status.top);
    EXPECT_EQ(view.top, client.top);

    frame->ShowControlBar(&bar, FALSE, FALSE);
    frame->view->GetWindowRect(&view);
    frame->ScreenToClient(&view);
    EXPECT_EQ(view.bottom, client.bottom) << "a hidden bar takes no room";
    frame->DestroyWindow();
}

TEST(FrameRouting, TheMessageLineShowsTextsAndCommands)
{
    auto* frame = new TestFrame;
    frame->create();
    CStatusBar bar;
    bar.Create(frame);
    static constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_NUM};
    ASSERT_TRUE(bar.SetIndicators(kPanes, 2));
    frame->SetMessageText(L"Planting");
    EXPECT_STREQ(bar.GetPaneText(0), L"Planting");
    frame->SetMessageText(AFX_IDS_IDLEMESSAGE);
    EXPECT_STREQ(bar.GetPaneText(0), L"Ready");
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_NUM), 1);
    EXPECT_EQ(bar.CommandToIndex(4711), -1);
    frame->DestroyWindow();
}
