// What holds for the texts of all languages, as they lie in the shipped modules.
#include "TextChecks.h"

#include <ovoui/frame/Language.h>
#include <ovouires/resource.h>

#include <ovomsg/ovomsg.h>

#include <gtest/gtest.h>

namespace
{

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_NEUTRAL);
const std::vector<LANGID> kLanguages{0x0007, 0x0009, 0x000A, 0x000C, 0x0011, 0x0015,
                                     0x0407, 0x0409, 0x040C, 0x0411, 0x0415, 0x0C0A};

HMODULE strings()
{
    textLanguages(); // a call that makes this program need the library
    return ::GetModuleHandleW(L"ovouires.dll");
}

HMODULE messages()
{
    ovoMsg(0);
    return ::GetModuleHandleW(L"ovomsg11.dll");
}

HMODULE framework()
{
    return ::GetModuleHandleW(L"ovomfc.dll");
}

/// The test of one language.
class Language : public testing::TestWithParam<LANGID>
{
protected:
    /// Runs a check of this language beside English over all modules with texts.
    void compare(Problems (*check)(const Texts&, const Texts&))
    {
        for (const HMODULE module : {strings(), messages(), framework()}) {
            const Texts english = textsOf(module, kEnglish);
            ASSERT_GT(english.size(), 10u);
            EXPECT_EQ(linesOf(check(english, textsOf(module, GetParam()))), "");
        }
    }

    std::wstring string(UINT id) { return stringOf(strings(), id, GetParam()); }

    TextGroup group(const wchar_t* place, const std::vector<UINT>& ids)
    {
        TextGroup group{place, {}};
        for (const UINT id : ids)
            group.texts.push_back(string(id));
        return group;
    }

    TextGroup dialog(UINT id)
    {
        for (TextGroup& group : groupsOf(strings(), GetParam()))
            if (group.place == L"dialog " + std::to_wstring(id))
                return group;
        return {};
    }
};

} // namespace

TEST(Languages, AreTheSameForAllThatIsTranslated)
{
    for (const LPCWSTR type : {RT_DIALOG, RT_MENU, RT_STRING, RT_ACCELERATOR})
        EXPECT_EQ(languagesOf(strings(), type), kLanguages);
    EXPECT_EQ(languagesOf(messages(), RT_MESSAGETABLE), kLanguages);
    EXPECT_EQ(languagesOf(framework(), RT_STRING), kLanguages);
}

TEST(Languages, AreNotNeededForPictures)
{
    for (const LPCWSTR type : {RT_BITMAP, RT_GROUP_CURSOR})
        EXPECT_EQ(languagesOf(strings(), type), std::vector<LANGID>());
}

TEST_P(Language, HasTheIdsOfEnglish)
{
    compare(idProblems);
}

TEST_P(Language, HasTheSpecifiersOfEnglish)
{
    compare(specifierProblems);
}

TEST_P(Language, HasTheLinesOfEnglish)
{
    compare(lineProblems);
}

TEST_P(Language, HasALetterWhereEnglishHasOne)
{
    compare(missingMnemonics);
}

TEST_P(Language, HasNoBlankBesideAMarkAtWhichALineCouldBeBroken)
{
    for (const HMODULE module : {strings(), messages(), framework()})
        EXPECT_EQ(linesOf(blankProblems(textsOf(module, GetParam()))), "");
}

TEST_P(Language, HasNoStringThatIsCutWhenItIsLoaded)
{
    for (const HMODULE module : {strings(), framework()})
        EXPECT_EQ(linesOf(lengthProblems(textsOf(module, GetParam()))), "");
}

TEST_P(Language, HasDifferentLettersInADialogOrMenu)
{
    const std::vector<TextGroup> groups = groupsOf(strings(), GetParam());
    ASSERT_GT(groups.size(), 8u);
    for (const TextGroup& group : groups)
        EXPECT_EQ(linesOf(mnemonicProblems(group)), "");
    EXPECT_EQ(linesOf(mnemonicProblems(
                  group(L"the tree's menu", {IDS_MENU_CUT, IDS_MENU_COPY, IDS_MENU_PASTE, IDS_MENU_DELETE,
                                             IDS_MENU_RENAME, IDS_MENU_SELECT_ALL}))),
              "");
}

TEST_P(Language, HasDifferentLettersForTheCaptionsOfEachColourModel)
{
    const std::vector<std::vector<UINT>> models{{IDS_COLOUR_RED, IDS_COLOUR_GREEN, IDS_COLOUR_BLUE},
                                                {IDS_COLOUR_HUE, IDS_COLOUR_LIGHTNESS, IDS_COLOUR_SATURATION},
                                                {IDS_COLOUR_HUE, IDS_COLOUR_SATURATION, IDS_COLOUR_VALUE}};
    for (const UINT id : {IDD_COLOUR_PICKER, IDD_COLOUR_PALETTE})
        for (const std::vector<UINT>& model : models) {
            TextGroup together = dialog(id);
            ASSERT_GT(together.texts.size(), 5u);
            for (const UINT caption : model)
                together.texts.push_back(string(caption));
            EXPECT_EQ(linesOf(mnemonicProblems(together)), "");
        }
}

TEST_P(Language, HasDifferentLettersForTheButtonsOfEachMessageBox)
{
    const std::vector<std::vector<UINT>> sets{
        {IDS_BUTTON_ABORT, IDS_BUTTON_RETRY, IDS_BUTTON_IGNORE},
        {IDS_BUTTON_RETRY, IDS_BUTTON_CANCEL},
        {IDS_BUTTON_OK, IDS_BUTTON_CANCEL},
        {IDS_BUTTON_YES, IDS_BUTTON_YES_TO_ALL, IDS_BUTTON_NO, IDS_BUTTON_NO_TO_ALL, IDS_BUTTON_CANCEL}};
    for (const std::vector<UINT>& set : sets)
        for (const UINT details : {IDS_MESSAGE_SHOW_DETAILS, IDS_MESSAGE_HIDE_DETAILS}) {
            std::vector<UINT> together = set;
            together.insert(together.end(), {IDS_BUTTON_HELP, IDS_MESSAGE_NOT_AGAIN, details});
            EXPECT_EQ(linesOf(mnemonicProblems(group(L"the message box", together))), "");
        }
}

INSTANTIATE_TEST_SUITE_P(Each, Language, testing::ValuesIn(kLanguages));
