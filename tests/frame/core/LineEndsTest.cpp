#include <ovoui/frame/core/LineEnds.h>

#include <gtest/gtest.h>

using ovoui::frame::withWindowsLineEnds;

TEST(LineEnds, OfEveryKindBecomeThoseOfWindows)
{
    EXPECT_EQ(withWindowsLineEnds(L""), L"");
    EXPECT_EQ(withWindowsLineEnds(L"one"), L"one");
    for (const std::wstring end : {L"\n", L"\r\n", L"\r"}) {
        EXPECT_EQ(withWindowsLineEnds(L"one" + end + L"two"), L"one\r\ntwo");
        EXPECT_EQ(withWindowsLineEnds(L"one" + end + end + L"two"), L"one\r\n\r\ntwo");
    }
}

TEST(LineEnds, StayWhenTheyAreThoseOfWindowsAlready)
{
    const std::wstring once = withWindowsLineEnds(L"a\nb\r\nc\rd\n");
    EXPECT_EQ(withWindowsLineEnds(once), once);
}
