// CTime and CTimeSpan: seconds since 1970.
#pragma once

#include <afx/Platform.h>
#include <afx/String.h>

#include <compare>
#include <ctime>

struct tagDBTIMESTAMP; // DBTIMESTAMP of oledb.h

/// A length of time in whole seconds.
class OVOMFC_API CTimeSpan
{
public:
    CTimeSpan() = default;
    CTimeSpan(__time64_t seconds)
        : m_seconds(seconds)
    {
    }
    CTimeSpan(LONG days, int hours, int minutes, int seconds);

    // As days, hours, minutes and seconds; negative ones for a negative span
    LONGLONG GetDays() const { return m_seconds / (24 * 3600); }
    LONGLONG GetTotalHours() const { return m_seconds / 3600; }
    LONG GetHours() const { return static_cast<LONG>(GetTotalHours() % 24); }
    LONGLONG GetTotalMinutes() const { return m_seconds / 60; }
    LONG GetMinutes() const { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONGLONG GetTotalSeconds() const { return m_seconds; }
    LONG GetSeconds() const { return static_cast<LONG>(m_seconds % 60); }
    __time64_t GetTimeSpan() const { return m_seconds; }

    /// %D days, %H hours, %M minutes, %S seconds, %% a percent sign.
    CString Format(LPCTSTR format) const;
    CString Format(UINT formatId) const;

    CTimeSpan operator+(CTimeSpan other) const { return m_seconds + other.m_seconds; }
    CTimeSpan operator-(CTimeSpan other) const { return m_seconds - other.m_seconds; }
    CTimeSpan& operator+=(CTimeSpan other);
    CTimeSpan& operator-=(CTimeSpan other);
    auto operator<=>(const CTimeSpan&) const = default;

private:
    __time64_t m_seconds = 0;
};

/// A moment, counted in seconds since the first of January 1970, and its date and time of day in the local
/// time zone.
class OVOMFC_API CTime
{
public:
    CTime() = default;
    CTime(__time64_t time)
        : m_time(time)
    {
    }
    /// Local time; `month` and `day` count from 1. `daylight` is 0 for standard time, 1 for daylight saving
    /// time, -1 to let the system say.
    CTime(int year, int month, int day, int hour, int minute, int second, int daylight = -1);
    /// Local time as MS-DOS packs it: days, months and years from 1980 in `dosDate`, two seconds, minutes and
    /// hours in `dosTime`.
    CTime(WORD dosDate, WORD dosTime, int daylight = -1);
    CTime(const SYSTEMTIME& time, int daylight = -1); ///< Local time.
    CTime(const FILETIME& time, int daylight = -1);   ///< Coordinated universal time.
    /// Local time of a data source, whose parts of a second are left out. Callers include `oledb.h`.
    CTime(const tagDBTIMESTAMP& time, int daylight = -1);

    static CTime WINAPI GetCurrentTime();

    __time64_t GetTime() const { return m_time; }
    int GetYear() const;
    int GetMonth() const; ///< 1 to 12.
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const; ///< 1 is Sunday.
    tm* GetLocalTm(tm* result) const;
    tm* GetGmtTm(tm* result) const;
    bool GetAsSystemTime(SYSTEMTIME& time) const; ///< Local time; false when it cannot be told.
    /// Local time in whole seconds; false, and `time` as it was, when it cannot be told.
    bool GetAsDBTIMESTAMP(tagDBTIMESTAMP& time) const;

    /// In the manner of strftime.
    CString Format(LPCTSTR format) const;
    CString Format(UINT formatId) const;
    CString FormatGmt(LPCTSTR format) const;
    CString FormatGmt(UINT formatId) const;

    CTimeSpan operator-(CTime other) const { return m_time - other.m_time; }
    CTime operator+(CTimeSpan span) const { return m_time + span.GetTimeSpan(); }
    CTime operator-(CTimeSpan span) const { return m_time - span.GetTimeSpan(); }
    CTime& operator+=(CTimeSpan span);
    CTime& operator-=(CTimeSpan span);
    auto operator<=>(const CTime&) const = default;

private:
    tm local() const;

    __time64_t m_time = 0;
};
