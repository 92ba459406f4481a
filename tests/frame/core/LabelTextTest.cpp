#include <ovoui/frame/core/LabelText.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

TEST(LabelText, TheMarkOfALetterGoes)
{
    EXPECT_EQ(withoutMnemonic(L"&Size:"), L"Size:");
    EXPECT_EQ(withoutMnemonic(L"Font &size"), L"Font size");
    EXPECT_EQ(withoutMnemonic(L"Size"), L"Size");
    EXPECT_EQ(withoutMnemonic(L""), L"");
}

TEST(LabelText, TwoMarksAreOneAmpersand)
{
    EXPECT_EQ(withoutMnemonic(L"Black && &white"), L"Black & white");
    EXPECT_EQ(withoutMnemonic(L"&&"), L"&");
    EXPECT_EQ(withoutMnemonic(L"&&&x"), L"&x");
    EXPECT_EQ(withoutMnemonic(L"&"), L"") << "nothing follows";
    EXPECT_EQ(withoutMnemonic(L"R&D&"), L"RD");
}

TEST(LabelText, ANameHasNoColonAtItsEnd)
{
    EXPECT_EQ(nameFromLabel(L"&Size:"), L"Size");
    EXPECT_EQ(nameFromLabel(L"Ratio 1:2"), L"Ratio 1:2");
    EXPECT_EQ(nameFromLabel(L":"), L"");
    EXPECT_EQ(nameFromLabel(L""), L"");
}
