// CString: comparing, finding and cutting out.
#include "Texts.h"

#include <vector>

TEST(StringComparing, IsByCodeOrWithoutCase)
{
    EXPECT_EQ(CString(L"abc").Compare(L"abc"), 0);
    EXPECT_LT(CString(L"abc").Compare(L"abd"), 0);
    EXPECT_GT(CString(L"abc").Compare(L"Abc"), 0) << "small letters come later";
    EXPECT_EQ(CString(L"aBc").CompareNoCase(L"AbC"), 0);
    EXPECT_NE(CString(L"aBc").CompareNoCase(L"AbCd"), 0);
    EXPECT_EQ(CString().Compare(nullptr), 0);
    EXPECT_EQ(CString().CompareNoCase(nullptr), 0);
}

TEST(StringComparing, CollatesAsTheLocaleOrders)
{
    // A dictionary puts the capital among the small letters; by code it comes before all of them.
    EXPECT_LT(CString(L"apple").Collate(L"Banana"), 0);
    EXPECT_GT(CString(L"apple").Compare(L"Banana"), 0);
    EXPECT_EQ(CString(L"apple").CollateNoCase(L"APPLE"), 0);
    EXPECT_NE(CString(L"apple").Collate(L"APPLE"), 0);
}

TEST(StringComparing, OperatorsTakeTextsOnEitherSide)
{
    const CString a = L"a";
    const CString b = L"b";
    EXPECT_TRUE(a == a && a != b && a < b && b > a && a <= a && a >= a && a <= b && b >= a);
    EXPECT_TRUE(a == L"a" && a != L"b" && a < L"b" && b > L"a" && a <= L"a" && b >= L"b");
    EXPECT_TRUE(L"a" == a && L"b" != a && L"b" > a && L"a" < b && L"a" <= a && L"b" >= b);
    EXPECT_FALSE(a == b || a != a || b < a || a > b || b <= a || a >= b);
    EXPECT_TRUE(a == L'a' && L'a' == a && a != L'b' && L'b' != a);
    EXPECT_FALSE(CString(L"aa") == L'a');
    EXPECT_FALSE(CString() == L'a');
}

TEST(StringFinding, TextAndCharacterFromAStart)
{
    const CString text = L"abcabc";
    EXPECT_EQ(text.Find(L"bc"), 1);
    EXPECT_EQ(text.Find(L"bc", 1), 1);
    EXPECT_EQ(text.Find(L"bc", 2), 4);
    EXPECT_EQ(text.Find(L"bc", 5), -1);
    EXPECT_EQ(text.Find(L"cb"), -1);
    EXPECT_EQ(text.Find(L'c'), 2);
    EXPECT_EQ(text.Find(L'c', 3), 5);
    EXPECT_EQ(text.Find(L'c', 6), -1);
    EXPECT_EQ(text.Find(L'x'), -1);
}

TEST(StringFinding, AStartOutsideAndNullFindNothing)
{
    const CString text = L"abc";
    EXPECT_EQ(text.Find(L"a", -1), -1);
    EXPECT_EQ(text.Find(L"a", 4), -1);
    EXPECT_EQ(text.Find(L'a', -1), -1);
    EXPECT_EQ(text.Find(L'a', 100), -1);
    EXPECT_EQ(text.Find(static_cast<LPCWSTR>(nullptr)), -1);
    EXPECT_EQ(CString().Find(L"a"), -1);
}

TEST(StringFinding, FromTheEndAndOneOfMany)
{
    const CString text = L"abcabc";
    EXPECT_EQ(text.ReverseFind(L'a'), 3);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(CString().ReverseFind(L'x'), -1);
    EXPECT_EQ(text.FindOneOf(L"xcb"), 1);
    EXPECT_EQ(text.FindOneOf(L"xyz"), -1);
    EXPECT_EQ(text.FindOneOf(L""), -1);
    EXPECT_EQ(text.FindOneOf(nullptr), -1);
}

TEST(StringParts, CountsOutsideAreCutToTheText)
{
    const CString text = L"abcdef";
    const struct
    {
        CString got;
        LPCWSTR expected;
    } rows[] = {
        {text.Left(2), L"ab"},       {text.Left(0), L""},
        {text.Left(-1), L""},        {text.Left(99), L"abcdef"},
        {text.Right(2), L"ef"},      {text.Right(0), L""},
        {text.Right(-1), L""},       {text.Right(99), L"abcdef"},
        {text.Mid(2), L"cdef"},      {text.Mid(6), L""},
        {text.Mid(99), L""},         {text.Mid(-5), L"abcdef"},
        {text.Mid(2, 3), L"cde"},    {text.Mid(2, 99), L"cdef"},
        {text.Mid(2, 0), L""},       {text.Mid(2, -1), L""},
        {text.Mid(6, 1), L""},       {text.Mid(-5, 2), L"ab"},
        {text.Mid(0, 6), L"abcdef"}, {CString().Left(3), L""},
        {CString().Mid(1, 1), L""},  {text.Mid(1, INT_MAX), L"bcdef"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.got, row.expected);
}

TEST(StringParts, TheWholeIsShared)
{
    const CString text = L"abcdef";
    EXPECT_EQ(text.Left(6).GetString(), text.GetString());
    EXPECT_EQ(text.Mid(0).GetString(), text.GetString());
}

TEST(StringParts, SpansReachAsFarAsTheCharacters)
{
    const CString text = L"aabbcc";
    EXPECT_EQ(text.SpanIncluding(L"ab"), L"aabb");
    EXPECT_EQ(text.SpanIncluding(L"b"), L"");
    EXPECT_EQ(text.SpanIncluding(L"abc"), L"aabbcc");
    EXPECT_EQ(text.SpanExcluding(L"c"), L"aabb");
    EXPECT_EQ(text.SpanExcluding(L"a"), L"");
    EXPECT_EQ(text.SpanExcluding(L"xyz"), L"aabbcc");
    EXPECT_EQ(text.SpanExcluding(L""), L"aabbcc");
}

namespace
{

std::vector<std::wstring> tokensOf(const CString& text, LPCWSTR separators)
{
    std::vector<std::wstring> tokens;
    int start = 0;
    for (CString token = text.Tokenize(separators, start); start != -1;
         token = text.Tokenize(separators, start))
        tokens.emplace_back(token);
    return tokens;
}

} // namespace

TEST(StringTokens, LieBetweenRunsOfSeparators)
{
    using Tokens = std::vector<std::wstring>;
    EXPECT_EQ(tokensOf(L"First Second#Third", L" #"), (Tokens{L"First", L"Second", L"Third"}));
    EXPECT_EQ(tokensOf(L"  ,a,,b , ", L" ,"), (Tokens{L"a", L"b"}));
    EXPECT_EQ(tokensOf(L"abc", L","), (Tokens{L"abc"}));
    EXPECT_EQ(tokensOf(L",,,", L","), Tokens{});
    EXPECT_EQ(tokensOf(L"", L","), Tokens{});
    EXPECT_EQ(tokensOf(L"a b", L""), (Tokens{L"a b"}));
    EXPECT_EQ(tokensOf(L"a b", nullptr), (Tokens{L"a b"}));
}

TEST(StringTokens, TheStartMovesBehindTheTokenAndEndsAtMinusOne)
{
    const CString text = L"ab,cd";
    int start = 0;
    EXPECT_EQ(text.Tokenize(L",", start), L"ab");
    EXPECT_EQ(start, 3);
    EXPECT_EQ(text.Tokenize(L",", start), L"cd");
    EXPECT_EQ(text.Tokenize(L",", start), L"");
    EXPECT_EQ(start, -1);
    EXPECT_EQ(text.Tokenize(L",", start), L"");
    EXPECT_EQ(start, -1);
}

TEST(SubStrings, AreCountedBetweenSingleSeparators)
{
    const struct
    {
        LPCTSTR text;
        int index;
        BOOL found;
        LPCTSTR part;
    } rows[] = {
        {L"one\ntwo\n\nfour", 0, TRUE, L"one"},
        {L"one\ntwo\n\nfour", 1, TRUE, L"two"},
        {L"one\ntwo\n\nfour", 2, TRUE, L""},
        {L"one\ntwo\n\nfour", 3, TRUE, L"four"},
        {L"one\ntwo\n\nfour", 4, FALSE, L""},
        {L"", 0, TRUE, L""},
        {L"", 1, FALSE, L""},
        {nullptr, 0, FALSE, L"before"},
    };
    for (const auto& row : rows) {
        CString part = L"before";
        EXPECT_EQ(AfxExtractSubString(part, row.text, row.index), row.found);
        EXPECT_EQ(part, row.part);
    }
    CString part;
    EXPECT_TRUE(AfxExtractSubString(part, L"a;b", 1, L';'));
    EXPECT_EQ(part, L"b");
}
