// CString: how texts are made, shared and assigned, and what the buffer functions promise.
#include "Texts.h"

#include <utility>

namespace
{

const CString kHello = L"hello";

} // namespace

// Making

TEST(StringMaking, DefaultNullAndEmptyGiveTheEmptyText)
{
    const CString texts[] = {CString(),
                             CString(static_cast<LPCWSTR>(nullptr)),
                             CString(static_cast<LPCSTR>(nullptr)),
                             CString(L""),
                             CString(""),
                             CString(L"abc", 0),
                             CString(L'x', 0),
                             CString(L'x', -3)};
    for (const CString& text : texts) {
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(text.GetLength(), 0);
        EXPECT_STREQ(text.GetString(), L"");
    }
}

TEST(StringMaking, TakesTextPartsAndRepeatedCharacters)
{
    EXPECT_EQ(CString(L"abc"), L"abc");
    EXPECT_EQ(CString(L"abcdef", 3), L"abc");
    EXPECT_EQ(CString(L'x'), L"x");
    EXPECT_EQ(CString(L'x', 4), L"xxxx");
}

TEST(StringMaking, NarrowTextComesFromTheAnsiCodePage)
{
    char narrow[] = {'a', static_cast<char>(0xE4), 'b', 0};
    wchar_t expected[4];
    ASSERT_EQ(::MultiByteToWideChar(CP_ACP, 0, narrow, -1, expected, 4), 4);

    EXPECT_EQ(CString(narrow), expected);
    EXPECT_EQ(CString(narrow, 1), L"a");
    CString text;
    text = narrow;
    EXPECT_EQ(text, expected);
    text += "c";
    EXPECT_EQ(text, CString(expected) + L"c");
}

TEST(StringMaking, ALengthMayReachOverAZero)
{
    const CString text(L"a\0b", 3);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text[1], 0);
    EXPECT_EQ(text[2], L'b');
}

// Sharing

TEST(StringSharing, ACopyIsTheSameBuffer)
{
    const CString copy(kHello);
    CString assigned;
    assigned = kHello;
    EXPECT_EQ(copy.GetString(), kHello.GetString());
    EXPECT_EQ(assigned.GetString(), kHello.GetString());
}

TEST(StringSharing, AChangeLeavesTheOtherTextsAlone)
{
    const struct
    {
        const char* name;
        void (*change)(CString&);
        LPCWSTR changed;
    } changes[] = {
        {"SetAt", [](CString& text) { text.SetAt(0, L'j'); }, L"jello"},
        {"+=", [](CString& text) { text += L"!"; }, L"hello!"},
        {"AppendChar", [](CString& text) { text.AppendChar(L'!'); }, L"hello!"},
        {"Insert", [](CString& text) { text.Insert(0, L"o"); }, L"ohello"},
        {"Delete", [](CString& text) { text.Delete(0, 2); }, L"llo"},
        {"Remove", [](CString& text) { text.Remove(L'l'); }, L"heo"},
        {"Replace character", [](CString& text) { text.Replace(L'l', L'L'); }, L"heLLo"},
        {"Replace", [](CString& text) { text.Replace(L"ell", L"ipp"); }, L"hippo"},
        {"MakeUpper", [](CString& text) { text.MakeUpper(); }, L"HELLO"},
        {"MakeReverse", [](CString& text) { text.MakeReverse(); }, L"olleh"},
        {"TrimLeft", [](CString& text) { text.TrimLeft(L'h'); }, L"ello"},
        {"TrimRight", [](CString& text) { text.TrimRight(L'o'); }, L"hell"},
        {"Truncate", [](CString& text) { text.Truncate(2); }, L"he"},
        {"Empty", [](CString& text) { text.Empty(); }, L""},
        {"Format", [](CString& text) { text.Format(L"%d", 5); }, L"5"},
        {"GetBuffer", [](CString& text) { text.GetBuffer()[1] = L'a'; }, L"hallo"},
        {"GetBufferSetLength", [](CString& text) { text.GetBufferSetLength(4)[0] = L'c'; }, L"cell"},
        {"LockBuffer", [](CString& text) { text.LockBuffer()[0] = L'c'; }, L"cello"},
        {"assignment", [](CString& text) { text = L"bye"; }, L"bye"},
    };
    for (const auto& [name, change, changed] : changes) {
        SCOPED_TRACE(name);
        const CString original(L"hello");
        CString copy(original);
        change(copy);
        EXPECT_EQ(copy, changed);
        EXPECT_EQ(original, L"hello");
    }
}

TEST(StringSharing, TheEmptyTextIsNeverWrittenTo)
{
    CString first;
    first.GetBuffer()[0] = L'x';
    first.ReleaseBuffer(0);
    EXPECT_STREQ(CString().GetString(), L"");
    first.GetBuffer(10)[0] = L'x';
    EXPECT_STREQ(CString().GetString(), L"");
}

TEST(StringSharing, MovingTakesTheBuffer)
{
    CString source(L"a text");
    const LPCWSTR buffer = source.GetString();
    const CString target = std::move(source);
    EXPECT_EQ(target.GetString(), buffer);
    CString assigned;
    CString second(target);
    assigned = std::move(second);
    EXPECT_EQ(assigned.GetString(), buffer);
}

// Assigning

TEST(StringAssigning, TakesTextCharactersAndNull)
{
    CString text = L"before";
    text = L"after";
    EXPECT_EQ(text, L"after");
    text = L'c';
    EXPECT_EQ(text, L"c");
    text.SetString(L"abcdef", 2);
    EXPECT_EQ(text, L"ab");
    text = static_cast<LPCWSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringAssigning, ItselfAndPartsOfItselfAreFine)
{
    CString text = L"0123456789";
    const CString& same = text;
    text = same;
    EXPECT_EQ(text, L"0123456789");
    text = text.GetString() + 4;
    EXPECT_EQ(text, L"456789");
    text.SetString(text.GetString() + 1, 3);
    EXPECT_EQ(text, L"567");

    CString shared = text;
    shared = shared.GetString() + 1;
    EXPECT_EQ(shared, L"67");
    EXPECT_EQ(text, L"567");
}

TEST(StringAppending, ItselfAndPartsOfItselfAreFine)
{
    CString text = L"abc";
    for (int i = 0; i < 5; ++i)
        text += text;
    EXPECT_EQ(text.GetLength(), 96);
    EXPECT_EQ(text.Right(6), L"abcabc");

    text = L"abc";
    text += text.GetString() + 1;
    EXPECT_EQ(text, L"abcbc");
    text.Append(text, 2);
    EXPECT_EQ(text, L"abcbcab");
}

TEST(StringAppending, NullAndNothingChangeNothing)
{
    CString text = L"abc";
    text += static_cast<LPCWSTR>(nullptr);
    text += L"";
    text.Append(L"xyz", 0);
    text.Append(L"xyz", -1);
    EXPECT_EQ(text, L"abc");
}

TEST(StringAppending, ABufferGrowsInStepsAndNotAtEveryCharacter)
{
    CString text;
    int moves = 0;
    LPCWSTR before = nullptr;
    for (int i = 0; i < 10000; ++i) {
        text += static_cast<wchar_t>(L'a' + i % 26);
        moves += text.GetString() != before;
        before = text.GetString();
    }
    EXPECT_EQ(text.GetLength(), 10000);
    EXPECT_EQ(text[9999], L'a' + 9999 % 26);
    EXPECT_LT(moves, 100);
}

TEST(StringJoining, EveryPairOfOperandsJoins)
{
    const CString a = L"a";
    const CString b = L"b";
    EXPECT_EQ(a + b, L"ab");
    EXPECT_EQ(a + L"b", L"ab");
    EXPECT_EQ(L"a" + b, L"ab");
    EXPECT_EQ(a + L'b', L"ab");
    EXPECT_EQ(L'a' + b, L"ab");
    EXPECT_EQ(a + static_cast<LPCWSTR>(nullptr), L"a");
    EXPECT_EQ(a, L"a");
}

// The buffer

TEST(StringBuffer, HoldsAtLeastWhatWasAskedForAndKeepsTheText)
{
    CString text = L"abc";
    const LPWSTR buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, L"abc");
    EXPECT_GE(text.GetAllocLength(), 100);
    std::wmemset(buffer, L'x', 100);
    text.ReleaseBuffer(100);
    EXPECT_EQ(text, CString(L'x', 100));
}

TEST(StringBuffer, ReleaseMeasuresUpToTheZero)
{
    CString text;
    ::lstrcpyW(text.GetBuffer(50), L"measured");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 8);
    EXPECT_EQ(text, L"measured");
}

TEST(StringBuffer, ReleaseWithoutAZeroTakesAllThereIs)
{
    CString text;
    text.GetBufferSetLength(4);
    std::wmemset(text.GetBuffer(), L'y', 4);
    const int room = text.GetAllocLength();
    std::wmemset(text.GetBuffer(), L'y', static_cast<std::size_t>(room));
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), room);
}

TEST(StringBuffer, SmallerThanTheTextIsTheText)
{
    CString text = L"abcdef";
    EXPECT_STREQ(text.GetBuffer(2), L"abcdef");
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, L"ab");
}

TEST(StringBuffer, SetLengthCutsAndLengthens)
{
    CString text = L"abcdef";
    EXPECT_STREQ(text.GetBufferSetLength(3), L"abc");
    text.ReleaseBufferSetLength(3);
    EXPECT_EQ(text, L"abc");
    text.GetBufferSetLength(8);
    EXPECT_EQ(text.GetLength(), 8);
    EXPECT_EQ(text.Left(3), L"abc");
}

TEST(StringBuffer, ALockedBufferIsNotSharedAndStaysWhereItIs)
{
    CString text = L"locked";
    const LPWSTR buffer = text.LockBuffer();
    const CString copy(text);
    EXPECT_NE(copy.GetString(), buffer);
    EXPECT_EQ(copy, L"locked");

    const CString other = L"other";
    text = other;
    EXPECT_EQ(text.GetString(), buffer) << "assigned by copying";
    EXPECT_EQ(text, L"other");
    text = CString(L"moved");
    EXPECT_EQ(text.GetString(), buffer);
    text.Empty();
    EXPECT_EQ(text.GetString(), buffer);

    text = L"again";
    text.UnlockBuffer();
    const CString shared(text);
    EXPECT_EQ(shared.GetString(), text.GetString());
}

TEST(StringBuffer, ALockedTextCanGrowFromItself)
{
    CString text = L"abc";
    text.LockBuffer();
    text += text;
    text = text.GetString() + 2;
    EXPECT_EQ(text, L"cabc");
    const CString copy(text);
    EXPECT_NE(copy.GetString(), text.GetString());
}

TEST(StringBuffer, PreallocatedRoomIsUsedAndExtraRoomFreed)
{
    CString text = L"abc";
    text.Preallocate(200);
    const LPCWSTR buffer = text.GetString();
    for (int i = 0; i < 190; ++i)
        text += L'x';
    EXPECT_EQ(text.GetString(), buffer);
    text.Truncate(3);
    text.FreeExtra();
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(text.GetAllocLength(), 3);
}

TEST(StringBuffer, PreallocatingLessKeepsTheText)
{
    CString text = L"abcdef";
    text.Preallocate(2);
    EXPECT_EQ(text, L"abcdef");
}

// Elsewhere

TEST(StringCopies, ASystemStringIsACopyOfAllCharacters)
{
    const CString text(L"a\0b", 3);
    BSTR copy = text.AllocSysString();
    EXPECT_EQ(::SysStringLen(copy), 3u);
    EXPECT_EQ(copy[2], L'b');
    EXPECT_STREQ(kHello.SetSysString(&copy), L"hello");
    EXPECT_EQ(::SysStringLen(copy), 5u);
    ::SysFreeString(copy);
}

TEST(StringCopies, AnEnvironmentVariableIsReadWhole)
{
    const CString value(L'v', 3000);
    ::SetEnvironmentVariableW(L"OVO_CORE_TEST", value);
    CString text;
    EXPECT_TRUE(text.GetEnvironmentVariable(L"OVO_CORE_TEST"));
    EXPECT_EQ(text, value);
    ::SetEnvironmentVariableW(L"OVO_CORE_TEST", nullptr);
    EXPECT_FALSE(text.GetEnvironmentVariable(L"OVO_CORE_TEST"));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringSize, IsOnePointer)
{
    EXPECT_EQ(sizeof(CString), sizeof(void*));
}

#ifdef OVO_ASSERTIONS
TEST(StringDeathTest, AssertsWhatLiesOutside)
{
    CString text = L"abc";
    EXPECT_DEATH(text.GetAt(4), "assertion failed");
    EXPECT_DEATH(text.GetAt(-1), "assertion failed");
    EXPECT_DEATH(text.SetAt(3, L'x'), "assertion failed");
    EXPECT_DEATH(text.ReleaseBuffer(1000), "assertion failed");
}
#endif
