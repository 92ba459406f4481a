// The forms in which a list of file types is written.
#include <mfc/src/cdlg/core/filefilter.h>

#include <gtest/gtest.h>

using afxdetail::filterPairs;
using afxdetail::zeroTerminatedFilter;

namespace
{

std::vector<std::pair<std::wstring, std::wstring>> pairsOf(const wchar_t* filter)
{
    const std::wstring text = zeroTerminatedFilter(filter);
    std::vector<std::pair<std::wstring, std::wstring>> pairs;
    for (const auto& pair : filterPairs(text.c_str()))
        pairs.emplace_back(pair.description, pair.patterns);
    return pairs;
}

using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;

} // namespace

TEST(FileFilter, PairsOfTheUsualForm)
{
    EXPECT_EQ(pairsOf(L"Text (*.txt)|*.txt|Pictures|*.png;*.jpg|All|*.*||"),
              (Pairs{{L"Text (*.txt)", L"*.txt"}, {L"Pictures", L"*.png;*.jpg"}, {L"All", L"*.*"}}));
}

TEST(FileFilter, TheLastBarMayBeMissing)
{
    EXPECT_EQ(pairsOf(L"Text|*.txt|"), (Pairs{{L"Text", L"*.txt"}}));
    EXPECT_EQ(pairsOf(L"Text|*.txt"), (Pairs{{L"Text", L"*.txt"}}));
}

TEST(FileFilter, ADescriptionWithoutPatternsEndsTheList)
{
    EXPECT_EQ(pairsOf(L"Text|*.txt|Left over"), (Pairs{{L"Text", L"*.txt"}}));
    EXPECT_EQ(pairsOf(L"Left over||"), Pairs{});
}

TEST(FileFilter, NothingGivesNothing)
{
    EXPECT_EQ(pairsOf(L""), Pairs{});
    EXPECT_EQ(pairsOf(L"||"), Pairs{});
    EXPECT_TRUE(filterPairs(nullptr).empty());
}

TEST(FileFilter, EndsWithTwoZeros)
{
    const std::wstring text = zeroTerminatedFilter(L"A|*.a");
    EXPECT_EQ(text, std::wstring(L"A\0*.a\0\0", 7));
}
