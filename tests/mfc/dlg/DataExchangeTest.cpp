// Values between controls and members.
#include "MemoryTemplate.h"

#include "support/TestApp.h"

#include <afxwin.h>

#include <gtest/gtest.h>

using namespace ovotest;

namespace
{

constexpr int kEdit = 100;
constexpr int kRadio = 200;

class ExchangeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;

    ExchangeDialog()
        : m_template(L"Exchange")
    {
        m_template.control(L"EDIT", kEdit, WS_TABSTOP | WS_BORDER)
            .control(L"BUTTON", kRadio, BS_AUTORADIOBUTTON | WS_GROUP)
            .control(L"BUTTON", kRadio + 1, BS_AUTORADIOBUTTON)
            .control(L"BUTTON", kRadio + 2, BS_AUTORADIOBUTTON)
            .control(L"BUTTON", 300, BS_AUTOCHECKBOX | WS_GROUP)
            .control(L"LISTBOX", 400, WS_BORDER)
            .control(L"COMBOBOX", 500, CBS_DROPDOWN);
        CreateIndirect(m_template.get(), nullptr, nullptr);
        for (const wchar_t* tree : {L"Oak", L"Elm", L"Ash"}) {
            SendDlgItemMessage(400, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(tree));
            SendDlgItemMessage(500, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(tree));
        }
    }
    ~ExchangeDialog() override { DestroyWindow(); }

    CString edit()
    {
        CString text;
        GetDlgItemText(kEdit, text);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* pass) override
    {
        if (exchange)
            exchange(pass);
    }

private:
    MemoryTemplate m_template;
};

const std::vector<AskedBox>& boxes()
{
    return TestApp::instance().boxes();
}

} // namespace

TEST(DataExchange, NumbersGoBothWays)
{
    ExchangeDialog dialog;
    int number = -42;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, kEdit, number); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_STREQ(dialog.edit(), L"-42");
    dialog.SetDlgItemText(kEdit, L" 1234 ");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(number, 1234);
}

TEST(DataExchange, ARealNumberKeepsItsDigits)
{
    ExchangeDialog dialog;
    double number = 0.1;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, kEdit, number); };
    dialog.UpdateData(FALSE);
    EXPECT_STREQ(dialog.edit(), L"0.1");
    dialog.SetDlgItemText(kEdit, L"-2.5e3");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(number, -2500.0);
}

TEST(DataExchange, WhatIsNoNumberIsRefusedAndTheMemberKept)
{
    for (const wchar_t* text : {L"", L"oak", L"12oak", L"99999999999", L"1.5"}) {
        TestApp::instance().forget();
        ExchangeDialog dialog;
        int number = 7;
        dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, kEdit, number); };
        dialog.SetDlgItemText(kEdit, text);
        EXPECT_FALSE(dialog.UpdateData(TRUE)) << text;
        EXPECT_EQ(number, 7);
        ASSERT_EQ(boxes().size(), 1u) << text;
        EXPECT_FALSE(boxes()[0].text.empty());
    }
}

TEST(DataExchange, UnsignedTypesRefuseNegativeAndTooLargeNumbers)
{
    ExchangeDialog dialog;
    BYTE small = 1;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, kEdit, small); };
    for (const wchar_t* text : {L"-1", L"256"}) {
        dialog.SetDlgItemText(kEdit, text);
        EXPECT_FALSE(dialog.UpdateData(TRUE)) << text;
    }
    dialog.SetDlgItemText(kEdit, L"255");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(small, 255);
}

TEST(DataExchange, ValuesOutOfBoundsAreRefusedWithTheBounds)
{
    ExchangeDialog dialog;
    int number = 5;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Text(pass, kEdit, number);
        DDV_MinMaxInt(pass, number, 1, 10);
    };
    for (const wchar_t* text : {L"0", L"11"}) {
        TestApp::instance().forget();
        dialog.SetDlgItemText(kEdit, text);
        EXPECT_FALSE(dialog.UpdateData(TRUE));
        ASSERT_EQ(boxes().size(), 1u);
        EXPECT_NE(boxes()[0].text.find(L"1"), std::wstring::npos);
        EXPECT_NE(boxes()[0].text.find(L"10"), std::wstring::npos);
    }
    for (const wchar_t* text : {L"1", L"10"}) {
        dialog.SetDlgItemText(kEdit, text);
        EXPECT_TRUE(dialog.UpdateData(TRUE));
    }
}

TEST(DataExchange, RadioButtonsAreAPositionInTheirGroup)
{
    ExchangeDialog dialog;
    int chosen = 2;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Radio(pass, kRadio, chosen); };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.GetCheckedRadioButton(kRadio, kRadio + 2), kRadio + 2);
    dialog.CheckRadioButton(kRadio, kRadio + 2, kRadio + 1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(chosen, 1);
    chosen = -1;
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.GetCheckedRadioButton(kRadio, kRadio + 2), 0);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(chosen, -1);
}

TEST(DataExchange, ChecksAndLists)
{
    ExchangeDialog dialog;
    int checked = 1;
    int index = 1;
    CString combo(L"Ash");
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Check(pass, 300, checked);
        DDX_LBIndex(pass, 400, index);
        DDX_CBString(pass, 500, combo);
    };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.IsDlgButtonChecked(300), 1u);
    EXPECT_EQ(dialog.SendDlgItemMessage(400, LB_GETCURSEL), 1);
    EXPECT_EQ(dialog.SendDlgItemMessage(500, CB_GETCURSEL), 2);
    dialog.CheckDlgButton(300, BST_UNCHECKED);
    dialog.SendDlgItemMessage(400, LB_SETCURSEL, 2);
    dialog.SetDlgItemText(500, L"Yew");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(checked, 0);
    EXPECT_EQ(index, 2);
    EXPECT_STREQ(combo, L"Yew");
}

TEST(DataExchange, AControlIsTiedToItsMemberOnce)
{
    ExchangeDialog dialog;
    CEdit edit;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Control(pass, kEdit, edit); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_TRUE(dialog.UpdateData(FALSE)) << "again does nothing";
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog, kEdit)), &edit);
}

TEST(DataExchange, AMissingControlIsReported)
{
    ExchangeDialog dialog;
    int number = 7;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, 999, number); };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(boxes().size(), 1u);
}
