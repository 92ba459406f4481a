// Values of buttons, lists and sliders, tied controls, and what becomes of errors in an exchange.
#include "MemoryTemplate.h"
#include "TestDialog.h"

#include <testkit/TestApp.h>

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using namespace ovo::testkit;

namespace
{

constexpr int kEdit = 100;
constexpr int kRadio = 200;
constexpr int kCheck = 300;
constexpr int kList = 400;
constexpr int kCombo = 500;
constexpr int kDropList = 501;
constexpr int kSlider = 600;
constexpr int kScroll = 601;

class ExchangeDialog : public CDialog
{
public:
    std::function<void(CDataExchange*)> exchange;

    ExchangeDialog()
        : m_memory(L"Exchange")
    {
        m_memory.control(L"EDIT", kEdit, WS_TABSTOP | WS_BORDER)
            .control(L"BUTTON", kRadio, BS_AUTORADIOBUTTON | WS_GROUP)
            .control(L"STATIC", 999, 0, L"between")
            .control(L"BUTTON", kRadio + 1, BS_AUTORADIOBUTTON)
            .control(L"BUTTON", kRadio + 2, BS_AUTORADIOBUTTON)
            .control(L"BUTTON", kCheck, BS_AUTO3STATE | WS_GROUP)
            .control(L"LISTBOX", kList, WS_BORDER)
            .control(L"COMBOBOX", kCombo, CBS_DROPDOWN)
            .control(L"COMBOBOX", kDropList, CBS_DROPDOWNLIST)
            .control(TRACKBAR_CLASSW, kSlider, 0)
            .control(L"SCROLLBAR", kScroll, SBS_HORZ);
        CreateIndirect(m_memory.get());
        for (const wchar_t* tree : {L"Oak", L"Elm", L"Ash", L"Aspen"}) {
            const auto text = reinterpret_cast<LPARAM>(tree);
            SendDlgItemMessage(kList, LB_ADDSTRING, 0, text);
            SendDlgItemMessage(kCombo, CB_ADDSTRING, 0, text);
            SendDlgItemMessage(kDropList, CB_ADDSTRING, 0, text);
        }
        ::SetScrollRange(::GetDlgItem(m_hWnd, kScroll), SB_CTL, 0, 50, FALSE);
    }
    ~ExchangeDialog() override { DestroyWindow(); }

    /// The item that is selected in a list box or combo box; empty for none.
    std::wstring selected(int id)
    {
        const bool combo = id != kList;
        const LRESULT index = SendDlgItemMessage(id, combo ? UINT{CB_GETCURSEL} : UINT{LB_GETCURSEL});
        if (index < 0)
            return L"";
        wchar_t text[32] = L"";
        SendDlgItemMessage(id, combo ? UINT{CB_GETLBTEXT} : UINT{LB_GETTEXT}, static_cast<WPARAM>(index),
                           reinterpret_cast<LPARAM>(text));
        return text;
    }

    void select(int id, int index)
    {
        SendDlgItemMessage(id, id == kList ? UINT{LB_SETCURSEL} : UINT{CB_SETCURSEL},
                           static_cast<WPARAM>(index));
    }

protected:
    void DoDataExchange(CDataExchange* pass) override
    {
        if (exchange)
            exchange(pass);
    }

private:
    MemoryTemplate m_memory;
};

using ExchangeText = void(AFXAPI*)(CDataExchange*, int, CString&);

/// What is selected after `text` was loaded into a list whose third item was selected.
std::wstring selectedFor(ExchangeText exchangeText, int id, const wchar_t* text)
{
    ExchangeDialog dialog;
    dialog.select(id, 2);
    CString value(text);
    dialog.exchange = [&](CDataExchange* pass) { exchangeText(pass, id, value); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    return dialog.selected(id);
}

const std::vector<AskedBox>& boxes()
{
    return TestApp::instance().boxes();
}

} // namespace

// Buttons

TEST(DataExchange, ACheckBoxHasThreeStates)
{
    ExchangeDialog dialog;
    int state = BST_INDETERMINATE;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Check(pass, kCheck, state); };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kCheck), static_cast<UINT>(BST_INDETERMINATE));
    for (const int wanted : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE}) {
        dialog.CheckDlgButton(kCheck, static_cast<UINT>(wanted));
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_EQ(state, wanted);
    }
}

TEST(DataExchange, RadioButtonsAreAPositionInTheirGroup)
{
    ExchangeDialog dialog;
    int chosen = 2;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Radio(pass, kRadio, chosen); };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.GetCheckedRadioButton(kRadio, kRadio + 2), kRadio + 2)
        << "the label between does not count";
    dialog.CheckRadioButton(kRadio, kRadio + 2, kRadio + 1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(chosen, 1);
    chosen = -1;
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.GetCheckedRadioButton(kRadio, kRadio + 2), 0);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(chosen, -1);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kCheck), 0u) << "the next group is left alone";
}

// Lists

TEST(DataExchange, AListsIndexGoesBothWays)
{
    ExchangeDialog dialog;
    int list = 1;
    int combo = 2;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_LBIndex(pass, kList, list);
        DDX_CBIndex(pass, kCombo, combo);
    };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.selected(kList), L"Elm");
    EXPECT_EQ(dialog.selected(kCombo), L"Ash");
    dialog.select(kList, 0);
    dialog.select(kCombo, -1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(list, 0);
    EXPECT_EQ(combo, -1);
}

TEST(DataExchange, AListsTextSelectsByItsBeginning)
{
    const std::pair<ExchangeText, int> lists[] = {
        {&DDX_LBString, kList}, {&DDX_CBString, kCombo}, {&DDX_CBString, kDropList}};
    for (const auto& [exchangeText, id] : lists) {
        EXPECT_EQ(selectedFor(exchangeText, id, L"Elm"), L"Elm");
        EXPECT_EQ(selectedFor(exchangeText, id, L"as"), L"Ash") << "the first, whatever the case";
        EXPECT_EQ(selectedFor(exchangeText, id, L"Yew"), L"") << "nothing is left selected";
        EXPECT_EQ(selectedFor(exchangeText, id, L""), L"")
            << "not the first one, though all begin with nothing";
    }
}

TEST(DataExchange, AnExactTextSelectsTheWholeItemOnly)
{
    const std::pair<ExchangeText, int> lists[] = {
        {&DDX_LBStringExact, kList}, {&DDX_CBStringExact, kCombo}, {&DDX_CBStringExact, kDropList}};
    for (const auto& [exchangeText, id] : lists) {
        EXPECT_EQ(selectedFor(exchangeText, id, L"aspen"), L"Aspen");
        EXPECT_EQ(selectedFor(exchangeText, id, L"As"), L"");
    }
}

TEST(DataExchange, TheSelectedTextIsRead)
{
    ExchangeDialog dialog;
    CString list;
    CString combo;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_LBString(pass, kList, list);
        DDX_CBString(pass, kDropList, combo);
    };
    dialog.select(kList, 3);
    dialog.select(kDropList, 0);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(list, L"Aspen");
    EXPECT_STREQ(combo, L"Oak");
    dialog.select(kList, -1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(DataExchange, AComboBoxesEditControlShowsWhatNoItemHas)
{
    ExchangeDialog dialog;
    CString tree(L"Yew");
    dialog.exchange = [&](CDataExchange* pass) { DDX_CBString(pass, kCombo, tree); };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(textOf(::GetDlgItem(dialog, kCombo)), L"Yew");
    dialog.SetDlgItemText(kCombo, L"Beech");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(tree, L"Beech");
}

// Positions

TEST(DataExchange, SlidersAndScrollBarsAreTheirPosition)
{
    ExchangeDialog dialog;
    int slider = 42;
    int scroll = 17;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Slider(pass, kSlider, slider);
        DDX_Scroll(pass, kScroll, scroll);
    };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.SendDlgItemMessage(kSlider, TBM_GETPOS), 42);
    EXPECT_EQ(::GetScrollPos(::GetDlgItem(dialog, kScroll), SB_CTL), 17);
    dialog.SendDlgItemMessage(kSlider, TBM_SETPOS, TRUE, 7);
    ::SetScrollPos(::GetDlgItem(dialog, kScroll), SB_CTL, 8, FALSE);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(slider, 7);
    EXPECT_EQ(scroll, 8);
}

TEST(DataExchange, AnAddressIsFourBytesFromTheHighOne)
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_INTERNET_CLASSES};
    ASSERT_TRUE(::InitCommonControlsEx(&classes));
    MemoryTemplate memory(L"Address");
    memory.control(WC_IPADDRESSW, 1, 0);
    class Address : public CDialog
    {
    public:
        DWORD value = MAKEIPADDRESS(192, 168, 0, 7);
        void DoDataExchange(CDataExchange* exchange) override { DDX_IPAddress(exchange, 1, value); }
    } dialog;
    ASSERT_TRUE(dialog.CreateIndirect(memory.get()));
    DWORD shown = 0;
    dialog.SendDlgItemMessage(1, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&shown));
    EXPECT_EQ(shown, 0xC0A80007u);
    dialog.SendDlgItemMessage(1, IPM_SETADDRESS, 0, 0x0A000001);
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.value, 0x0A000001u);
    dialog.DestroyWindow();
}

// Tied controls

TEST(DataExchange, AControlIsTiedToItsMemberOnce)
{
    ExchangeDialog dialog;
    CEdit edit;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Control(pass, kEdit, edit); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_TRUE(dialog.UpdateData(FALSE)) << "again does nothing";
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog, kEdit)), &edit);
}

TEST(DataExchange, AControlIsNotTiedToTwoMembers)
{
    ExchangeDialog dialog;
    CEdit first;
    CEdit second;
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_Control(pass, kEdit, first);
        DDX_Control(pass, kEdit, second);
    };
    EXPECT_FALSE(dialog.UpdateData(FALSE));
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(boxes().size(), 1u) << "the programmer's mistake is reported";
}

TEST(DataExchange, ATiedControlIsReleasedWithItsWindow)
{
    CEdit edit;
    {
        ExchangeDialog dialog;
        dialog.exchange = [&](CDataExchange* pass) { DDX_Control(pass, kEdit, edit); };
        dialog.UpdateData(FALSE);
        EXPECT_NE(edit.m_hWnd, nullptr);
    }
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

// Errors

TEST(DataExchange, AMissingControlIsReported)
{
    ExchangeDialog dialog;
    int number = 7;
    dialog.exchange = [&](CDataExchange* pass) { DDX_Text(pass, 12345, number); };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(boxes().size(), 1u);
}

TEST(DataExchange, ARefusalOfTheProgramsOwnIsSilent)
{
    ExchangeDialog dialog;
    dialog.exchange = [&](CDataExchange* pass) {
        pass->PrepareCtrl(kList);
        pass->Fail(); // to be called when the user has been told
    };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(boxes().empty());
}

TEST(DataExchange, AnotherErrorReachesTheCaller)
{
    ExchangeDialog dialog;
    dialog.exchange = [](CDataExchange*) { throw std::runtime_error("oak"); };
    EXPECT_THROW(dialog.UpdateData(TRUE), std::runtime_error);
    EXPECT_TRUE(boxes().empty());
}

TEST(DataExchange, AnyWindowExchangesData)
{
    class Panel : public CWnd
    {
    public:
        CString name = L"Oak";
        void DoDataExchange(CDataExchange* exchange) override { DDX_Text(exchange, kEdit, name); }
    } panel;
    panel.CreateEx(0, AfxRegisterWndClass(0), nullptr, WS_POPUP, CRect(0, 0, 100, 50), nullptr, 0);
    CEdit edit;
    edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &panel, kEdit);
    EXPECT_TRUE(panel.UpdateData(FALSE));
    EXPECT_EQ(textOf(edit), L"Oak");
    panel.DestroyWindow();
}
