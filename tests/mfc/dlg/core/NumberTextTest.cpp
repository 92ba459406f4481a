// Numbers as text, without windows and without a locale.
#include <mfc/src/dlg/core/numbertext.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>

using namespace afxdetail;

namespace
{

template <class Number>
NumberFault faultOf(std::wstring_view text)
{
    return readNumber<Number>(text).fault;
}

} // namespace

TEST(NumberText, ReadsDecimalNumbersWithBlanksAndASign)
{
    EXPECT_EQ(readNumber<int>(L"42").value, 42);
    EXPECT_EQ(readNumber<int>(L" \t+42\r\n").value, 42);
    EXPECT_EQ(readNumber<int>(L"-0042").value, -42);
    EXPECT_EQ(readNumber<double>(L"-2.5E+3").value, -2500);
    EXPECT_EQ(readNumber<double>(L".5").value, 0.5);
}

TEST(NumberText, KnowsWhatIsNoNumber)
{
    for (const wchar_t* text : {L"", L" ", L"oak", L"1oak", L"1 2", L"--1", L"+-1", L"-+1", L"+", L"-",
                                L"0x1", L"1.5", L".", L"\x0661", L"\x3042", L"1\x3042"})
        EXPECT_EQ(faultOf<int>(text), NumberFault::NotANumber) << std::string(asciiOf(text));
    for (const wchar_t* text : {L"inf", L"-inf", L"nan", L"infinity", L"1e", L"0x1p3", L"1,5", L".e1"})
        EXPECT_EQ(faultOf<double>(text), NumberFault::NotANumber) << std::string(asciiOf(text));
}

TEST(NumberText, KnowsWhatDoesNotFit)
{
    EXPECT_EQ(faultOf<std::int8_t>(L"128"), NumberFault::OutOfRange);
    EXPECT_EQ(readNumber<std::int8_t>(L"-128").value, -128);
    EXPECT_EQ(faultOf<std::int8_t>(L"-129"), NumberFault::OutOfRange);
    EXPECT_EQ(faultOf<std::uint8_t>(L"256"), NumberFault::OutOfRange);
    EXPECT_EQ(faultOf<std::uint8_t>(L"-1"), NumberFault::OutOfRange);
    EXPECT_EQ(faultOf<std::uint8_t>(L"-0"), NumberFault::None);
    EXPECT_EQ(faultOf<std::uint8_t>(L"-oak"), NumberFault::NotANumber);
    EXPECT_EQ(faultOf<std::int64_t>(L"9223372036854775808"), NumberFault::OutOfRange);
    EXPECT_EQ(readNumber<std::int64_t>(L"-9223372036854775808").value,
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(faultOf<float>(L"1e39"), NumberFault::OutOfRange);
    EXPECT_EQ(faultOf<double>(L"-1e999"), NumberFault::OutOfRange);
}

// Neither the sign of the exponent nor the place of the point tells by itself.
TEST(NumberText, ManyDigitsAndAnExponentGoTogether)
{
    const std::wstring zeros(500, L'0');
    EXPECT_EQ(readNumber<double>(L"1" + zeros + L"e-1").fault, NumberFault::OutOfRange);
    EXPECT_EQ(readNumber<float>(L"1" + std::wstring(60, L'0') + L"e-9").fault, NumberFault::OutOfRange);
    EXPECT_EQ(readNumber<double>(L"0." + zeros + L"1e+9").fault, NumberFault::None);
    EXPECT_EQ(readNumber<double>(L"0." + zeros + L"1e+9").value, 0.0);
    EXPECT_EQ(readNumber<double>(L"1e99999999999999999999").fault, NumberFault::OutOfRange);
    EXPECT_EQ(readNumber<double>(L"-1e-99999999999999999999").fault, NumberFault::None);
}

TEST(NumberText, ReadsWhatIsTooSmallAsZero)
{
    for (const std::wstring& text :
         {std::wstring(L"1e-999"), std::wstring(L"-1e-999"), L"0." + std::wstring(500, L'0') + L"1"}) {
        const auto read = readNumber<double>(text);
        EXPECT_EQ(read.fault, NumberFault::None);
        EXPECT_EQ(read.value, 0);
    }
    EXPECT_EQ(faultOf<double>(std::wstring(500, L'9')), NumberFault::OutOfRange);
    EXPECT_EQ(faultOf<double>(std::wstring(500, L'9') + L".0"), NumberFault::OutOfRange);
}

TEST(NumberText, WritesTheDigitsThatHold)
{
    EXPECT_EQ(writeNumber(0.1), L"0.1");
    EXPECT_EQ(writeNumber(0.1f), L"0.1");
    EXPECT_EQ(writeNumber(1.0 / 3), L"0.333333333333333");
    EXPECT_EQ(writeNumber(1.0 / 3, 3), L"0.333");
    EXPECT_EQ(writeNumber(-1e300), L"-1e+300");
    EXPECT_EQ(writeNumber(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
    EXPECT_EQ(writeNumber(std::uint8_t{65}), L"65");
}

TEST(NumberText, ReadsWhatItWrites)
{
    for (const double value : {0.0, -0.5, 123456.789, 1e-300, 1.7976931348623157e308})
        EXPECT_DOUBLE_EQ(readNumber<double>(writeNumber(value, 17)).value, value);
}

TEST(NumberText, TakesNoNoticeOfTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "de-DE", "C.UTF-8"})
        if (std::setlocale(LC_ALL, locale))
            break;
    EXPECT_EQ(readNumber<double>(L"1.5").value, 1.5);
    EXPECT_EQ(writeNumber(1.5), L"1.5");
    std::setlocale(LC_ALL, before.c_str());
}
