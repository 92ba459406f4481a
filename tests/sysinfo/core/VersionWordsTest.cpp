#include "../FileKinds.h"

#include <ovoui/sysinfo/core/VersionWords.h>

#include <gtest/gtest.h>

using namespace ovoui::sysinfo;

TEST(VersionWords, AVersionIsFourNumbers)
{
    EXPECT_EQ(versionText(0x000B0002, 0x000304D2), L"11.2.3.1234");
    EXPECT_EQ(versionText(0, 0), L"0.0.0.0");
    EXPECT_EQ(versionText(0xFFFFFFFF, 0xFFFFFFFF), L"65535.65535.65535.65535");
}

TEST(VersionWords, EveryFlagHasItsWord)
{
    const struct
    {
        std::uint32_t flag;
        const wchar_t* word;
    } rows[] = {{0x01, L"debug"},    {0x02, L"pre-release"},   {0x04, L"patched"}, {0x08, L"private build"},
                {0x10, L"inferred"}, {0x20, L"special build"}, {0x40, L"40"},      {0x80000000, L"80000000"}};
    for (const auto& [flag, word] : rows)
        EXPECT_EQ(flagWords(flag, L", "), word);
    EXPECT_EQ(flagWords(0, L", "), L"");
}

TEST(VersionWords, SeveralFlagsComeInTheirOrder)
{
    EXPECT_EQ(flagWords(0x3F, L"; "), L"debug; inferred; patched; pre-release; private build; special build");
    EXPECT_EQ(flagWords(0xF0C1, L";"), L"debug;f0c0");
    // All combinations: the words of each bit, in order.
    const std::uint32_t order[] = {0x01, 0x10, 0x04, 0x02, 0x08, 0x20};
    for (std::uint32_t flags = 0; flags < 0x80; ++flags) {
        std::wstring expected;
        for (const std::uint32_t bit : order)
            if (flags & bit)
                expected += (expected.empty() ? L"" : L"0123456789") + flagWords(bit, L"");
        if (flags & 0x40)
            expected += expected.empty() ? L"40" : L"012345678940";
        EXPECT_EQ(flagWords(flags, L"0123456789"), expected) << flags;
    }
}

TEST(VersionWords, AnySeparatorStandsBetweenTheWords)
{
    for (std::size_t length = 1; length <= 10; ++length) {
        const std::wstring separator = std::wstring(L"; 0x\t,|%\u00B7.").substr(0, length);
        ASSERT_EQ(separator.size(), length);
        EXPECT_EQ(flagWords(0x41 | 0x10, separator), L"debug" + separator + L"inferred" + separator + L"40");
        EXPECT_EQ(systemWords(0x00040004, separator), L"NT/2000" + separator + L"win32");
    }
}

TEST(VersionWords, WhateverHasNoNameIsANumber)
{
    const auto number = [](std::uint32_t value) {
        std::wstring text;
        for (; value != 0 || text.empty(); value /= 16)
            text.insert(text.begin(), L"0123456789abcdef"[value % 16]);
        return L"0x" + text;
    };
    for (std::uint32_t value = 5; value <= 0xFFFF; ++value) {
        ASSERT_EQ(systemWords(value << 16, L","), L"OS:" + number(value));
        ASSERT_EQ(systemWords(value, L","), L"API:" + number(value));
        ASSERT_EQ(typeWords(4, value), number(value) + L" font");
        ASSERT_EQ(typeWords(3, value + 6), number(value + 6) + L" device driver");
        ASSERT_EQ(typeWords(value + 3, value), number(value + 3) + L"/" + number(value));
    }
}

TEST(VersionWords, EverySystemHasItsWord)
{
    const struct
    {
        std::uint32_t system;
        const wchar_t* words;
    } rows[] = {{0, L""},
                {0x00010000, L"MS-DOS"},
                {0x00020000, L"OS/2-16"},
                {0x00030000, L"OS/2-32"},
                {0x00040000, L"NT/2000"},
                {0x00050000, L"OS:0x5"},
                {0xFFFF0000, L"OS:0xffff"},
                {1, L"win16"},
                {2, L"PM16"},
                {3, L"PM32"},
                {4, L"win32"},
                {5, L"API:0x5"},
                {0xABCD, L"API:0xabcd"},
                {0x00040004, L"NT/2000,win32"},
                {0x000A000B, L"OS:0xa,API:0xb"}};
    for (const auto& [system, words] : rows)
        EXPECT_EQ(systemWords(system, L","), words);
}

TEST(VersionWords, EveryTypeHasItsWord)
{
    for (const auto& [type, subtype, words] : kFileKinds)
        EXPECT_EQ(typeWords(type, subtype), words) << type << " " << subtype;
    EXPECT_EQ(typeWords(8, 0x1234), L"0x8/0x1234");
    EXPECT_EQ(typeWords(0xFFFFFFFF, 0xFFFFFFFF), L"0xffffffff/0xffffffff");
}
