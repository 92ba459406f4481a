// Tooltips.
#include "resource.h"

#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

struct ToolTipCtrlTest : ::testing::Test
{
    ToolTipCtrlTest()
    {
        button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40), &parent, 7);
        tip.Create(&parent, TTS_ALWAYSTIP);
    }
    CString textOf(CWnd& window, UINT_PTR id = 0)
    {
        CString text;
        tip.GetText(text, &window, id);
        return text;
    }

    RecordingParent parent;
    CButton button;
    CToolTipCtrl tip;
};

} // namespace

TEST_F(ToolTipCtrlTest, AWholeWindowIsATool)
{
    EXPECT_TRUE(tip.AddTool(&button, L"Press me"));
    EXPECT_EQ(tip.GetToolCount(), 1);
    EXPECT_STREQ(textOf(button), L"Press me");
    tip.UpdateTipText(L"Do not press me", &button);
    EXPECT_STREQ(textOf(button), L"Do not press me");
    tip.DelTool(&button);
    EXPECT_EQ(tip.GetToolCount(), 0);
}

TEST_F(ToolTipCtrlTest, PartsOfAWindowAreToolsWithIds)
{
    CToolInfo info;

    EXPECT_TRUE(tip.AddTool(&parent, L"first", CRect(0, 0, 20, 20), 1));
    EXPECT_TRUE(tip.AddTool(&parent, L"second", CRect(20, 0, 40, 20), 2));
    EXPECT_EQ(tip.GetToolCount(), 2);
    EXPECT_STREQ(textOf(parent, 2), L"second");
    tip.SetToolRect(&parent, 2, CRect(50, 50, 60, 60));
    ASSERT_TRUE(tip.GetToolInfo(info, &parent, 2));
    EXPECT_EQ(CRect(info.rect), CRect(50, 50, 60, 60));
    EXPECT_STREQ(info.szText, L"second");
    EXPECT_FALSE(tip.GetToolInfo(info, &parent, 3));
    TOOLINFO hit{};
    EXPECT_TRUE(tip.HitTest(&parent, CPoint(55, 55), &hit));
    EXPECT_EQ(hit.uId, 2u);
    EXPECT_FALSE(tip.HitTest(&parent, CPoint(200, 200), &hit));
}

TEST_F(ToolTipCtrlTest, ATextMayComeFromTheResources)
{
    EXPECT_TRUE(tip.AddTool(&button, IDS_TIP));
    EXPECT_STREQ(textOf(button), L"From the resources");
    tip.AddTool(&parent, L"plain", CRect(0, 0, 20, 20), 1);
    tip.UpdateTipText(IDS_TIP, &parent, 1);
    EXPECT_STREQ(textOf(parent, 1), L"From the resources");
}

TEST_F(ToolTipCtrlTest, ATextIsFoundWhereItIsAndNotWhereItsBlockIs)
{
    CString ready;
    ASSERT_TRUE(ready.LoadString(AFX_IDS_IDLEMESSAGE));
    EXPECT_TRUE(tip.AddTool(&button, AFX_IDS_IDLEMESSAGE));
    EXPECT_STREQ(textOf(button), ready);
    tip.UpdateTipText(IDS_BESIDE_READY, &button);
    EXPECT_STREQ(textOf(button), L"Beside the framework's");
}

TEST_F(ToolTipCtrlTest, ATextOnDemandIsAskedOfTheWindow)
{
    parent.answer(TTN_GETDISPINFOW, [](NMHDR* header) {
        auto* display = reinterpret_cast<NMTTDISPINFO*>(header);
        ::lstrcpyW(display->szText, L"on demand");
        return 0;
    });
    tip.AddTool(&parent, LPSTR_TEXTCALLBACK, CRect(0, 0, 20, 20), 1);

    EXPECT_STREQ(textOf(parent, 1), L"on demand");
}

TEST_F(ToolTipCtrlTest, DelaysColoursAndSizesAreKept)
{
    tip.SetDelayTime(TTDT_INITIAL, 700);
    EXPECT_EQ(tip.GetDelayTime(TTDT_INITIAL), 700);
    tip.SetDelayTime(100);
    EXPECT_EQ(tip.GetDelayTime(TTDT_INITIAL), 100);
    EXPECT_EQ(tip.GetDelayTime(TTDT_AUTOPOP), 1000);
    EXPECT_EQ(tip.GetMaxTipWidth(), -1);
    tip.SetMaxTipWidth(300);
    EXPECT_EQ(tip.GetMaxTipWidth(), 300);
    CRect margin(1, 2, 3, 4);
    CRect got;
    tip.SetMargin(&margin);
    tip.GetMargin(&got);
    EXPECT_EQ(got, margin);
    tip.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(tip.GetTipBkColor(), RGB(1, 2, 3));
    tip.SetTipTextColor(RGB(4, 5, 6));
    EXPECT_EQ(tip.GetTipTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(tip.SetTitle(1, L"Title"));
}

TEST_F(ToolTipCtrlTest, BelongsToItsParent)
{
    EXPECT_EQ(tip.GetOwner(), &parent);
    EXPECT_EQ(::GetWindow(tip, GW_OWNER), parent.m_hWnd);
    EXPECT_TRUE(tip.GetStyle() & WS_POPUP);
    tip.Pop();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(tip.GetCurrentTool(nullptr));
}
