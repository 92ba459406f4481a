// CCmdUI for controls that are no menu items.
#include "TestDialog.h"
#include "resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

class Target : public CCmdTarget
{
public:
    std::function<void(CCmdUI&)> update;

protected:
    afx_msg void OnCommand() { FAIL() << "this command was not given"; }
    afx_msg void OnUpdate(CCmdUI* ui) { update(*ui); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CCmdTarget)
    ON_COMMAND(ID_TEST_ACT, &Target::OnCommand)
    ON_UPDATE_COMMAND_UI(ID_TEST_OTHER, &Target::OnUpdate)
END_MESSAGE_MAP()

/// Notes what is asked of it.
class Noting : public CCmdUI
{
public:
    std::vector<BOOL> enabled;
    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        enabled.push_back(on);
    }
};

} // namespace

TEST(CmdUI, WithoutAnUpdateHandlerTheCommandHandlerDecides)
{
    Target target;
    Noting ui;
    ui.m_nID = ID_TEST_ACT;
    EXPECT_FALSE(ui.DoUpdate(&target, TRUE));
    EXPECT_EQ(ui.enabled, std::vector<BOOL>{TRUE});
    ui.enabled.clear();
    ui.m_nID = ID_TEST_UNHANDLED;
    EXPECT_FALSE(ui.DoUpdate(&target, TRUE));
    EXPECT_EQ(ui.enabled, std::vector<BOOL>{FALSE});
    ui.enabled.clear();
    EXPECT_FALSE(ui.DoUpdate(&target, FALSE));
    EXPECT_TRUE(ui.enabled.empty()) << "it is not to be disabled";
}

TEST(CmdUI, AnUpdateHandlerDecidesAlone)
{
    Target target;
    Noting ui;
    ui.m_nID = ID_TEST_OTHER;
    target.update = [](CCmdUI& asked) { asked.Enable(TRUE); };
    EXPECT_TRUE(ui.DoUpdate(&target, TRUE));
    EXPECT_EQ(ui.enabled, std::vector<BOOL>{TRUE});
    ui.enabled.clear();
    target.update = [](CCmdUI&) {};
    EXPECT_TRUE(ui.DoUpdate(&target, TRUE));
    EXPECT_TRUE(ui.enabled.empty());
}

TEST(CmdUI, AHandlerThatEnablesAndContinuesIsHeard)
{
    Target target;
    Noting ui;
    ui.m_nID = ID_TEST_OTHER;
    target.update = [](CCmdUI& asked) {
        asked.Enable(TRUE);
        asked.ContinueRouting();
    };
    EXPECT_FALSE(ui.DoUpdate(&target, TRUE));
    EXPECT_EQ(ui.enabled, std::vector<BOOL>{TRUE}) << "not disabled behind its back";
}

TEST(CmdUI, LabelsAndSeparatorsAreNotAskedFor)
{
    Target target;
    for (const UINT id : {0u, 0xFFFFu, static_cast<UINT>(-1)}) {
        Noting ui;
        ui.m_nID = id;
        EXPECT_TRUE(ui.DoUpdate(&target, TRUE));
        EXPECT_TRUE(ui.enabled.empty());
    }
}

TEST(CmdUI, AControlIsEnabledNamedAndChecked)
{
    MemoryTemplate memory(L"Controls");
    memory.control(L"BUTTON", 1, BS_AUTOCHECKBOX, L"Check").control(L"EDIT", 2, 0, L"Edit");
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.get()));
    CCmdUI check;
    check.m_pOther = dialog.GetDlgItem(1);
    check.SetCheck(1);
    EXPECT_EQ(dialog.IsDlgButtonChecked(1), static_cast<UINT>(BST_CHECKED));
    check.SetRadio(FALSE);
    EXPECT_EQ(dialog.IsDlgButtonChecked(1), static_cast<UINT>(BST_UNCHECKED));
    check.SetText(L"Oak");
    EXPECT_EQ(textOf(*check.m_pOther), L"Oak");

    CCmdUI edit;
    edit.m_pOther = dialog.GetDlgItem(2);
    edit.Enable(FALSE);
    EXPECT_TRUE(edit.m_bEnableChanged);
    EXPECT_FALSE(edit.m_pOther->IsWindowEnabled());
    edit.Enable();
    EXPECT_TRUE(edit.m_pOther->IsWindowEnabled());
    edit.SetCheck(1); // an edit control has nothing to check
    dialog.DestroyWindow();
}

TEST(CmdUI, ADisabledControlPassesTheFocusOn)
{
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    ASSERT_TRUE(dialog.createModeless());
    present(dialog);
    dialog.GetDlgItem(TestDialog::kEdit)->SetFocus();
    CCmdUI ui;
    ui.m_pOther = dialog.GetDlgItem(TestDialog::kEdit);
    ui.Enable(FALSE);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), TestDialog::kAct);
    dialog.DestroyWindow();
}

TEST(CmdUI, WithNothingToShowItDoesNothing)
{
    CCmdUI ui;
    ui.Enable(FALSE);
    ui.SetCheck(1);
    ui.SetRadio();
    ui.SetText(L"Oak");
    EXPECT_TRUE(ui.m_bEnableChanged);
}
