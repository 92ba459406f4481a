// Dates between controls and members.
#include "MemoryTemplate.h"

#include <afxdtctl.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

namespace
{

constexpr int kPicker = 100;
constexpr int kCalendar = 101;

class DateDialog : public CDialog
{
public:
    DateDialog()
        : m_memory(L"Dates")
    {
        m_memory.control(DATETIMEPICK_CLASSW, kPicker, WS_TABSTOP | DTS_SHOWNONE)
            .control(MONTHCAL_CLASSW, kCalendar, WS_TABSTOP);
        CreateIndirect(m_memory.get());
    }
    ~DateDialog() override { DestroyWindow(); }

    std::function<void(CDataExchange*)> exchange;
    CDateTimeCtrl& picker() { return *static_cast<CDateTimeCtrl*>(GetDlgItem(kPicker)); }
    CMonthCalCtrl& calendar() { return *static_cast<CMonthCalCtrl*>(GetDlgItem(kCalendar)); }

protected:
    void DoDataExchange(CDataExchange* pass) override
    {
        if (exchange)
            exchange(pass);
    }

private:
    MemoryTemplate m_memory;
};

template <class Date>
Date day(int year, int month, int dayOfMonth)
{
    return Date(year, month, dayOfMonth, 0, 0, 0);
}

template <class Date>
class DdxDates : public ::testing::Test
{
};
using Dates = ::testing::Types<CTime, COleDateTime>;
TYPED_TEST_SUITE(DdxDates, Dates);

} // namespace

TYPED_TEST(DdxDates, GoToThePickerAndBack)
{
    DateDialog dialog;
    TypeParam value = day<TypeParam>(2009, 3, 19);
    dialog.exchange = [&](CDataExchange* pass) { DDX_DateTimeCtrl(pass, kPicker, value); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    SYSTEMTIME shown{};
    EXPECT_EQ(dialog.picker().GetTime(&shown), DWORD{GDT_VALID});
    EXPECT_EQ(shown.wDay, 19);

    const TypeParam other = day<TypeParam>(2010, 12, 31);
    SYSTEMTIME parts;
    other.GetAsSystemTime(parts);
    dialog.picker().SetTime(&parts);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(value == other);
}

TYPED_TEST(DdxDates, GoToTheCalendarAndBack)
{
    DateDialog dialog;
    TypeParam value = day<TypeParam>(2009, 3, 19);
    dialog.exchange = [&](CDataExchange* pass) { DDX_MonthCalCtrl(pass, kCalendar, value); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    const TypeParam other = day<TypeParam>(2010, 12, 31);
    dialog.calendar().SetCurSel(other);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(value == other);
}

TYPED_TEST(DdxDates, AreLimitedInTheControl)
{
    DateDialog dialog;
    TypeParam value = day<TypeParam>(2009, 3, 19);
    const TypeParam min = day<TypeParam>(2009, 3, 1);
    const TypeParam max = day<TypeParam>(2009, 3, 31);
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_DateTimeCtrl(pass, kPicker, value);
        DDV_MinMaxDateTime(pass, value, &min, &max);
        DDX_MonthCalCtrl(pass, kCalendar, value);
        DDV_MinMaxMonth(pass, value, &min, static_cast<const TypeParam*>(nullptr));
    };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    TypeParam first{};
    TypeParam last{};
    EXPECT_EQ(dialog.picker().GetRange(&first, &last), DWORD{GDTR_MIN | GDTR_MAX});
    EXPECT_TRUE(first == min);
    EXPECT_TRUE(last == max);
    EXPECT_EQ(dialog.calendar().GetRange(&first, &last), DWORD{GDTR_MIN});
}

TEST(DdxNoDate, IsNullOrLeavesTheMember)
{
    DateDialog dialog;
    dialog.picker().SetTime();
    CTime time = day<CTime>(2009, 3, 19);
    COleDateTime date = day<COleDateTime>(2009, 3, 19);
    dialog.exchange = [&](CDataExchange* pass) {
        DDX_DateTimeCtrl(pass, kPicker, time);
        DDX_DateTimeCtrl(pass, kPicker, date);
    };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(time, day<CTime>(2009, 3, 19));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
}

TEST(DdxDateText, IsReadAsTheUserWritesDates)
{
    DateDialog dialog;
    CString text = day<COleDateTime>(2009, 3, 19).Format(VAR_DATEVALUEONLY);
    dialog.exchange = [&](CDataExchange* pass) { DDX_DateTimeCtrl(pass, kPicker, text); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    CTime shown;
    EXPECT_EQ(dialog.picker().GetTime(shown), DWORD{GDT_VALID});
    EXPECT_EQ(shown.GetDay(), 19);
    text.Empty();
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_FALSE(text.IsEmpty());
}
