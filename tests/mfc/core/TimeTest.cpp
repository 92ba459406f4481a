// CTime and CTimeSpan.
#include "Texts.h"

#include <oledb.h>

#include <afx.h>

TEST(Time, KnowsItsDateAndTimeOfDay)
{
    const CTime time(2009, 3, 19, 22, 15, 7);
    EXPECT_EQ(time.GetYear(), 2009);
    EXPECT_EQ(time.GetMonth(), 3);
    EXPECT_EQ(time.GetDay(), 19);
    EXPECT_EQ(time.GetHour(), 22);
    EXPECT_EQ(time.GetMinute(), 15);
    EXPECT_EQ(time.GetSecond(), 7);
    EXPECT_EQ(time.GetDayOfWeek(), 5) << "a Thursday; Sunday is 1";
}

TEST(Time, GoesThroughTheSystemsFormUnchanged)
{
    const CTime time(2012, 2, 29, 23, 59, 58);
    SYSTEMTIME parts;
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(parts.wDay, 29);
    EXPECT_EQ(parts.wDayOfWeek, 3);
    EXPECT_EQ(CTime(parts), time);
}

TEST(Time, OfAFileCountsFrom1970)
{
    const CTime begin(FILETIME{0xD53E8000, 0x019DB1DE});
    EXPECT_EQ(begin.GetTime(), 0);
    EXPECT_EQ(begin.FormatGmt(L"%Y-%m-%d %H:%M:%S"), L"1970-01-01 00:00:00");
}

TEST(Time, OfMsDosIsUnpacked)
{
    constexpr WORD date = (2009 - 1980) << 9 | 12 << 5 | 31;
    constexpr WORD time = 23 << 11 | 59 << 5 | 58 / 2;
    EXPECT_EQ(CTime(date, time), CTime(2009, 12, 31, 23, 59, 58));
    WORD systemDate = 0;
    WORD systemTime = 0;
    SYSTEMTIME parts{2044, 2, 0, 29, 0, 1, 2, 0};
    FILETIME packed;
    ASSERT_TRUE(::SystemTimeToFileTime(&parts, &packed));
    ASSERT_TRUE(::FileTimeToDosDateTime(&packed, &systemDate, &systemTime));
    EXPECT_EQ(CTime(systemDate, systemTime), CTime(2044, 2, 29, 0, 1, 2)) << "what the system packs";
}

TEST(Time, OfADataSourceIsLocalAndLosesItsFraction)
{
    const DBTIMESTAMP stamp{2012, 2, 29, 23, 59, 58, 999'999'999};
    const CTime time(stamp);
    EXPECT_EQ(time, CTime(2012, 2, 29, 23, 59, 58));
    DBTIMESTAMP again{1, 2, 3, 4, 5, 6, 7};
    ASSERT_TRUE(time.GetAsDBTIMESTAMP(again));
    EXPECT_EQ(std::tuple(again.year, again.month, again.day), std::tuple(2012, 2, 29));
    EXPECT_EQ(std::tuple(again.hour, again.minute, again.second), std::tuple(23, 59, 58));
    EXPECT_EQ(again.fraction, 0u);
}

TEST(Time, OfADataSourceTakesTheDaylightThatIsSaid)
{
    const DBTIMESTAMP summer{2009, 7, 1, 12, 0, 0, 0};
    EXPECT_EQ(CTime(summer, 0), CTime(2009, 7, 1, 12, 0, 0, 0));
    EXPECT_EQ(CTime(summer, 1), CTime(2009, 7, 1, 12, 0, 0, 1));
    EXPECT_EQ(CTime(summer), CTime(2009, 7, 1, 12, 0, 0));
}

TEST(Time, IsFormattedAtAnyLength)
{
    const CTime time(2009, 12, 24, 8, 5, 0);
    EXPECT_EQ(time.Format(L"%d.%m.%Y %H:%M"), L"24.12.2009 08:05");
    EXPECT_EQ(time.Format(L""), L"");
    const std::wstring filler(400, L'x');
    EXPECT_EQ(time.Format((filler + L"%Y").c_str()), (filler + L"2009").c_str());
}

TEST(Time, MovesBySpans)
{
    const CTime time(2009, 12, 31, 23, 59, 59);
    EXPECT_EQ(time + CTimeSpan(0, 0, 0, 1), CTime(2010, 1, 1, 0, 0, 0));
    EXPECT_EQ((CTime(2010, 1, 2, 0, 0, 0) - time).GetTotalSeconds(), 24 * 3600 + 1);
    CTime moved = time;
    moved -= CTimeSpan(1, 0, 0, 0);
    EXPECT_EQ(moved, CTime(2009, 12, 30, 23, 59, 59));
    EXPECT_LT(moved, time);
}

TEST(Time, IsNow)
{
    const auto before = ::_time64(nullptr);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_GE(now.GetTime(), before);
    EXPECT_LE(now.GetTime(), ::_time64(nullptr));
}

TEST(TimeSpan, IsSplitIntoItsParts)
{
    const CTimeSpan span(3, 4, 5, 6);
    EXPECT_EQ(span.GetDays(), 3);
    EXPECT_EQ(span.GetHours(), 4);
    EXPECT_EQ(span.GetMinutes(), 5);
    EXPECT_EQ(span.GetSeconds(), 6);
    EXPECT_EQ(span.GetTotalHours(), 76);
    EXPECT_EQ(span.GetTotalMinutes(), 76 * 60 + 5);
    EXPECT_EQ(span.Format(L"%D days %H:%M:%S, 100%%"), L"3 days 04:05:06, 100%");
    EXPECT_EQ((span - CTimeSpan(3, 0, 0, 0)).GetDays(), 0);
    EXPECT_GT(span, CTimeSpan(3, 4, 5, 5));
}

template <class Call>
static bool isRefused(Call call)
{
    try {
        call();
        return false;
    } catch (CInvalidArgException* exception) {
        exception->Delete();
        return true;
    }
}

TEST(Time, OutsideOfItsRangeCannotBeWritten)
{
    const CTime tooEarly(-1 - 24 * 3600);
    const CTime tooLate(__time64_t{1} << 40);
    for (const CTime& time : {tooEarly, tooLate}) {
        EXPECT_TRUE(isRefused([&] { time.Format(L"%Y"); }));
        EXPECT_TRUE(isRefused([&] { time.FormatGmt(L"%Y"); }));
        SYSTEMTIME parts{};
        EXPECT_FALSE(time.GetAsSystemTime(parts));
        DBTIMESTAMP stamp{1, 2, 3, 4, 5, 6, 7};
        EXPECT_FALSE(time.GetAsDBTIMESTAMP(stamp));
        EXPECT_EQ(stamp.year, 1);
    }
    EXPECT_EQ(CTime(0).FormatGmt(L"%Y-%m-%d %H:%M:%S"), L"1970-01-01 00:00:00");
}
