// Bars with the controls of a dialog template.
#include "DockScene.h"

#include <support/RaisingChild.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;
using namespace docktest;

namespace
{

class DialogBar : public ::testing::Test, protected DockScene
{
protected:
    DialogBar()
    {
        for (ButtonBar* bar : {&one, &two, &three})
            bar->ShowWindow(SW_HIDE);
    }
    ~DialogBar() override { m_bar.DestroyWindow(); }

    void create(UINT style = CBRS_LEFT | CBRS_GRIPPER, UINT id = IDD_BAR)
    {
        ASSERT_TRUE(m_bar.Create(frame, id, WS_CHILD | WS_VISIBLE | style, ID_BAR_DIALOG));
        m_bar.SetWindowText(L"Palette");
        m_bar.EnableDocking(kAnySide);
        frame->RecalcLayout();
    }

    CDialogBar m_bar;
};

} // namespace

TEST_F(DialogBar, HasTheControlsOfItsTemplate)
{
    create();
    ASSERT_TRUE(m_bar.GetDlgItem(IDC_NAME));
    EXPECT_EQ(frame->GetDlgItem(ID_BAR_DIALOG), &m_bar) << "the number is the bar's, not the template's";
    EXPECT_EQ(m_bar.GetDlgItem(IDC_LIST)->SendMessage(CB_GETCOUNT), 2) << "filled as its resource says";
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG), &m_bar);
}

TEST_F(DialogBar, WhatIsRaisedAsItsObjectGoesWaitsForTheMessageLoop)
{
    support::RaisingChild child;
    {
        CDialogBar bar;
        ASSERT_TRUE(bar.Create(frame, IDD_BAR, WS_CHILD | WS_VISIBLE | CBRS_LEFT, ID_BAR_DIALOG));
        ASSERT_TRUE(child.createIn(bar));
    }
    child.expectRaisedInLoop();
}

TEST_F(DialogBar, LiesAtItsSideAsLargeAsItsTemplate)
{
    create(CBRS_LEFT);
    EXPECT_EQ(place(m_bar).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(place(m_bar).bottom, place(status).top) << "along the whole side";
    EXPECT_EQ(panePlace().left, place(m_bar).right);
    const CSize size = m_bar.CalcFixedLayout(FALSE, FALSE);
    EXPECT_EQ(size.cx, m_bar.m_sizeDefault.cx + 1) << "with its line";
    EXPECT_EQ(m_bar.CalcFixedLayout(TRUE, TRUE).cx, 32767);
}

TEST_F(DialogBar, ACaptionIsNotPartOfItsSize)
{
    create(CBRS_LEFT);
    CDialogBar captioned;
    ASSERT_TRUE(captioned.Create(frame, IDD_CAPTIONED, CBRS_LEFT, ID_BAR_DIALOG + 1));
    // Dialog units are rounded a little differently with a frame around them.
    EXPECT_NEAR(captioned.m_sizeDefault.cx, m_bar.m_sizeDefault.cx, 2);
    EXPECT_NEAR(captioned.m_sizeDefault.cy, m_bar.m_sizeDefault.cy, 2);
    captioned.DestroyWindow();
}

TEST_F(DialogBar, AMissingTemplateIsNoBar)
{
    EXPECT_FALSE(m_bar.Create(frame, 999, WS_CHILD | CBRS_LEFT, ID_BAR_DIALOG));
    EXPECT_EQ(m_bar.m_hWnd, nullptr);
    EXPECT_EQ(frame->GetControlBar(ID_BAR_DIALOG), nullptr);
}

TEST_F(DialogBar, ItsControlsNotifyTheFrame)
{
    create();
    ovo::testkit::present(*frame);
    robot.click(Spot{*m_bar.GetDlgItem(ID_ACT)});
    EXPECT_EQ(frame->commands, std::vector<UINT>{ID_ACT});
}

TEST_F(DialogBar, ItsButtonsAreUpdatedWhenThereIsTime)
{
    create();
    m_bar.GetDlgItem(ID_ACT)->SetDlgCtrlID(0x9000); // a command without a handler
    ovo::testkit::present(*frame);
    GuiThread::settle();
    EXPECT_FALSE(m_bar.GetDlgItem(0x9000)->IsWindowEnabled());
}

TEST_F(DialogBar, TabGoesFromControlToControl)
{
    create();
    ovo::testkit::present(*frame);
    robot.click(Spot{*m_bar.GetDlgItem(IDC_NAME)}).type(L"Ash").key(VK_TAB);
    EXPECT_EQ(::GetFocus(), m_bar.GetDlgItem(ID_ACT)->m_hWnd);
    CString text;
    m_bar.GetDlgItemText(IDC_NAME, text);
    EXPECT_STREQ(text, L"Ash");
}

TEST_F(DialogBar, FloatsWithItsContentsAndItsTitle)
{
    create();
    frame->DockControlBar(&m_bar, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    ovo::testkit::present(*frame);
    m_bar.SetDlgItemText(IDC_NAME, L"Oak");
    robot.drag(gripper(m_bar), Spot{pane});
    ASSERT_TRUE(m_bar.IsFloating());
    CString text;
    floatOf(m_bar)->GetWindowText(text);
    EXPECT_STREQ(text, L"Palette");
    m_bar.GetDlgItemText(IDC_NAME, text);
    EXPECT_STREQ(text, L"Oak");
    robot.click(Spot{*m_bar.GetDlgItem(ID_ACT)});
    EXPECT_EQ(frame->commands, std::vector<UINT>{ID_ACT});
    robot.click(Spot{*m_bar.GetDlgItem(IDC_NAME)});
    EXPECT_EQ(::GetFocus(), m_bar.GetDlgItem(IDC_NAME)->m_hWnd) << "a control that takes the focus gets it";
    robot.type(L"!");
    m_bar.GetDlgItemText(IDC_NAME, text);
    EXPECT_NE(text.Find(L"!"), -1);
}

TEST_F(DialogBar, ItsBackgroundIsAHandle)
{
    create();
    frame->DockControlBar(&m_bar, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    ovo::testkit::present(*frame);
    CRect edit;
    m_bar.GetDlgItem(IDC_NAME)->GetWindowRect(&edit);
    robot.drag(Spot{CPoint(edit.left - 2, edit.CenterPoint().y)}, Spot{pane});
    EXPECT_TRUE(m_bar.IsFloating());
}
