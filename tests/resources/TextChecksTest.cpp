// The checks see the mistakes that they are there for.
#include "DialogFit.h"

#include <ovoui/frame/Language.h>
#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <commctrl.h>

namespace
{

using Words = std::vector<std::wstring>;

const Texts kEnglish{
    {L"string 1", L"%d of %s"}, {L"string 2", L"&Open"}, {L"accelerators 1, the 1th", L"key 67"}};

Texts changed(const wchar_t* place, const wchar_t* text)
{
    Texts texts = kEnglish;
    texts[place] = text;
    return texts;
}

} // namespace

TEST(TextChecks, FindNothingWrongWithEqualTexts)
{
    EXPECT_TRUE(idProblems(kEnglish, kEnglish).empty());
    EXPECT_TRUE(specifierProblems(kEnglish, kEnglish).empty());
    EXPECT_TRUE(lineProblems(kEnglish, kEnglish).empty());
    EXPECT_TRUE(missingMnemonics(kEnglish, kEnglish).empty());
    EXPECT_TRUE(blankProblems(kEnglish).empty());
    EXPECT_TRUE(lengthProblems(kEnglish).empty());
}

TEST(TextChecks, FindWhatOneLanguageDoesNotHave)
{
    Texts other = kEnglish;
    other.erase(L"string 1");
    EXPECT_EQ(idProblems(kEnglish, other).size(), 1u);
    EXPECT_EQ(idProblems(other, kEnglish).size(), 1u);
    EXPECT_EQ(idProblems(kEnglish, changed(L"string 2", L"")).size(), 1u);
    EXPECT_EQ(idProblems(kEnglish, changed(L"accelerators 1, the 1th", L"key 68")).size(), 1u);
}

TEST(TextChecks, FindSpecifiersThatDiffer)
{
    for (const wchar_t* text : {L"%s von %d", L"%d von", L"%d von %s %s", L"%u von %s", L"%d von %%s"})
        EXPECT_EQ(specifierProblems(kEnglish, changed(L"string 1", text)).size(), 1u) << text;
    EXPECT_TRUE(specifierProblems(kEnglish, changed(L"string 1", L"100%% von %d, %s")).empty());
}

TEST(TextChecks, FindALineThatIsMissing)
{
    const Texts prompt = changed(L"string 2", L"Opens a file\nOpen");
    EXPECT_EQ(lineProblems(prompt, changed(L"string 2", L"Öffnet eine Datei")).size(), 1u);
    EXPECT_TRUE(lineProblems(prompt, changed(L"string 2", L"Öffnet eine Datei\nÖffnen")).empty());
}

TEST(TextChecks, KnowTheSpecifiersOfPrintfAndTheInserts)
{
    EXPECT_EQ(specifiersOf(L"%Iu, %.1f (%s) and %g"), (Words{L"%Iu", L"%.1f", L"%s", L"%g"}));
    EXPECT_EQ(specifiersOf(L"%1 and %2!s! and %-10.3ls%%"), (Words{L"%1", L"%2!s!", L"%-10.3ls"}));
    EXPECT_EQ(specifiersOf(L"100 %"), Words());
}

TEST(TextChecks, FindALetterThatTwoTextsWant)
{
    EXPECT_EQ(mnemonicProblems({L"menu", {L"&Copy", L"Clo&se", L"Can&cel"}}).size(), 1u);
    EXPECT_EQ(mnemonicProblems({L"menu", {L"コピー(&C)", L"閉じる(&C)"}}).size(), 1u);
    EXPECT_TRUE(mnemonicProblems({L"menu", {L"&Copy", L"Clo&se", L"Cut && carry", L"Cancel"}}).empty());
    EXPECT_EQ(missingMnemonics(kEnglish, changed(L"string 2", L"Öffnen")).size(), 1u);
    EXPECT_EQ(missingMnemonics(kEnglish, changed(L"string 1", L"%d &von %s")).size(), 1u);
}

TEST(TextChecks, FindAnOrdinaryBlankBesideAMark)
{
    for (const wchar_t* text :
         {L"Nom :", L"Ouvrir ?", L"«\u00a0%s »", L"« %s\u00a0»", L"Attention !", L"un ; deux"})
        EXPECT_EQ(blankProblems(changed(L"string 2", text)).size(), 1u) << text;
    EXPECT_TRUE(blankProblems(changed(L"string 2", L"«\u00a0%s\u00a0»\u00a0: https:, ici")).empty());
}

TEST(TextChecks, FindStringsThatAreTooLong)
{
    EXPECT_EQ(lengthProblems(changed(L"string 2", std::wstring(256, L'x').c_str())).size(), 1u);
    EXPECT_TRUE(lengthProblems(changed(L"string 2", std::wstring(255, L'x').c_str())).empty());
}

TEST(TextChecks, FindTextsThatDoNotFit)
{
    textLanguages();
    const HiddenDialog dialog(::GetModuleHandleW(L"ovouires.dll"), IDD_MODULE_LIST, LANG_ENGLISH);
    ASSERT_NE(dialog.handle(), nullptr);
    ASSERT_TRUE(fitProblems(dialog.handle()).empty());

    ::SetDlgItemTextW(dialog.handle(), IDC_MODULES_COPY, L"&Copy in one of several formats");
    const Problems problems = fitProblems(dialog.handle());
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_NE(problems[0].find(L"&Copy in one of several formats"), std::wstring::npos);
    ::SetWindowTextW(dialog.handle(), std::wstring(200, L'x').c_str());
    EXPECT_EQ(fitProblems(dialog.handle()).size(), 2u);

    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 20;
    column.pszText = const_cast<wchar_t*>(L"Description");
    const HWND list = ::GetDlgItem(dialog.handle(), IDC_MODULES_LIST);
    ::SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    EXPECT_EQ(headingProblems(list).size(), 1u);
}
