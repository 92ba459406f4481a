// Numbers and texts of edit controls: what is shown, what is read, what is refused and how.
#include "TestDialog.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ovo::testkit;

namespace
{

const std::vector<AskedBox>& boxes()
{
    return TestApp::instance().boxes();
}

/// One value tied to the edit control of a dialog.
template <class Value>
class Exchange
{
public:
    explicit Exchange(Value value = {})
        : value(value)
    {
        dialog.createModeless();
        dialog.onExchange = [this](CDataExchange* exchange) {
            DDX_Text(exchange, TestDialog::kEdit, this->value);
        };
    }
    ~Exchange() { dialog.DestroyWindow(); }

    std::wstring shown()
    {
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        return textOf(::GetDlgItem(dialog, TestDialog::kEdit));
    }

    bool reads(const wchar_t* text)
    {
        dialog.SetDlgItemText(TestDialog::kEdit, text);
        return dialog.UpdateData(TRUE) != FALSE;
    }

    /// The message that refuses a text; empty when it is taken.
    std::wstring refusal(const wchar_t* text)
    {
        TestApp::instance().forget();
        return reads(text) || boxes().empty() ? L"" : boxes().back().text;
    }

    TestDialog dialog;
    Value value;
};

template <class Value>
void expectExtremesSurvive()
{
    using Limits = std::numeric_limits<Value>;
    for (const Value extreme : {Limits::lowest(), Limits::max(), Value{}}) {
        Exchange<Value> exchange(extreme);
        const std::wstring text = exchange.shown();
        exchange.value = Value{1};
        EXPECT_TRUE(exchange.reads(text.c_str())) << text.c_str();
        EXPECT_EQ(exchange.value, extreme);
    }
}

} // namespace

TEST(DdxText, EveryWholeNumberSurvives)
{
    expectExtremesSurvive<BYTE>();
    expectExtremesSurvive<short>();
    expectExtremesSurvive<int>();
    expectExtremesSurvive<UINT>();
    expectExtremesSurvive<long>();
    expectExtremesSurvive<DWORD>();
    expectExtremesSurvive<LONGLONG>();
    expectExtremesSurvive<ULONGLONG>();
}

TEST(DdxText, RealNumbersAreShownWithTheDigitsThatHold)
{
    EXPECT_EQ(Exchange<double>(0.1).shown(), L"0.1");
    EXPECT_EQ(Exchange<double>(1.0 / 3).shown(), L"0.333333333333333");
    EXPECT_EQ(Exchange<float>(0.1f).shown(), L"0.1");
    EXPECT_EQ(Exchange<float>(1.0f / 3).shown(), L"0.333333");
    EXPECT_EQ(Exchange<double>(1e300).shown(), L"1e+300");
}

TEST(DdxText, RealNumbersAreReadInAllTheirForms)
{
    Exchange<double> exchange;
    const std::pair<const wchar_t*, double> forms[] = {
        {L"-2.5e3", -2500}, {L" +.5 ", 0.5}, {L"7", 7}, {L"1e-999", 0}, {L"00012", 12}, {L"1.e2", 100},
    };
    for (const auto& [text, value] : forms) {
        EXPECT_TRUE(exchange.reads(text)) << text;
        EXPECT_EQ(exchange.value, value) << text;
    }
}

TEST(DdxText, WhatIsNoNumberIsRefusedAndTheMemberKept)
{
    Exchange<int> exchange(7);
    for (const wchar_t* text :
         {L"", L" ", L"oak", L"12oak", L"1 2", L"1.5", L"0x10", L"--1", L"+-1", L"-", L"\u0661"}) {
        EXPECT_EQ(exchange.refusal(text), L"Enter a whole number.") << text;
        EXPECT_EQ(exchange.value, 7);
    }
    Exchange<double> real(7);
    for (const wchar_t* text : {L"", L"oak", L"inf", L"nan", L"1e", L"0x1p3", L"1,5", L"."}) {
        EXPECT_EQ(real.refusal(text), L"Enter a number.") << text;
        EXPECT_EQ(real.value, 7);
    }
}

TEST(DdxText, ANumberThatDoesNotFitIsRefusedWithTheBounds)
{
    EXPECT_EQ(Exchange<int>().refusal(L"2147483648"),
              L"Enter a whole number between -2147483648 and 2147483647.");
    EXPECT_EQ(Exchange<short>().refusal(L"-32769"), L"Enter a whole number between -32768 and 32767.");
    EXPECT_EQ(Exchange<BYTE>().refusal(L"256"), L"Enter a whole number between 0 and 255.");
    EXPECT_EQ(Exchange<BYTE>().refusal(L"-1"), L"Enter a whole number between 0 and 255.");
    EXPECT_EQ(Exchange<UINT>().refusal(L"-1"), L"Enter a whole number between 0 and 4294967295.");
    EXPECT_EQ(Exchange<ULONGLONG>().refusal(L"18446744073709551616"),
              L"Enter a whole number between 0 and 18446744073709551615.");
    EXPECT_EQ(Exchange<float>().refusal(L"1e39"), L"Enter a number between -3.40282e+38 and 3.40282e+38.");
}

TEST(DdxText, MinusZeroIsANumberOfEveryType)
{
    Exchange<UINT> exchange(7);
    EXPECT_TRUE(exchange.reads(L"-0"));
    EXPECT_EQ(exchange.value, 0u);
}

TEST(DdxText, TextsGoBothWaysAtAnyLength)
{
    const CString longText(L'x', 5000);
    Exchange<CString> exchange(longText);
    EXPECT_EQ(exchange.shown().size(), 5000u);
    exchange.value.Empty();
    EXPECT_TRUE(exchange.dialog.UpdateData(TRUE));
    EXPECT_EQ(exchange.value, longText);
    EXPECT_TRUE(exchange.reads(L""));
    EXPECT_TRUE(exchange.value.IsEmpty());
}

TEST(DdxText, ABufferTakesNoMoreThanItHolds)
{
    wchar_t buffer[4] = L"Oak";
    TestDialog dialog;
    dialog.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, TestDialog::kEdit, buffer, 4); };
    ASSERT_TRUE(dialog.createModeless());
    EXPECT_EQ(textOf(::GetDlgItem(dialog, TestDialog::kEdit)), L"Oak");
    dialog.SetDlgItemText(TestDialog::kEdit, L"Elm");
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(buffer, L"Elm");
    dialog.SetDlgItemText(TestDialog::kEdit, L"Beech");
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_STREQ(buffer, L"Elm");
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, L"Enter no more than 3 characters.");
    dialog.DestroyWindow();
}

TEST(DdxText, AnUnchangedTextIsNotSetAgain)
{
    class Counting : public TestDialog
    {
    public:
        int changes = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
        {
            changes += HIWORD(wParam) == EN_CHANGE;
            return TestDialog::OnCommand(wParam, lParam);
        }
    } dialog;
    CString name(L"Oak");
    dialog.onExchange = [&](CDataExchange* exchange) { DDX_Text(exchange, TestDialog::kEdit, name); };
    ASSERT_TRUE(dialog.createModeless());
    EXPECT_EQ(dialog.changes, 1) << "what is loaded is notified";
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.changes, 1);
    name = L"Elm";
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.changes, 2);
    dialog.DestroyWindow();
}
