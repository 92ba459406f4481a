#include <ovoui/frame/core/LabelText.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

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
    EXPECT_EQ(nameFromLabel(L"&Taille\u00A0:"), L"Taille");
    EXPECT_EQ(nameFromLabel(L"Taille :"), L"Taille");
    EXPECT_EQ(nameFromLabel(L"\u5927\u304D\u3055\uFF1A"), L"\u5927\u304D\u3055");
    EXPECT_EQ(nameFromLabel(L"Size "), L"Size ");
    EXPECT_EQ(nameFromLabel(L" :"), L"");
    EXPECT_EQ(nameFromLabel(L"Ratio 1:2"), L"Ratio 1:2");
    EXPECT_EQ(nameFromLabel(L":"), L"");
    EXPECT_EQ(nameFromLabel(L""), L"");
}

TEST(LabelText, EveryTextIsShownWholeAsALabel)
{
    EXPECT_EQ(asLabel(L"salt & pepper"), L"salt && pepper");
    const wchar_t letters[] = {L'a', L'&', L':'};
    std::vector<std::wstring> texts{L""};
    for (std::size_t i = 0; i < texts.size() && texts[i].size() < 5; ++i)
        for (const wchar_t letter : letters)
            texts.push_back(texts[i] + letter);
    for (const std::wstring& text : texts) {
        EXPECT_EQ(withoutMnemonic(asLabel(text)), text);
        if (text.find(L'&') == text.npos) {
            EXPECT_EQ(asLabel(text), text);
        }
    }
}
