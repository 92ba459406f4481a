#include <ovoui/tree/core/TreePath.h>

#include <gtest/gtest.h>

#include <random>

using namespace ovoui::tree;

namespace
{

using Steps = std::vector<PathStep>;

} // namespace

TEST(TreePathFormat, ASlashStandsBeforeEachStep)
{
    EXPECT_EQ(formatPath({}), L"");
    EXPECT_EQ(formatPath({{L"a"}}), L"/a");
    EXPECT_EQ(formatPath({{L"a"}, {L"b c"}}), L"/a/b c");
    EXPECT_EQ(formatPath({{L""}}), L"/");
}

TEST(TreePathFormat, SlashesAndBackslashesAreMarked)
{
    EXPECT_EQ(formatPath({{L"a/b"}, {L"c\\d"}}), L"/a\\/b/c\\\\d");
}

TEST(TreePathFormat, TheNumberStandsBehindATextThatIsNotTheOnlyOne)
{
    EXPECT_EQ(formatPath({{L"a", 2}, {L"b", 1}}), L"/a\\#2/b");
}

TEST(TreePathParse, ReadsWhatIsWritten)
{
    EXPECT_EQ(parsePath(L""), Steps{});
    EXPECT_EQ(parsePath(L"/a\\/b/c\\\\d\\#3"), (Steps{{L"a/b"}, {L"c\\d", 3}}));
    EXPECT_EQ(parsePath(L"/"), (Steps{{L""}}));
}

TEST(TreePathParse, IsLenientWithWhatAPersonTypes)
{
    EXPECT_EQ(parsePath(L"a/b"), (Steps{{L"a"}, {L"b"}}));
    EXPECT_EQ(parsePath(L"/a\\x"), (Steps{{L"ax"}}));
}

TEST(TreePathParse, ABackslashAtTheEndStandsForItself)
{
    EXPECT_EQ(parsePath(L"/a\\"), (Steps{{L"a\\"}}));
    EXPECT_EQ(parsePath(L"/a\\/b"), (Steps{{L"a/b"}}));
    EXPECT_EQ(formatPath({{L"a\\"}}), L"/a\\\\");
    EXPECT_EQ(parsePath(L"/a\\\\"), (Steps{{L"a\\"}}));
    EXPECT_EQ(parsePath(L"\\"), (Steps{{L"\\"}}));
}

TEST(TreePathParse, WhatIsNoNumberBehindItsSignIsText)
{
    EXPECT_EQ(parsePath(L"/a\\#x"), (Steps{{L"a#x"}}));
    EXPECT_EQ(parsePath(L"/a\\#2x"), (Steps{{L"a#2x"}}));
    EXPECT_EQ(parsePath(L"/a\\#"), (Steps{{L"a#"}}));
    EXPECT_EQ(parsePath(L"/a\\#0"), (Steps{{L"a#0"}}));
    EXPECT_EQ(parsePath(L"/a\\#99999999999"), (Steps{{L"a#99999999999"}}));
}

TEST(TreePath, AnyTextsRoundTrip)
{
    std::mt19937 random(2026);
    const std::wstring letters = L"ab/\\#12 ";
    for (int i = 0; i < 2000; ++i) {
        Steps steps;
        for (unsigned n = random() % 4; n > 0; --n) {
            PathStep step;
            for (unsigned length = random() % 6; length > 0; --length)
                step.text += letters[random() % letters.size()];
            step.ordinal = random() % 3 ? 1 : 2 + random() % 40;
            steps.push_back(step);
        }
        ASSERT_EQ(parsePath(formatPath(steps)), steps) << "in round " << i;
    }
}
