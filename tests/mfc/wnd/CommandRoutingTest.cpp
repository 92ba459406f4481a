// Commands, update requests and notifications on their way to a handler.
#include <afxwin.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

class Target : public CWnd
{
public:
    std::vector<std::string> log;
    bool enabled = true;
    bool goOn = false;
    BOOL take = TRUE;
    LRESULT notifyResult = 0;

    bool create() { return CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 80, nullptr, nullptr); }

protected:
    afx_msg void OnOne() { log.push_back("one"); }
    afx_msg void OnRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    afx_msg BOOL OnEx(UINT id)
    {
        log.push_back("ex " + std::to_string(id));
        return take;
    }
    afx_msg void OnUpdateOne(CCmdUI* ui)
    {
        ui->Enable(enabled);
        if (goOn)
            ui->ContinueRouting();
    }
    afx_msg void OnClicked() { log.push_back("clicked"); }
    afx_msg void OnNotifyOne(NMHDR* header, LRESULT* result)
    {
        log.push_back("notify " + std::to_string(static_cast<int>(header->code)));
        *result = 17;
    }
    afx_msg BOOL OnNotifyMany(UINT id, NMHDR*, LRESULT*)
    {
        log.push_back("many " + std::to_string(id));
        return take;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(100, &Target::OnOne)
    ON_COMMAND_RANGE(200, 205, &Target::OnRange)
    ON_COMMAND_EX(300, &Target::OnEx)
    ON_COMMAND_EX_RANGE(400, 65535, &Target::OnEx)
    ON_UPDATE_COMMAND_UI(100, &Target::OnUpdateOne)
    ON_BN_CLICKED(50, &Target::OnClicked)
    ON_NOTIFY(NM_CLICK, 60, &Target::OnNotifyOne)
    ON_NOTIFY_EX_RANGE(NM_RCLICK, 60, 70, &Target::OnNotifyMany)
END_MESSAGE_MAP()

LRESULT menuCommand(CWnd& wnd, UINT id)
{
    return ::SendMessageW(wnd, WM_COMMAND, id, 0);
}

class UpdateProbe : public CCmdUI
{
public:
    int enabled = -1;
    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        enabled = on != FALSE;
    }
};

} // namespace

TEST(CommandRouting, ACommandReachesItsHandler)
{
    Target wnd;
    wnd.create();
    EXPECT_EQ(menuCommand(wnd, 100), 1);
    EXPECT_EQ(menuCommand(wnd, 200), 1);
    EXPECT_EQ(menuCommand(wnd, 205), 1);
    EXPECT_EQ(menuCommand(wnd, 206), 0);
    EXPECT_EQ(wnd.log, (std::vector<std::string>{"one", "range 200", "range 205"}));
}

TEST(CommandRouting, AnAcceleratorsCommandIsTheSame)
{
    Target wnd;
    wnd.create();
    EXPECT_EQ(::SendMessageW(wnd, WM_COMMAND, MAKEWPARAM(100, 1), 0), 1);
    EXPECT_EQ(wnd.log, std::vector<std::string>{"one"});
}

TEST(CommandRouting, AnExHandlerMayDecline)
{
    Target wnd;
    wnd.create();
    EXPECT_EQ(menuCommand(wnd, 300), 1);
    wnd.take = FALSE;
    EXPECT_EQ(menuCommand(wnd, 300), 0);
    EXPECT_EQ(wnd.log.size(), 2u);
}

TEST(CommandRouting, ADisabledCommandIsSwallowed)
{
    Target wnd;
    wnd.create();
    wnd.enabled = false;
    EXPECT_EQ(menuCommand(wnd, 100), 1);
    EXPECT_TRUE(wnd.log.empty());
}

TEST(CommandRouting, HandlerInformationCallsNothing)
{
    Target wnd;
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(wnd.OnCmdMsg(100, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &wnd);
    EXPECT_NE(info.pmf, nullptr);
    EXPECT_TRUE(wnd.log.empty());
    EXPECT_FALSE(wnd.OnCmdMsg(101, CN_COMMAND, nullptr, &info));
}

TEST(CommandRouting, UpdatingWithoutAHandlerFollowsTheCommandHandler)
{
    Target wnd;
    UpdateProbe ui;
    ui.m_nID = 200;
    EXPECT_FALSE(ui.DoUpdate(&wnd, TRUE));
    EXPECT_EQ(ui.enabled, 1) << "there is a command handler";
    ui.m_nID = 206;
    ui.DoUpdate(&wnd, TRUE);
    EXPECT_EQ(ui.enabled, 0);
    ui.enabled = -1;
    ui.DoUpdate(&wnd, FALSE);
    EXPECT_EQ(ui.enabled, -1) << "disabling was not asked for";
}

TEST(CommandRouting, AnUpdateHandlerDecides)
{
    Target wnd;
    UpdateProbe ui;
    ui.m_nID = 100;
    wnd.enabled = false;
    EXPECT_TRUE(ui.DoUpdate(&wnd, TRUE));
    EXPECT_EQ(ui.enabled, 0);
    wnd.goOn = true;
    EXPECT_FALSE(ui.DoUpdate(&wnd, TRUE)) << "left to the next target";
}

TEST(CommandRouting, SeparatorsAndPopupsAreNotAskedFor)
{
    Target wnd;
    UpdateProbe ui;
    for (const UINT id : {0u, 0xFFFFu}) {
        ui.m_nID = id;
        EXPECT_TRUE(ui.DoUpdate(&wnd, TRUE));
        EXPECT_EQ(ui.enabled, -1);
    }
}

TEST(CommandRouting, AControlsNotificationReachesItsParent)
{
    Target wnd;
    wnd.create();
    const HWND button =
        ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 10, 10, wnd, reinterpret_cast<HMENU>(50), nullptr, nullptr);
    ::SendMessageW(button, BM_CLICK, 0, 0);
    EXPECT_EQ(wnd.log, std::vector<std::string>{"clicked"});
}

TEST(CommandRouting, ANotificationIsFoundByTheControlsNumberNotByWParam)
{
    Target wnd;
    wnd.create();
    const HWND child =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, wnd, reinterpret_cast<HMENU>(60), nullptr, nullptr);
    NMHDR header{child, 9999, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(::SendMessageW(wnd, WM_NOTIFY, 9999, reinterpret_cast<LPARAM>(&header)), 17);
    header.code = static_cast<UINT>(NM_RCLICK);
    ::SendMessageW(wnd, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(wnd.log, (std::vector<std::string>{"notify -2", "many 60"}));
}
