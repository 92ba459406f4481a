// Validation: bounds are inclusive, refusals say them, values on their way to the controls pass.
#include "TestDialog.h"

#include <testkit/TestApp.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

const std::vector<AskedBox>& boxes()
{
    return TestApp::instance().boxes();
}

template <class Value>
using Check = void (*)(CDataExchange*, Value, Value, Value);

/// Checks `value` in a pass of its own; gives the message of the refusal, or nothing.
template <class Validate>
std::wstring verdict(Validate validate, bool save = true)
{
    TestApp::instance().forget();
    TestDialog dialog;
    dialog.createModeless();
    dialog.onExchange = [&](CDataExchange* exchange) {
        exchange->PrepareEditCtrl(TestDialog::kEdit);
        validate(exchange);
    };
    const bool passed = dialog.UpdateData(save) != FALSE;
    EXPECT_EQ(passed, boxes().empty());
    dialog.DestroyWindow();
    return passed ? L"" : boxes().back().text;
}

const std::wstring kWhole = L"Enter a whole number between 10 and 20.";

} // namespace

TEST(Ddv, WholeNumbersOutOfBoundsAreRefusedWithTheBounds)
{
    for (const int value : {9, 21}) {
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxByte(x, static_cast<BYTE>(value), 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxShort(x, static_cast<short>(value), 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxInt(x, value, 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxLong(x, value, 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxUInt(x, static_cast<UINT>(value), 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxUnsigned(x, static_cast<UINT>(value), 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxDWord(x, static_cast<DWORD>(value), 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxLongLong(x, value, 10, 20); }), kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxULongLong(x, static_cast<ULONGLONG>(value), 10, 20); }),
                  kWhole);
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxSlider(x, static_cast<DWORD>(value), 10, 20); }), kWhole);
    }
}

TEST(Ddv, TheBoundsThemselvesPass)
{
    for (const int value : {10, 20}) {
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxByte(x, static_cast<BYTE>(value), 10, 20); }), L"");
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxInt(x, value, 10, 20); }), L"");
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxUInt(x, static_cast<UINT>(value), 10, 20); }), L"");
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxLongLong(x, value, 10, 20); }), L"");
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxDouble(x, value, 10, 20); }), L"");
        EXPECT_EQ(verdict([&](auto* x) { DDV_MinMaxFloat(x, static_cast<float>(value), 10, 20); }), L"");
    }
}

TEST(Ddv, RealNumbersAreCheckedAndNoNumberIsRefused)
{
    EXPECT_EQ(verdict([](auto* x) { DDV_MinMaxDouble(x, 2.0001, -1.5, 2); }),
              L"Enter a number between -1.5 and 2.");
    EXPECT_EQ(verdict([](auto* x) { DDV_MinMaxFloat(x, -1.6f, -1.5f, 2); }),
              L"Enter a number between -1.5 and 2.");
    EXPECT_EQ(verdict([](auto* x) { DDV_MinMaxDouble(x, 5, 0, 1.0 / 3, 3); }),
              L"Enter a number between 0 and 0.333.");
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE(verdict([=](auto* x) { DDV_MinMaxDouble(x, none, 0, 1); }), L"");
}

TEST(Ddv, ValuesOnTheirWayToTheControlsPass)
{
    EXPECT_EQ(verdict([](auto* x) { DDV_MinMaxInt(x, 99, 10, 20); }, false), L"");
    EXPECT_EQ(verdict([](auto* x) { DDV_MinMaxDouble(x, 99, 10, 20); }, false), L"");
    EXPECT_EQ(verdict([](auto* x) { DDV_MaxChars(x, L"Beech", 3); }, false), L"");
}

TEST(Ddv, ATextThatIsTooLongIsRefusedWithTheLength)
{
    EXPECT_EQ(verdict([](auto* x) { DDV_MaxChars(x, L"Oak", 3); }), L"");
    EXPECT_EQ(verdict([](auto* x) { DDV_MaxChars(x, L"Beech", 3); }), L"Enter no more than 3 characters.");
}

TEST(Ddv, TheLengthIsAlsoTheMostThatCanBeTyped)
{
    MemoryTemplate memory(L"Lengths");
    memory.control(L"EDIT", 1, 0).control(L"COMBOBOX", 2, CBS_DROPDOWN);
    class Lengths : public CDialog
    {
        void DoDataExchange(CDataExchange* exchange) override
        {
            CString text;
            DDX_Text(exchange, 1, text);
            DDV_MaxChars(exchange, text, 3);
            DDX_CBString(exchange, 2, text);
            DDV_MaxChars(exchange, text, 4);
        }
    } dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.get()));
    EXPECT_EQ(dialog.SendDlgItemMessage(1, EM_GETLIMITTEXT), 3);
    const HWND comboEdit = ::GetWindow(::GetDlgItem(dialog, 2), GW_CHILD);
    EXPECT_EQ(::SendMessageW(comboEdit, EM_GETLIMITTEXT, 0, 0), 4);
    dialog.DestroyWindow();
}

TEST(Ddv, ARefusalPutsTheFocusOnTheControlItIsAbout)
{
    TestDialog dialog(nullptr, TestDialog::kStyle | WS_VISIBLE);
    int number = 0;
    bool later = false;
    dialog.onExchange = [&](CDataExchange* exchange) {
        DDX_Text(exchange, TestDialog::kEdit, number);
        DDV_MinMaxInt(exchange, number, 1, 9);
        later = exchange->m_bSaveAndValidate;
    };
    ASSERT_TRUE(dialog.createModeless());
    present(dialog);
    dialog.SetDlgItemText(TestDialog::kEdit, L"10");
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), TestDialog::kEdit);
    EXPECT_EQ(dialog.SendDlgItemMessage(TestDialog::kEdit, EM_GETSEL), MAKELONG(0, 2));
    EXPECT_FALSE(later) << "nothing is exchanged after a refusal";
    EXPECT_EQ(number, 10) << "the member has got the value already";
    dialog.DestroyWindow();
}

TEST(Ddv, TheMessageBoxCarriesItsHelpId)
{
    verdict([](auto* x) { DDV_MinMaxInt(x, 1, 10, 20); });
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].helpId, static_cast<UINT>(AFX_IDP_PARSE_INT_RANGE));
    EXPECT_EQ(boxes()[0].type & MB_ICONMASK, static_cast<UINT>(MB_ICONEXCLAMATION));
}
