// Which commands of a dialog its owner and the program get to see.
#include "TestDialog.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using Log = std::vector<std::string>;

/// Notes who is asked, in order; the one named takes the command.
class Routing
{
public:
    static inline Log log;
    static inline std::string taker;

    static BOOL asked(const char* who)
    {
        log.push_back(who);
        return taker == who;
    }
};

constexpr int kPrivate = 0x7001;    // below the commands that a whole program may know
constexpr UINT kFramework = 0xF001; // above them

class RoutingOwner : public CWnd
{
public:
    RoutingOwner()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    }
    ~RoutingOwner() override { DestroyWindow(); }

    int closed = 0;

protected:
    afx_msg BOOL OnAny(UINT) { return Routing::asked("owner"); }
    afx_msg void OnNotified() { Routing::asked("owner"); }
    afx_msg void OnUpdate(CCmdUI* ui)
    {
        Routing::asked("owner update");
        ui->Enable(FALSE);
    }
    afx_msg void OnClose() { ++closed; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RoutingOwner, CWnd)
    ON_COMMAND_EX(ID_TEST_ACT, &RoutingOwner::OnAny)
    ON_COMMAND_EX(kPrivate, &RoutingOwner::OnAny)
    ON_COMMAND_EX(kFramework, &RoutingOwner::OnAny)
    ON_CONTROL(EN_CHANGE, ID_TEST_ACT, &RoutingOwner::OnNotified)
    ON_UPDATE_COMMAND_UI(ID_TEST_OTHER, &RoutingOwner::OnUpdate)
    ON_COMMAND_EX(ID_TEST_OTHER, &RoutingOwner::OnAny)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

class RoutingDialog : public TestDialog
{
public:
    explicit RoutingDialog(CWnd& owner)
    {
        Routing::log.clear();
        Routing::taker.clear();
        createModeless(&owner);
    }
    ~RoutingDialog() override { DestroyWindow(); }

protected:
    afx_msg BOOL OnAny(UINT) { return Routing::asked("dialog"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RoutingDialog, TestDialog)
    ON_COMMAND_EX(ID_TEST_ACT, &RoutingDialog::OnAny)
    ON_COMMAND_EX(kPrivate, &RoutingDialog::OnAny)
END_MESSAGE_MAP()

} // namespace

TEST(DialogRouting, ACommandGoesToTheDialogThenToItsOwner)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    dialog.SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(Routing::log, (Log{"dialog", "owner"}));
    Routing::log.clear();
    Routing::taker = "dialog";
    dialog.SendMessage(WM_COMMAND, ID_TEST_ACT);
    EXPECT_EQ(Routing::log, Log{"dialog"});
}

TEST(DialogRouting, ThenToTheProgram)
{
    RoutingOwner owner;
    AfxGetApp()->m_pMainWnd = &owner;
    {
        RoutingDialog dialog(owner);
        dialog.SendMessage(WM_COMMAND, ID_APP_EXIT); // which closes the main window
    }
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(owner.closed, 1);
}

TEST(DialogRouting, TheNumbersOfItsControlsStayInTheDialog)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    dialog.SendMessage(WM_COMMAND, kPrivate);
    EXPECT_EQ(Routing::log, Log{"dialog"});
    Routing::log.clear();
    dialog.SendMessage(WM_COMMAND, kFramework);
    EXPECT_TRUE(Routing::log.empty());
}

TEST(DialogRouting, NotificationsStayInTheDialog)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(ID_TEST_ACT, EN_CHANGE),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, TestDialog::kEdit)));
    EXPECT_TRUE(Routing::log.empty());
}

TEST(DialogRouting, AButtonWithACommandsNumberSendsTheCommand)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    dialog.GetDlgItem(TestDialog::kAct)->SetDlgCtrlID(ID_TEST_ACT);
    ::SendMessageW(::GetDlgItem(dialog, ID_TEST_ACT), BM_CLICK, 0, 0);
    EXPECT_EQ(Routing::log, (Log{"dialog", "owner"}));
}

TEST(DialogRouting, TheOwnerSaysWhetherItsCommandIsEnabled)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    Routing::taker = "owner";
    dialog.SendMessage(WM_COMMAND, ID_TEST_OTHER); // as from a menu
    EXPECT_EQ(Routing::log, Log{"owner update"}) << "it is disabled, so it is not carried out";

    Routing::log.clear();
    dialog.GetDlgItem(TestDialog::kAct)->SetDlgCtrlID(ID_TEST_OTHER);
    dialog.UpdateDialogControls(&dialog, TRUE);
    EXPECT_EQ(Routing::log, Log{"owner update"});
    EXPECT_FALSE(dialog.GetDlgItem(ID_TEST_OTHER)->IsWindowEnabled());
}

TEST(DialogRouting, WhoWouldHandleACommandIsToldWithoutACall)
{
    RoutingOwner owner;
    RoutingDialog dialog(owner);
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(dialog.OnCmdMsg(ID_TEST_OTHER, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &owner);
    EXPECT_TRUE(Routing::log.empty());
    EXPECT_FALSE(dialog.OnCmdMsg(ID_TEST_UNHANDLED, CN_COMMAND, nullptr, &info));
}
