#include <ovoui/frame/core/MessageBoxStyle.h>

#include <gtest/gtest.h>

#include <cwctype>
#include <set>
#include <string>

using namespace ovoui::frame;

namespace
{

constexpr unsigned kHelp = 0x4000;

std::vector<int> ids(unsigned type)
{
    std::vector<int> result;
    for (const MessageBoxButton& button : messageBoxButtons(type).buttons)
        result.push_back(button.id);
    return result;
}

int defaultId(unsigned type)
{
    const MessageBoxButtons buttons = messageBoxButtons(type);
    return buttons.buttons.at(buttons.defaultPosition).id;
}

} // namespace

TEST(MessageBoxStyle, EverySetHasItsButtonsAndIcon)
{
    struct Row
    {
        unsigned type;
        std::vector<int> ids;
        const wchar_t* icon;
    };
    const Row rows[] = {
        {0, {1}, L"EXCLAIM"},
        {1, {1, 2}, L"EXCLAIM"},
        {2, {3, 4, 5}, L"STOP"},
        {3, {6, 7, 2}, L"QUERY"},
        {4, {6, 7}, L"QUERY"},
        {5, {4, 2}, L"STOP"},
        {0x01000001, {6, 1298, 7, 2}, L"QUERY"},
        {0x01000002, {6, 7, 1299, 2}, L"QUERY"},
        {0x01000003, {6, 1298, 7, 1299, 2}, L"QUERY"},
        {0x01000004, {6, 1298, 7, 1299}, L"QUERY"},
        {0x01000005, {6, 7, 1299}, L"QUERY"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ids(row.type), row.ids) << std::hex << row.type;
        EXPECT_STREQ(messageBoxIcon(row.type), row.icon) << std::hex << row.type;
    }
}

TEST(MessageBoxStyle, EveryOtherSetIsOkWithTheExclamationMark)
{
    for (unsigned nibble = 6; nibble <= 15; ++nibble) {
        for (const unsigned extension : {0u, OVOMB_EXTBUTTONS}) {
            EXPECT_EQ(ids(extension | nibble), std::vector<int>{1});
            EXPECT_STREQ(messageBoxIcon(extension | nibble), L"EXCLAIM");
        }
    }
    EXPECT_EQ(ids(OVOMB_EXTBUTTONS), std::vector<int>{1});
}

TEST(MessageBoxStyle, HelpIsTheRightmostButtonOfEverySet)
{
    for (const unsigned extension : {0u, OVOMB_EXTBUTTONS}) {
        for (unsigned nibble = 0; nibble <= 15; ++nibble) {
            std::vector<int> expected = ids(extension | nibble);
            expected.push_back(9);
            EXPECT_EQ(ids(extension | nibble | kHelp), expected);
        }
    }
}

TEST(MessageBoxStyle, StandardIcons)
{
    EXPECT_STREQ(messageBoxIcon(0x10), L"STOP");
    EXPECT_STREQ(messageBoxIcon(0x20), L"QUERY");
    EXPECT_STREQ(messageBoxIcon(0x30), L"EXCLAIM");
    EXPECT_STREQ(messageBoxIcon(0x40), L"INFO");
    EXPECT_STREQ(messageBoxIcon(0x50 | 4), L"QUERY") << "an unknown icon takes that of the button set";
    EXPECT_STREQ(messageBoxIcon(0xF0 | 5), L"STOP");
}

TEST(MessageBoxStyle, ExtendedIcons)
{
    const wchar_t* const names[] = {L"COMPUTER",  L"DISCFIXED",    L"DISCNETWORK", L"DISCREMOVABLE",
                                    L"DISCCD",    L"FOLDERCLOSED", L"FOLDEROPEN",  L"INET",
                                    L"OVOLOGO",   L"KEY",          L"MOUSE",       L"NETWORK",
                                    L"NOTEEMPTY", L"NOTEFULL"};
    for (unsigned k = 1; k <= 14; ++k)
        EXPECT_STREQ(messageBoxIcon(OVOMB_EXTICONS | k << 4), names[k - 1]);
}

TEST(MessageBoxStyle, ExtendedIconsFallBackToTheStandardRules)
{
    EXPECT_STREQ(messageBoxIcon(OVOMB_EXTICONS), L"EXCLAIM");
    EXPECT_STREQ(messageBoxIcon(OVOMB_EXTICONS | 2), L"STOP");
    EXPECT_STREQ(messageBoxIcon(OVOMB_EXTICONS | 0xF0 | 4), L"QUERY");
}

TEST(MessageBoxStyle, TheExtendedIconBitDoesNotChangeTheButtons)
{
    EXPECT_EQ(ids(OVOMB_EXTICONS | 0x30 | 4), (std::vector<int>{6, 7}));
    EXPECT_EQ(ids(OVOMB_EXTICONS | OVOMB_EXTBUTTONS | 0x30 | 5), (std::vector<int>{6, 7, 1299}));
}

TEST(MessageBoxStyle, TheDefaultIsTheButtonAskedFor)
{
    EXPECT_EQ(defaultId(3), 6);
    EXPECT_EQ(defaultId(3 | 0x100), 7);
    EXPECT_EQ(defaultId(3 | 0x200), 2);
    EXPECT_EQ(defaultId(OVOMB_EXTBUTTONS | 1 | 0x300), 2);
}

TEST(MessageBoxStyle, AMissingDefaultIsTheFirstButton)
{
    EXPECT_EQ(defaultId(0 | 0x200), 1);
    EXPECT_EQ(defaultId(4 | 0x300), 6);
    EXPECT_EQ(defaultId(3 | 0x900), 6) << "not a default-button value";
}

TEST(MessageBoxStyle, HelpCanBeTheDefault)
{
    EXPECT_EQ(defaultId(4 | kHelp | 0x200), 9);
    EXPECT_EQ(defaultId(0 | kHelp | 0x100), 9);
    EXPECT_EQ(defaultId(0 | kHelp | 0x200), 1);
}

TEST(MessageBoxStyle, FifthAndSixthDefaultNeedTheExtensionBit)
{
    const unsigned five = OVOMB_EXTBUTTONS | 3;
    EXPECT_EQ(defaultId(five | 0x400), 6);
    EXPECT_EQ(defaultId(five | OVOMB_EXTDEFBUTTON | 0x400), 2);
    EXPECT_EQ(defaultId(five | OVOMB_EXTDEFBUTTON | 0x500), 6) << "there are only five";
    EXPECT_EQ(defaultId(five | kHelp | OVOMB_EXTDEFBUTTON | 0x500), 9);
    EXPECT_EQ(defaultId(five | OVOMB_EXTDEFBUTTON | 0x200), 7) << "the lower values still hold";
}

TEST(MessageBoxStyle, OtherFlagsAreIgnored)
{
    constexpr unsigned kKnown = 0x00000FFF | kHelp | OVOMB_EXTBUTTONS | OVOMB_EXTICONS | OVOMB_EXTDEFBUTTON;
    std::vector<unsigned> others{~kKnown};
    for (unsigned bit = 1; bit != 0; bit <<= 1)
        if (!(bit & kKnown))
            others.push_back(bit);
    for (const unsigned other : others)
        for (const unsigned type :
             {0u, 4u | 0x100, OVOMB_EXTICONS | 0x30 | 2, OVOMB_EXTBUTTONS | 3 | kHelp | 0x200,
              OVOMB_EXTBUTTONS | 3 | OVOMB_EXTDEFBUTTON | 0x400}) {
            SCOPED_TRACE(::testing::Message() << std::hex << type << " with " << other);
            EXPECT_EQ(ids(type | other), ids(type));
            EXPECT_EQ(defaultId(type | other), defaultId(type));
            EXPECT_STREQ(messageBoxIcon(type | other), messageBoxIcon(type));
        }
}

TEST(MessageBoxStyle, NoTwoButtonsShareAnIdOrALabel)
{
    std::set<int> ids;
    std::set<unsigned> labels;
    for (const MessageBoxButton& button : allMessageBoxButtons()) {
        EXPECT_TRUE(ids.insert(button.id).second);
        EXPECT_TRUE(labels.insert(button.label).second);
        EXPECT_FALSE(std::wstring(button.fallback).empty());
    }
    EXPECT_EQ(ids.size(), 10u);
    EXPECT_EQ(*labels.begin(), 20100u);
    EXPECT_EQ(*labels.rbegin(), 20109u);
}

TEST(MessageBoxStyle, NoTwoButtonsOfABoxHaveTheSameMnemonic)
{
    for (const unsigned extension : {0u, OVOMB_EXTBUTTONS})
        for (unsigned set = 0; set <= 15; ++set) {
            std::set<wchar_t> letters;
            for (const MessageBoxButton& button : messageBoxButtons(extension | set | kHelp).buttons) {
                const std::wstring label = button.fallback;
                const std::size_t mark = label.find(L'&');
                if (mark == label.npos)
                    continue;
                const auto letter = static_cast<wchar_t>(std::towlower(label[mark + 1]));
                EXPECT_TRUE(letters.insert(letter).second) << std::hex << (extension | set);
            }
        }
}

TEST(MessageBoxStyle, AButtonIsCalledByItsTextOrItsStringOrTheFallback)
{
    for (const wchar_t* text : {L"", L"Own"})
        for (const wchar_t* loaded : {L"", L"String"}) {
            const MessageBoxButton button{1, 20101, L"Fallback", text};
            EXPECT_EQ(labelOf(button, loaded), *text ? L"Own" : *loaded ? L"String" : L"Fallback");
        }
}
