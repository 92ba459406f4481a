// CString: changing a text in place.
#include "Texts.h"

TEST(StringInserting, AnywhereWithTheNewLengthAsResult)
{
    const struct
    {
        int index;
        LPCWSTR inserted;
        LPCWSTR expected;
    } rows[] = {
        {0, L"xy", L"xyabc"},  {1, L"xy", L"axybc"}, {3, L"xy", L"abcxy"}, {99, L"xy", L"abcxy"},
        {-4, L"xy", L"xyabc"}, {1, L"", L"abc"},     {1, nullptr, L"abc"},
    };
    for (const auto& row : rows) {
        CString text = L"abc";
        EXPECT_EQ(text.Insert(row.index, row.inserted), static_cast<int>(std::wcslen(row.expected)));
        EXPECT_EQ(text, row.expected);
    }
    CString text = L"ac";
    EXPECT_EQ(text.Insert(1, L'b'), 3);
    EXPECT_EQ(text, L"abc");
    CString empty;
    EXPECT_EQ(empty.Insert(5, L"abc"), 3);
    EXPECT_EQ(empty, L"abc");
}

TEST(StringInserting, ItselfIntoItself)
{
    CString text = L"abcd";
    text.Insert(2, text);
    EXPECT_EQ(text, L"ababcdcd");
    text.Insert(1, text.GetString() + 6);
    EXPECT_EQ(text, L"acdbabcdcd");
}

TEST(StringDeleting, CutsOutWithTheNewLengthAsResult)
{
    const struct
    {
        int index;
        int count;
        LPCWSTR expected;
    } rows[] = {
        {0, 1, L"bcdef"},  {2, 2, L"abef"},    {4, 99, L"abcd"}, {6, 1, L"abcdef"}, {99, 1, L"abcdef"},
        {2, 0, L"abcdef"}, {2, -1, L"abcdef"}, {-1, 2, L"cdef"}, {0, 6, L""},       {1, INT_MAX, L"a"},
    };
    for (const auto& row : rows) {
        CString text = L"abcdef";
        EXPECT_EQ(text.Delete(row.index, row.count), static_cast<int>(std::wcslen(row.expected)));
        EXPECT_EQ(text, row.expected);
    }
    CString text = L"abc";
    text.Delete(1);
    EXPECT_EQ(text, L"ac");
}

TEST(StringRemoving, TakesEveryOneAndCounts)
{
    CString text = L"This is a test.";
    EXPECT_EQ(text.Remove(L't'), 2);
    EXPECT_EQ(text, L"This is a es.");
    EXPECT_EQ(text.Remove(L'x'), 0);
    CString all = L"aaa";
    EXPECT_EQ(all.Remove(L'a'), 3);
    EXPECT_TRUE(all.IsEmpty());
}

TEST(StringReplacing, CharactersAndTexts)
{
    CString text = L"C--";
    EXPECT_EQ(text.Replace(L'-', L'+'), 2);
    EXPECT_EQ(text, L"C++");
    EXPECT_EQ(text.Replace(L'x', L'y'), 0);

    const struct
    {
        LPCWSTR before;
        LPCWSTR from;
        LPCWSTR to;
        int count;
        LPCWSTR after;
    } rows[] = {
        {L"abcabc", L"bc", L"x", 2, L"axax"}, {L"abcabc", L"bc", L"wxyz", 2, L"awxyzawxyz"},
        {L"abcabc", L"bc", L"", 2, L"aa"},    {L"abcabc", L"bc", nullptr, 2, L"aa"},
        {L"aaaa", L"aa", L"a", 2, L"aa"}, // what was put in is not searched again
        {L"abc", L"x", L"y", 0, L"abc"},      {L"abc", L"", L"y", 0, L"abc"},
        {L"abc", nullptr, L"y", 0, L"abc"},   {L"", L"a", L"b", 0, L""},
        {L"abc", L"abc", L"", 1, L""},
    };
    for (const auto& row : rows) {
        CString changed = row.before;
        EXPECT_EQ(changed.Replace(row.from, row.to), row.count);
        EXPECT_EQ(changed, row.after);
    }
}

TEST(StringReplacing, ByItself)
{
    CString text = L"ab";
    EXPECT_EQ(text.Replace(L"b", text), 1);
    EXPECT_EQ(text, L"aab");
}

TEST(StringCase, FollowsTheLettersOfAllAlphabets)
{
    CString text = L"aBc \x00E4\x03B1";
    EXPECT_EQ(text.MakeUpper(), L"ABC \x00C4\x0391");
    EXPECT_EQ(text.MakeLower(), L"abc \x00E4\x03B1");
    CString empty;
    EXPECT_EQ(empty.MakeUpper().MakeLower().MakeReverse(), L"");
}

TEST(StringReversing, TurnsTheTextRound)
{
    CString text = L"abc";
    EXPECT_EQ(text.MakeReverse(), L"cba");
}

TEST(StringTrimming, WhiteSpaceOfAllKinds)
{
    const CString text = L" \t\r\n\f\v x y \t\r\n";
    EXPECT_EQ(CString(text).Trim(), L"x y");
    EXPECT_EQ(CString(text).TrimLeft(), L"x y \t\r\n");
    EXPECT_EQ(CString(text).TrimRight(), L" \t\r\n\f\v x y");
    EXPECT_EQ(CString(L"   ").Trim(), L"");
    EXPECT_EQ(CString().Trim(), L"");
}

TEST(StringTrimming, OneCharacterAndAnyOfSeveral)
{
    EXPECT_EQ(CString(L"xxaxx").Trim(L'x'), L"a");
    EXPECT_EQ(CString(L"xxaxx").TrimLeft(L'x'), L"axx");
    EXPECT_EQ(CString(L"xxaxx").TrimRight(L'x'), L"xxa");
    EXPECT_EQ(CString(L"{[Hello]}").Trim(L"[]{}"), L"Hello");
    EXPECT_EQ(CString(L"{[Hello]}").TrimLeft(L"[{"), L"Hello]}");
    EXPECT_EQ(CString(L"{[Hello]}").TrimRight(L"}]"), L"{[Hello");
    EXPECT_EQ(CString(L" a ").Trim(L""), L" a ");
    EXPECT_EQ(CString(L" a ").Trim(static_cast<LPCWSTR>(nullptr)), L" a ");
    EXPECT_EQ(CString(L"xxx").Trim(L'x'), L"");
}

TEST(StringTruncating, CutsAndNeverLengthens)
{
    CString text = L"abcdef";
    text.Truncate(99);
    EXPECT_EQ(text, L"abcdef");
    text.Truncate(2);
    EXPECT_EQ(text, L"ab");
    text.Truncate(0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringCodePages, WideTextHasNothingToConvert)
{
    CString text = L"\x00E4";
    text.OemToAnsi();
    text.AnsiToOem();
    EXPECT_EQ(text, L"\x00E4");
}
