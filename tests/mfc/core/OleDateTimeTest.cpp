// COleDateTime and COleDateTimeSpan.
#include "Texts.h"

#include <afxdisp.h>

TEST(OleDateTime, KnowsItsDateAndTimeOfDay)
{
    const COleDateTime date(2009, 3, 19, 22, 15, 7);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetYear(), 2009);
    EXPECT_EQ(date.GetMonth(), 3);
    EXPECT_EQ(date.GetDay(), 19);
    EXPECT_EQ(date.GetHour(), 22);
    EXPECT_EQ(date.GetMinute(), 15);
    EXPECT_EQ(date.GetSecond(), 7);
    EXPECT_EQ(date.GetDayOfWeek(), 5);
    EXPECT_EQ(date.GetDayOfYear(), 31 + 28 + 19);
    EXPECT_EQ(date.Format(L"%Y-%m-%d %H:%M:%S"), L"2009-03-19 22:15:07");
}

TEST(OleDateTime, CountsDaysFromTheEndOf1899)
{
    EXPECT_EQ(COleDateTime(1899, 12, 30, 0, 0, 0).m_dt, 0);
    EXPECT_EQ(COleDateTime(1900, 1, 1, 6, 0, 0).m_dt, 2.25);
    EXPECT_EQ(COleDateTime(1899, 12, 29, 6, 0, 0).m_dt, -1.25) << "the part of the day counts forwards";
    EXPECT_EQ(COleDateTime(1899, 12, 30, 0, 0, 0).GetDayOfWeek(), 7) << "a Saturday";
    EXPECT_EQ(COleDateTime(1899, 12, 28, 0, 0, 0).GetDayOfWeek(), 5);
}

TEST(OleDateTime, RefusesWhatIsNoDate)
{
    struct Case
    {
        int year, month, day, hour, minute, second;
    };
    const Case cases[] = {{2009, 2, 29, 0, 0, 0}, {2009, 4, 31, 0, 0, 0}, {2009, 13, 1, 0, 0, 0},
                          {2009, 0, 1, 0, 0, 0},  {2009, 1, 0, 0, 0, 0},  {99, 1, 1, 0, 0, 0},
                          {10000, 1, 1, 0, 0, 0}, {2009, 1, 1, 24, 0, 0}, {2009, 1, 1, 0, 60, 0},
                          {2009, 1, 1, 0, 0, 60}, {2009, 1, 32, 0, 0, 0}};
    for (const Case& c : cases) {
        COleDateTime date;
        EXPECT_EQ(date.SetDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second),
                  COleDateTime::invalid);
        EXPECT_EQ(date.GetYear(), COleDateTime::error);
        EXPECT_EQ(date.Format(L"%Y"), L"");
        SYSTEMTIME parts;
        EXPECT_FALSE(date.GetAsSystemTime(parts));
    }
    EXPECT_EQ(COleDateTime(3e6).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(2012, 2, 29, 0, 0, 0).GetStatus(), COleDateTime::valid);
}

TEST(OleDateTime, ARefusedDateLeavesTheValueAsItWas)
{
    COleDateTime date(2009, 3, 19, 22, 15, 7);
    const DATE before = date.m_dt;
    EXPECT_EQ(date.SetDateTime(1925, 2, 30, 0, 0, 0), COleDateTime::invalid);
    EXPECT_EQ(date.m_dt, before);
    EXPECT_EQ(date.SetDate(2009, 4, 31), COleDateTime::invalid);
    EXPECT_EQ(date.m_dt, before);
    EXPECT_EQ(date.SetTime(25, 30, 0), COleDateTime::invalid);
    EXPECT_EQ(date.m_dt, before);
}

TEST(OleDateTime, AnOperandWithoutAValueGivesNone)
{
    const COleDateTime some(2009, 3, 19, 0, 0, 0);
    COleDateTime nullDate = some;
    nullDate.SetStatus(COleDateTime::null);
    COleDateTime invalidDate = some;
    invalidDate.SetStatus(COleDateTime::invalid);
    const COleDateTimeSpan day(1, 0, 0, 0);
    COleDateTimeSpan nullSpan = day;
    nullSpan.SetStatus(COleDateTimeSpan::null);
    COleDateTimeSpan invalidSpan = day;
    invalidSpan.SetStatus(COleDateTimeSpan::invalid);

    EXPECT_EQ((some + day).GetStatus(), COleDateTime::valid);
    EXPECT_EQ((some + nullSpan).GetStatus(), COleDateTime::null);
    EXPECT_EQ((some - invalidSpan).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((nullDate - day).GetStatus(), COleDateTime::null);
    EXPECT_EQ((invalidDate + day).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ((nullDate + invalidSpan).GetStatus(), COleDateTime::null) << "null goes before invalid";
    EXPECT_EQ((invalidDate - nullSpan).GetStatus(), COleDateTime::null);
    COleDateTime sum = some;
    EXPECT_EQ((sum += nullSpan).GetStatus(), COleDateTime::null);

    EXPECT_EQ((some - some).GetStatus(), COleDateTimeSpan::valid);
    EXPECT_EQ((some - nullDate).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((invalidDate - some).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ((invalidDate - nullDate).GetStatus(), COleDateTimeSpan::null);
}

TEST(OleDateTime, MovesBySpansAcrossItsBeginning)
{
    const COleDateTimeSpan twelveHours(0, 12, 0, 0);
    COleDateTime date(1899, 12, 31, 6, 0, 0);
    for (const int day : {30, 30, 29, 29}) {
        date -= twelveHours;
        EXPECT_EQ(date.GetDay(), day);
    }
    EXPECT_EQ((COleDateTime(1899, 12, 31, 6, 0, 0) - date).GetTotalHours(), 48);
    EXPECT_LT(COleDateTime(1899, 12, 29, 1, 0, 0), COleDateTime(1899, 12, 29, 2, 0, 0));
}

TEST(OleDateTime, ANullDateHasNoPlace)
{
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    COleDateTime other;
    other.SetStatus(COleDateTime::null);
    const COleDateTime some(2009, 1, 1, 0, 0, 0);
    EXPECT_TRUE(none == other);
    EXPECT_FALSE(none == some);
    EXPECT_FALSE(none < some);
    EXPECT_FALSE(some < none);
    EXPECT_EQ(none.Format(), L"");
}

TEST(OleDateTime, ReadsWhatItWrites)
{
    const COleDateTime date(2009, 3, 19, 22, 15, 7);
    COleDateTime read;
    ASSERT_TRUE(read.ParseDateTime(date.Format()));
    EXPECT_EQ(read, date);
    EXPECT_FALSE(read.ParseDateTime(L"no date at all"));
    EXPECT_EQ(read.GetStatus(), COleDateTime::invalid);
}

TEST(OleDateTime, TakesTimesOfEveryKind)
{
    const CTime time(2009, 3, 19, 22, 15, 7);
    SYSTEMTIME parts;
    time.GetAsSystemTime(parts);
    EXPECT_EQ(COleDateTime(time.GetTime()), COleDateTime(parts));
    EXPECT_EQ(COleDateTime(parts).Format(L"%H:%M:%S"), L"22:15:07");
}

TEST(OleDateTimeSpan, IsSplitIntoItsParts)
{
    const COleDateTimeSpan span(3, 4, 5, 6);
    EXPECT_EQ(span.GetDays(), 3);
    EXPECT_EQ(span.GetHours(), 4);
    EXPECT_EQ(span.GetMinutes(), 5);
    EXPECT_EQ(span.GetSeconds(), 6);
    EXPECT_EQ(span.Format(L"%D %H:%M:%S"), L"3 04:05:06");
    EXPECT_EQ((-span).GetHours(), -4);
    EXPECT_DOUBLE_EQ(COleDateTimeSpan(1.5).GetTotalHours(), 36);
}

TEST(OleDateTimeSpan, AnOperandWithoutAValueGivesNone)
{
    const COleDateTimeSpan day(1, 0, 0, 0);
    COleDateTimeSpan none = day;
    none.SetStatus(COleDateTimeSpan::null);
    COleDateTimeSpan wrong = day;
    wrong.SetStatus(COleDateTimeSpan::invalid);

    EXPECT_EQ((day + day).GetStatus(), COleDateTimeSpan::valid);
    EXPECT_EQ((day + none).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((wrong - day).GetStatus(), COleDateTimeSpan::invalid);
    EXPECT_EQ((wrong + none).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((-none).GetStatus(), COleDateTimeSpan::null);
    EXPECT_EQ((-none).Format(L"%D"), L"");
}
