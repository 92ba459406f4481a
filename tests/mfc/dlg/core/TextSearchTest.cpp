// Finding text from a selection on.
#include <mfc/src/frame/core/textsearch.h>

#include <gtest/gtest.h>

using afxdetail::findText;
using afxdetail::sameText;

namespace
{

constexpr std::wstring_view kText = L"ash, Ash, elm, ash";
constexpr std::size_t kNone = 999;

std::size_t next(std::wstring_view what, std::size_t start, std::size_t end, bool matchCase = true)
{
    return findText(kText, what, start, end, true, matchCase).value_or(kNone);
}

std::size_t previous(std::wstring_view what, std::size_t start, std::size_t end, bool matchCase = true)
{
    return findText(kText, what, start, end, false, matchCase).value_or(kNone);
}

} // namespace

TEST(TextSearch, GoesOnFromTheCaret)
{
    EXPECT_EQ(next(L"ash", 0, 0), 0u);
    EXPECT_EQ(next(L"ash", 1, 1), 15u);
    EXPECT_EQ(next(L"ash", 15, 15), 15u);
    EXPECT_EQ(next(L"ash", 16, 16), kNone);
}

TEST(TextSearch, LeavesOutThePlaceThatIsSelected)
{
    EXPECT_EQ(next(L"ash", 0, 3), 15u);
    EXPECT_EQ(next(L"ash", 15, 18), kNone);
    EXPECT_EQ(next(L"ash", 0, 4), 0u) << "more than the place is selected";
    EXPECT_EQ(next(L"ash", 0, 3, false), 5u);
}

TEST(TextSearch, GoesBackFromTheSelection)
{
    EXPECT_EQ(previous(L"ash", 18, 18), 15u);
    EXPECT_EQ(previous(L"ash", 15, 18), 0u);
    EXPECT_EQ(previous(L"ash", 15, 18, false), 5u);
    EXPECT_EQ(previous(L"ash", 0, 3), kNone);
    EXPECT_EQ(previous(L"ash", 2, 2), kNone);
    EXPECT_EQ(previous(L"ash", 3, 3), 0u);
}

TEST(TextSearch, FindsNothingForNothing)
{
    EXPECT_EQ(next(L"", 0, 0), kNone);
    EXPECT_EQ(previous(L"", 5, 5), kNone);
    EXPECT_EQ(findText(L"", L"a", 0, 0, true, true), std::nullopt);
    EXPECT_EQ(findText(L"as", L"ash", 0, 0, true, true), std::nullopt);
    EXPECT_EQ(findText(L"ash", L"ash", 50, 90, true, true), std::nullopt) << "a selection behind the end";
}

TEST(TextSearch, ComparesWithCaseOrWithout)
{
    EXPECT_TRUE(sameText(L"Ash", L"Ash", true));
    EXPECT_FALSE(sameText(L"Ash", L"ash", true));
    EXPECT_TRUE(sameText(L"Ash", L"aSH", false));
    EXPECT_FALSE(sameText(L"Ash", L"ashes", false));
}
