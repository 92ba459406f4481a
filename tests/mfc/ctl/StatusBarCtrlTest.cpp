// Status bars as controls.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

struct StatusBarCtrlTest : ::testing::Test
{
    StatusBarCtrlTest() { bar.Create(WS_CHILD | WS_VISIBLE | SBT_TOOLTIPS, CRect(0, 0, 0, 0), &parent, 7); }

    RecordingParent parent;
    CStatusBarCtrl bar;
};

} // namespace

TEST_F(StatusBarCtrlTest, StandsAtTheLowerEdge)
{
    CRect client;
    CRect rect;
    parent.GetClientRect(&client);
    bar.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);

    EXPECT_EQ(rect.bottom, client.bottom);
    EXPECT_EQ(rect.Width(), client.Width());
}

TEST_F(StatusBarCtrlTest, HasPanes)
{
    int ends[] = {100, 200, -1};
    int got[3]{};
    CRect second;

    EXPECT_TRUE(bar.SetParts(3, ends));
    EXPECT_EQ(bar.GetParts(3, got), 3);
    EXPECT_EQ(got[1], 200);
    EXPECT_EQ(got[2], -1);
    EXPECT_TRUE(bar.GetRect(1, &second));
    EXPECT_GE(second.left, 100);
    EXPECT_LE(second.right, 200);
    int horizontal = 0;
    int vertical = 0;
    int spacing = 0;
    EXPECT_TRUE(bar.GetBorders(horizontal, vertical, spacing));
    EXPECT_GE(spacing, 0);
}

TEST_F(StatusBarCtrlTest, TextsOfAnyLengthAndTheirTypesAreKept)
{
    int ends[] = {100, -1};
    bar.SetParts(2, ends);
    const CString wide(L'w', 500);
    int type = -1;
    wchar_t buffer[10]{};

    EXPECT_TRUE(bar.SetText(L"Ready", 0, 0));
    EXPECT_TRUE(bar.SetText(wide, 1, SBT_NOBORDERS));
    EXPECT_STREQ(bar.GetText(0), L"Ready");
    EXPECT_EQ(bar.GetText(1, &type), wide);
    EXPECT_EQ(type, SBT_NOBORDERS);
    EXPECT_EQ(bar.GetTextLength(0, &type), 5);
    EXPECT_EQ(type, 0);
    EXPECT_EQ(bar.GetText(buffer, 0), 5);
    EXPECT_STREQ(buffer, L"Ready");
}

TEST_F(StatusBarCtrlTest, SimpleModeAndIconsAreKept)
{
    const HICON icon = ::LoadIconW(nullptr, IDI_WARNING);

    EXPECT_FALSE(bar.IsSimple());
    bar.SetSimple();
    EXPECT_TRUE(bar.IsSimple());
    bar.SetSimple(FALSE);
    EXPECT_FALSE(bar.IsSimple());
    EXPECT_TRUE(bar.SetIcon(0, icon));
    EXPECT_EQ(bar.GetIcon(0), icon);
}

TEST_F(StatusBarCtrlTest, TheMinimumHeightHolds)
{
    bar.SetMinHeight(60);
    bar.SendMessage(WM_SIZE);
    CRect rect;
    bar.GetWindowRect(&rect);

    EXPECT_GE(rect.Height(), 60);
}
