// The controls of a window that follow the state of their commands.
#include "Windows.h"

#include <gtest/gtest.h>

using namespace wndtest;

namespace
{

class Target : public CCmdTarget
{
protected:
    void OnCommand100() {}
    void OnUpdate102(CCmdUI* ui)
    {
        ui->Enable(FALSE);
        ui->SetText(L"renamed");
    }
    void OnUpdate103(CCmdUI* ui) { ui->SetCheck(1); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CCmdTarget)
    ON_COMMAND(100, &Target::OnCommand100)
    ON_UPDATE_COMMAND_UI(102, &Target::OnUpdate102)
    ON_UPDATE_COMMAND_UI(103, &Target::OnUpdate103)
END_MESSAGE_MAP()

/// Answers for itself.
class SelfAware : public CButton
{
public:
    bool answers = true;
    int asked = 0;

protected:
    void OnUpdateMe(CCmdUI* ui)
    {
        ++asked;
        if (answers)
            ui->Enable(FALSE);
        else
            ui->ContinueRouting();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SelfAware, CButton)
    ON_UPDATE_COMMAND_UI_REFLECT(&SelfAware::OnUpdateMe)
END_MESSAGE_MAP()

class UpdatingControls : public ::testing::Test
{
protected:
    UpdatingControls() { wnd.create(); }

    Hidden<> wnd;
    Target target;
};

} // namespace

TEST_F(UpdatingControls, AButtonIsDisabledForWantOfAHandler)
{
    const HWND handled = plainControl(wnd, L"BUTTON", 100);
    const HWND unhandled = plainControl(wnd, L"BUTTON", 101);
    wnd.UpdateDialogControls(&target, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(handled));
    EXPECT_FALSE(::IsWindowEnabled(unhandled));
}

TEST_F(UpdatingControls, NothingIsDisabledUnlessAskedFor)
{
    const HWND unhandled = plainControl(wnd, L"BUTTON", 101);
    wnd.UpdateDialogControls(&target, FALSE);
    EXPECT_TRUE(::IsWindowEnabled(unhandled));
}

TEST_F(UpdatingControls, WhatIsNoPushButtonStaysEnabledWithoutAHandler)
{
    const HWND label = plainControl(wnd, L"STATIC", 101);
    const HWND box = plainControl(wnd, L"BUTTON", 104, BS_AUTOCHECKBOX);
    const HWND edit = plainControl(wnd, L"EDIT", 105);
    wnd.UpdateDialogControls(&target, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(label));
    EXPECT_TRUE(::IsWindowEnabled(box));
    EXPECT_TRUE(::IsWindowEnabled(edit));
}

TEST_F(UpdatingControls, AnUpdateHandlerWorksOnTheControl)
{
    const HWND text = plainControl(wnd, L"STATIC", 102);
    const HWND box = plainControl(wnd, L"BUTTON", 103, BS_CHECKBOX);
    wnd.UpdateDialogControls(&target, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(text));
    CString title;
    CWnd::FromHandle(text)->GetWindowText(title);
    EXPECT_STREQ(title, L"renamed");
    EXPECT_EQ(::SendMessageW(box, BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(UpdatingControls, AControlThatAnswersForItselfIsNotAskedForFurther)
{
    SelfAware button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &wnd, 100));
    wnd.UpdateDialogControls(&target, TRUE);
    EXPECT_EQ(button.asked, 1);
    EXPECT_FALSE(button.IsWindowEnabled()) << "though its command has a handler";
    button.answers = false;
    wnd.UpdateDialogControls(&target, TRUE);
    EXPECT_TRUE(button.IsWindowEnabled()) << "the target's answer counts again";
    button.DestroyWindow();
}
