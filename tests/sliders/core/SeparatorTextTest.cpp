#include <ovoui/sliders/core/SeparatorText.h>

#include <gtest/gtest.h>

#include <random>

using namespace ovoui::sliders;

namespace
{

constexpr Convention kGerman{L";", L','};
constexpr Convention kLong{L" -- ", L'\u066B'};

} // namespace

TEST(SeparatorText, TheMachinesConventionChangesNothing)
{
    const Convention machine{L",", L'.'};
    for (const wchar_t* text : {L"", L"1.5,2.5", L"'a.b", L"\"x,y\", .5"}) {
        EXPECT_EQ(toMachine(text, machine), text);
        EXPECT_EQ(fromMachine(text, machine), text);
    }
}

TEST(SeparatorText, DecimalSignsAndSeparatorsAreExchanged)
{
    EXPECT_EQ(toMachine(L"1,5;2,5", kGerman), L"1.5,2.5");
    EXPECT_EQ(fromMachine(L"1.5,2.5", kGerman), L"1,5;2,5");
    EXPECT_EQ(toMachine(L"1\u066B5 -- 2", kLong), L"1.5,2");
    EXPECT_EQ(fromMachine(L"1.5,2", kLong), L"1\u066B5 -- 2");
}

TEST(SeparatorText, PartsOfALongSeparatorAreText)
{
    EXPECT_EQ(toMachine(L"1 - 2", kLong), L"1 - 2");
    EXPECT_EQ(toMachine(L"1 -- -- 2", kLong), L"1,-- 2") << "none overlaps another";
    EXPECT_EQ(toMachine(L" --", kLong), L" --") << "the text ends within it";
}

TEST(SeparatorText, QuotedTextKeepsItsSigns)
{
    EXPECT_EQ(toMachine(L"'1,5;2';1,5", kGerman), L"'1,5;2',1.5");
    EXPECT_EQ(toMachine(L"\"1,5\"1,5", kGerman), L"\"1,5\"1.5");
    EXPECT_EQ(toMachine(L"\"it's 1,5\"1,5", kGerman), L"\"it's 1,5\"1.5") << "a single quote in double ones";
    EXPECT_EQ(toMachine(L"'a\"1,5'1,5", kGerman), L"'a\"1,5'1.5") << "and the other way round";
    EXPECT_EQ(toMachine(L"1,5'2,5", kGerman), L"1.5'2,5") << "not closed: to the end";
    EXPECT_EQ(fromMachine(L"'1.5,2',1.5", kGerman), L"'1.5,2';1,5");
    EXPECT_EQ(fromMachine(L"\"1.5'\"1.5", kGerman), L"\"1.5'\"1,5");
}

TEST(SeparatorText, TheDecimalSignComesFirst)
{
    const Convention same{L",", L','};
    EXPECT_EQ(toMachine(L"1,5", same), L"1.5");
    EXPECT_EQ(fromMachine(L"1.5,2", same), L"1,5,2");
    const Convention begins{L",,", L','};
    EXPECT_EQ(toMachine(L"1,,5", begins), L"1..5");
}

TEST(SeparatorText, WithoutASeparatorCommasVanish)
{
    const Convention none{L"", L','};
    EXPECT_EQ(toMachine(L"1,5;2", none), L"1.5;2");
    EXPECT_EQ(fromMachine(L"1.5,2", none), L"1,52");
}

TEST(SeparatorText, AQuoteCanBeASign)
{
    EXPECT_EQ(toMachine(L"1'5'2", Convention{L"'", L';'}), L"1,5,2") << "what is exchanged opens no quote";
    EXPECT_EQ(toMachine(L"1'5", Convention{L";", L'\''}), L"1.5");
}

TEST(SeparatorText, ThereAndBackGivesTheSameText)
{
    // Without the other convention's signs, whatever the quotes.
    std::mt19937 random(7);
    const std::wstring machineSigns = L"019 .,'\"-x";
    const std::wstring userSigns = L"019 ,;'\"-x";
    for (int round = 0; round < 20000; ++round) {
        std::wstring machine;
        std::wstring user;
        for (unsigned length = random() % 12; length > 0; --length) {
            machine += machineSigns[random() % machineSigns.size()];
            user += userSigns[random() % userSigns.size()];
        }
        ASSERT_EQ(toMachine(fromMachine(machine, kGerman), kGerman), machine);
        ASSERT_EQ(fromMachine(toMachine(user, kGerman), kGerman), user);
    }
}
