// Errors of the program that assertions catch.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>

// The program is run anew up to the assertion: what ends is not this process.
class AssertDeathTest : public ::testing::Test
{
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(AssertDeathTest, CreatingAToolOverAnotherOne)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    EXPECT_DEATH(pen.CreatePen(PS_SOLID, 1, RGB(0, 0, 0)), "assertion failed");
}

TEST_F(AssertDeathTest, CreatingADeviceContextOverAnotherOne)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    EXPECT_DEATH(dc.CreateCompatibleDC(nullptr), "assertion failed");
}

TEST_F(AssertDeathTest, CreatingAnImageListOverAnotherOne)
{
    CImageList list;
    list.Create(4, 4, ILC_COLOR32, 1, 1);
    EXPECT_DEATH(list.Create(4, 4, ILC_COLOR32, 1, 1), "assertion failed");
}

TEST_F(AssertDeathTest, AskingAControlWithoutAWindow)
{
    CEdit edit;
    EXPECT_DEATH(edit.GetLineCount(), "assertion failed");
}

TEST_F(AssertDeathTest, ReleasingAnAttachedOutputContext)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    EXPECT_DEATH(dc.ReleaseOutputDC(), "assertion failed");
}
