// The hourglass.
#include "Windows.h"

#include <gtest/gtest.h>

namespace
{

HCURSOR standard(LPCTSTR name)
{
    return ::LoadCursorW(nullptr, name);
}

class WaitCursor : public ::testing::Test
{
protected:
    WaitCursor() { ::SetCursor(standard(IDC_CROSS)); }
    ~WaitCursor() override { ::SetCursor(standard(IDC_ARROW)); }
};

} // namespace

TEST_F(WaitCursor, LastsAsLongAsItsObject)
{
    {
        const CWaitCursor wait;
        EXPECT_EQ(::GetCursor(), standard(IDC_WAIT));
    }
    EXPECT_EQ(::GetCursor(), standard(IDC_CROSS)) << "the one of before comes back";
}

TEST_F(WaitCursor, OnesInsideOfOthersDoNotEndThem)
{
    const auto nested = [] { const CWaitCursor inner; };
    {
        const CWaitCursor outer;
        nested();
        EXPECT_EQ(::GetCursor(), standard(IDC_WAIT));
    }
    EXPECT_EQ(::GetCursor(), standard(IDC_CROSS));
}

TEST_F(WaitCursor, CanBeRestoredAfterSomethingElseHasChangedThePointer)
{
    CWaitCursor wait;
    ::SetCursor(standard(IDC_HAND));
    wait.Restore();
    EXPECT_EQ(::GetCursor(), standard(IDC_WAIT));
}

TEST_F(WaitCursor, OneEndTooManyChangesNothing)
{
    CCmdTarget& target = *AfxGetApp();
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), standard(IDC_CROSS));
    target.RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), standard(IDC_CROSS)) << "nothing is due";
    target.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), standard(IDC_WAIT));
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), standard(IDC_CROSS));
}
