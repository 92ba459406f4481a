// Date and time pickers, and month calendars.
#include <afxdtctl.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

CTime day(int year, int month, int dayOfMonth)
{
    return CTime(year, month, dayOfMonth, 0, 0, 0);
}

COleDateTime oleDay(int year, int month, int dayOfMonth)
{
    return COleDateTime(year, month, dayOfMonth, 0, 0, 0);
}

class Picker : public ::testing::Test
{
protected:
    Picker() { m_picker.Create(WS_CHILD | WS_VISIBLE | DTS_SHOWNONE, CRect(0, 0, 160, 24), &m_parent, 7); }

    RecordingParent m_parent;
    CDateTimeCtrl m_picker;
};

class Calendar : public ::testing::Test
{
protected:
    void make(DWORD style = 0)
    {
        ASSERT_TRUE(m_calendar.Create(WS_CHILD | WS_VISIBLE | style, CPoint(5, 6), &m_parent, 7));
    }

    RecordingParent m_parent;
    CMonthCalCtrl m_calendar;
};

} // namespace

TEST_F(Picker, KeepsATimeOfAnyKind)
{
    const CTime time(2009, 3, 19, 22, 15, 7);
    EXPECT_TRUE(m_picker.SetTime(&time));
    CTime back;
    EXPECT_EQ(m_picker.GetTime(back), DWORD{GDT_VALID});
    EXPECT_EQ(back, time);

    const COleDateTime date(2010, 4, 20, 1, 2, 3);
    EXPECT_TRUE(m_picker.SetTime(date));
    COleDateTime oleBack;
    EXPECT_TRUE(m_picker.GetTime(oleBack));
    EXPECT_EQ(oleBack, date);
    SYSTEMTIME parts{};
    EXPECT_EQ(m_picker.GetTime(&parts), DWORD{GDT_VALID});
    EXPECT_EQ(parts.wMonth, 4);
}

TEST_F(Picker, MayHaveNoDate)
{
    EXPECT_TRUE(m_picker.SetTime(static_cast<const CTime*>(nullptr)));
    CTime time = day(2009, 3, 19);
    EXPECT_EQ(m_picker.GetTime(time), static_cast<DWORD>(GDT_NONE));
    EXPECT_EQ(time, day(2009, 3, 19)) << "left as it was";
    COleDateTime date;
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);

    m_picker.SetTime(oleDay(2009, 3, 19));
    EXPECT_TRUE(m_picker.SetTime(date)) << "a null date";
    EXPECT_EQ(m_picker.GetTime(time), static_cast<DWORD>(GDT_NONE));
    date.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(m_picker.SetTime(date));
}

TEST_F(Picker, KnowsItsBounds)
{
    const CTime min = day(2009, 1, 1);
    const CTime max = day(2009, 12, 31);
    EXPECT_TRUE(m_picker.SetRange(&min, &max));
    CTime first, last;
    EXPECT_EQ(m_picker.GetRange(&first, &last), DWORD{GDTR_MIN | GDTR_MAX});
    EXPECT_EQ(first, min);
    EXPECT_EQ(last, max);

    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    const COleDateTime until = oleDay(2010, 6, 30);
    EXPECT_TRUE(m_picker.SetRange(&none, &until));
    COleDateTime oleFirst, oleLast;
    EXPECT_EQ(m_picker.GetRange(&oleFirst, &oleLast), DWORD{GDTR_MAX});
    EXPECT_EQ(oleLast, until);
}

TEST_F(Picker, ShowsItsFormat)
{
    m_picker.SetTime(oleDay(2009, 3, 19));
    EXPECT_TRUE(m_picker.SetFormat(L"yyyy'/'MM'/'dd"));
    CString text;
    m_picker.GetWindowText(text);
    EXPECT_EQ(text, L"2009/03/19");
}

TEST_F(Picker, HasACalendarOnlyWhileItIsShown)
{
    EXPECT_EQ(m_picker.GetMonthCalCtrl() ? ::IsWindowVisible(m_picker.GetMonthCalCtrl()->m_hWnd) : FALSE,
              FALSE);
    m_picker.SetMonthCalColor(MCSC_TITLEBK, RGB(1, 2, 3));
    EXPECT_EQ(m_picker.GetMonthCalColor(MCSC_TITLEBK), RGB(1, 2, 3));
}

TEST_F(Calendar, OfOneMonthIsAsLargeAsItNeedsToBe)
{
    make();
    CRect needed, rect;
    EXPECT_TRUE(m_calendar.GetMinReqRect(&needed));
    m_calendar.GetWindowRect(&rect);
    EXPECT_EQ(rect.Size(), needed.Size());
    EXPECT_GT(rect.Width(), 50);
}

TEST_F(Calendar, SelectsADay)
{
    make();
    EXPECT_TRUE(m_calendar.SetCurSel(day(2009, 3, 19)));
    CTime time;
    EXPECT_TRUE(m_calendar.GetCurSel(time));
    EXPECT_EQ(time, day(2009, 3, 19));
    EXPECT_TRUE(m_calendar.SetCurSel(oleDay(2010, 4, 20)));
    COleDateTime date;
    EXPECT_TRUE(m_calendar.GetCurSel(date));
    EXPECT_EQ(date, oleDay(2010, 4, 20));
    EXPECT_FALSE(m_calendar.GetSelRange(time, time)) << "there is only one";
}

TEST_F(Calendar, SelectsDays)
{
    make(MCS_MULTISELECT);
    EXPECT_TRUE(m_calendar.SetMaxSelCount(10));
    EXPECT_EQ(m_calendar.GetMaxSelCount(), 10);
    EXPECT_TRUE(m_calendar.SetSelRange(day(2009, 3, 19), day(2009, 3, 23)));
    CTime first, last;
    EXPECT_TRUE(m_calendar.GetSelRange(first, last));
    EXPECT_EQ(first, day(2009, 3, 19));
    EXPECT_EQ(last, day(2009, 3, 23));
    EXPECT_FALSE(m_calendar.SetSelRange(day(2009, 3, 1), day(2009, 3, 31))) << "too many";
    EXPECT_FALSE(m_calendar.GetCurSel(first));
}

TEST_F(Calendar, KnowsItsBoundsAndWhatItShows)
{
    make();
    m_calendar.SetCurSel(day(2009, 3, 19));
    const CTime min = day(2009, 1, 5);
    EXPECT_TRUE(m_calendar.SetRange(&min, static_cast<const CTime*>(nullptr)));
    CTime first, last;
    EXPECT_EQ(m_calendar.GetRange(&first, &last), DWORD{GDTR_MIN});
    EXPECT_EQ(first, min);
    EXPECT_EQ(m_calendar.GetMonthRange(first, last, GMR_VISIBLE), 1);
    EXPECT_EQ(first, day(2009, 3, 1));
    EXPECT_EQ(last, day(2009, 3, 31));
}

TEST_F(Calendar, HasItsToday)
{
    make();
    const CTime today = day(2009, 3, 19);
    m_calendar.SetToday(&today);
    CTime back;
    EXPECT_TRUE(m_calendar.GetToday(back));
    EXPECT_EQ(back, today);
    m_calendar.SetToday(oleDay(2010, 4, 20));
    COleDateTime date;
    EXPECT_TRUE(m_calendar.GetToday(date));
    EXPECT_EQ(date, oleDay(2010, 4, 20));
}

TEST_F(Calendar, HasSettings)
{
    make();
    int before = -1;
    m_calendar.SetFirstDayOfWeek(2);
    m_calendar.SetFirstDayOfWeek(0, &before);
    EXPECT_EQ(before, 2);
    EXPECT_EQ(m_calendar.GetFirstDayOfWeek(), 0);
    m_calendar.SetMonthDelta(3);
    EXPECT_EQ(m_calendar.GetMonthDelta(), 3);
    m_calendar.SetColor(MCSC_TITLEBK, RGB(1, 2, 3));
    EXPECT_EQ(m_calendar.GetColor(MCSC_TITLEBK), RGB(1, 2, 3));
}

TEST_F(Calendar, TellsWhatLiesUnderAPoint)
{
    make();
    CRect rect;
    m_calendar.GetClientRect(&rect);
    MCHITTESTINFO hit{};
    hit.pt = rect.CenterPoint();
    EXPECT_EQ(m_calendar.HitTest(&hit) & MCHT_CALENDAR, DWORD{MCHT_CALENDAR});
    hit.pt = CPoint(rect.Width() / 2, 12);
    EXPECT_EQ(m_calendar.HitTest(&hit) & MCHT_TITLE, DWORD{MCHT_TITLE});
}
