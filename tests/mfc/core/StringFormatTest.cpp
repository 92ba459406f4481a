// CString: formatting.
#include "Texts.h"
#include "resource.h"

#include <afxwin.h>

namespace
{

CString formatted(LPCWSTR format, ...)
{
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    return text;
}

} // namespace

TEST(StringFormat, PlainTextInAFormatIsWideAndCapitalTextNarrow)
{
    EXPECT_EQ(formatted(L"%s", L"wide"), L"wide");
    EXPECT_EQ(formatted(L"%S", "narrow"), L"narrow");
    EXPECT_EQ(formatted(L"%hs", "narrow"), L"narrow");
    EXPECT_EQ(formatted(L"%ls", L"wide"), L"wide");
    EXPECT_EQ(formatted(L"%ws", L"wide"), L"wide");
    EXPECT_EQ(formatted(L"%c%C", L'w', 'n'), L"wn");
}

TEST(StringFormat, FollowsTheCRuntimesRules)
{
    const CString argument = L"text";
    const struct
    {
        CString got;
        LPCWSTR expected;
    } rows[] = {
        {formatted(L"%d %i %u", -5, 7, 4000000000u), L"-5 7 4000000000"},
        {formatted(L"[%5d|%-5d|%05d|%+d]", 42, 42, 42, 42), L"[   42|42   |00042|+42]"},
        {formatted(L"%x %X %#x %o", 0xBEEF, 0xBEEF, 0xBEEF, 8), L"beef BEEF 0xbeef 10"},
        {formatted(L"%.2f %g %e", 1.005, 0.5, 12345.678), L"1.00 0.5 1.234568e+004"},
        {formatted(L"%*.*f", 8, 3, 3.14159), L"   3.142"},
        {formatted(L"%.3s|%6s|%-6s|", L"abcdef", L"ab", L"ab"), L"abc|    ab|ab    |"},
        {formatted(L"%I64d %I64x", -1234567890123LL, 0x123456789ABCLL), L"-1234567890123 123456789abc"},
        {formatted(L"%lld %llu", -1234567890123LL, 12345678901234567890ULL),
         L"-1234567890123 12345678901234567890"},
        {formatted(L"%p", reinterpret_cast<void*>(0xABCDEF)), L"0000000000ABCDEF"},
        {formatted(L"100%%"), L"100%"},
        {formatted(L""), L""},
        {formatted(L"%s", static_cast<LPCWSTR>(argument)), L"text"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.got, row.expected);
}

TEST(StringFormat, HasNoLimitOfLength)
{
    const CString longText(L'x', 100000);
    CString text;
    text.Format(L"<%s>", static_cast<LPCWSTR>(longText));
    EXPECT_EQ(text.GetLength(), 100002);
    EXPECT_EQ(text, L"<" + longText + L">");
}

TEST(StringFormat, TheTextItselfMayBeAnArgument)
{
    CString text = L"abc";
    text.Format(L"%s-%s", text.GetString(), text.GetString());
    EXPECT_EQ(text, L"abc-abc");
    text.AppendFormat(L"+%s", text.GetString());
    EXPECT_EQ(text, L"abc-abc+abc-abc");
}

TEST(StringFormat, AppendsBehindTheText)
{
    CString text = L"1";
    text.AppendFormat(L",%d", 2);
    text.AppendFormat(L",%s", L"3");
    text.AppendFormat(L"");
    EXPECT_EQ(text, L"1,2,3");
}

TEST(StringFormat, TakesTheFormatFromAResource)
{
    CString text;
    text.Format(IDS_FORMAT, 3, L"files");
    EXPECT_EQ(text, L"3 of files");
    text.AppendFormat(IDS_FORMAT, 4, L"folders");
    EXPECT_EQ(text, L"3 of files4 of folders");
}

TEST(StringFormat, TakesTextsWithoutACast)
{
    class Derived : public CString
    {
    public:
        using CString::CString;
    };
    enum class Size : unsigned char
    {
        Large = 200
    };
    CString text = L"oak";
    const CString& same = text;
    const Derived derived(L"ash");
    text.Format(L"%s, %d, %s, %c, %s, %.2f, %s", text, 5, same, L'!', derived, 1.5f, text + L"s");
    EXPECT_EQ(text, L"oak, 5, oak, !, ash, 1.50, oaks");
    text.AppendFormat(L"; %s %I64d %d %s", same.Left(3), 1LL << 40, Size::Large, CString(L"elm"));
    EXPECT_EQ(text, L"oak, 5, oak, !, ash, 1.50, oaks; oak 1099511627776 200 elm");
    text.Format(L"%s|%S|%p", CString(), "narrow", nullptr);
    EXPECT_EQ(text, L"|narrow|0000000000000000");
}

TEST(StringFormat, TakesTextsWithAFormatFromAResource)
{
    const CString files = L"files";
    CString text;
    text.Format(IDS_FORMAT, 3, files);
    EXPECT_EQ(text, L"3 of files");
    text.AppendFormat(IDS_FORMAT, 4, files + L"!");
    EXPECT_EQ(text, L"3 of files4 of files!");
    text.FormatMessage(L"%2!s! before %1!s!", files, CString(L"folders"));
    EXPECT_EQ(text, L"folders before files");
    text.FormatMessage(IDS_MESSAGE_FORMAT, files, 2);
    EXPECT_EQ(text, L"2 then files");
}

namespace
{
/// As older programs write constants: declared in the class and defined nowhere.
struct Limits
{
    static const int kLargest = 9;
    unsigned bits : 3 = 5;
};
} // namespace

TEST(StringFormat, TakesConstantsAndBitFieldsByValue)
{
    const Limits limits;
    CString text;
    text.Format(L"%d %u", Limits::kLargest, limits.bits);
    EXPECT_EQ(text, L"9 5");
}

TEST(StringFormat, MessagesPutTheirArgumentsInAnyOrder)
{
    CString text;
    text.FormatMessage(L"%2!s! before %1!s!", L"one", L"two");
    EXPECT_EQ(text, L"two before one");
    text.FormatMessage(IDS_MESSAGE_FORMAT, L"one", 2);
    EXPECT_EQ(text, L"2 then one");
    text.FormatMessage(L"");
    EXPECT_EQ(text, L"");
}

TEST(FormatStrings, PutArgumentsInThePlacesOfTheirNumbers)
{
    const struct
    {
        LPCTSTR format;
        LPCTSTR expected;
    } rows[] = {
        {L"%1 and %2", L"one and two"},
        {L"%2%1%2", L"twoonetwo"},
        {L"%3 is not there", L" is not there"},
        {L"100%", L"100%"},
        {L"%%1", L"%one"},
        {L"%a %0", L"%a %0"},
        {L"%10", L"one0"},
        {L"", L""},
    };
    const LPCTSTR arguments[] = {L"one", L"two"};
    for (const auto& row : rows) {
        CString result = L"before";
        AfxFormatStrings(result, row.format, arguments, 2);
        EXPECT_EQ(result, row.expected);
    }
}

TEST(FormatStrings, TakeTheFormatFromAResource)
{
    CString result;
    AfxFormatString1(result, IDS_ONE_PLACE, L"x");
    EXPECT_EQ(result, L"only x");
    AfxFormatString2(result, IDS_TWO_PLACES, L"x", L"y");
    EXPECT_EQ(result, L"y before x");
}

TEST(FormatStrings, TheResultMayBeAnArgument)
{
    CString text = L"x";
    AfxFormatString1(text, IDS_ONE_PLACE, text);
    EXPECT_EQ(text, L"only x");
}
