// COleDateTime and COleDateTimeSpan: days since 1899, as automation counts them.
#pragma once

#include <afx/Platform.h>
#include <afx/String.h>

#include <algorithm>
#include <ctime>

/// A length of time in days and parts of them.
class OVOMFC_API COleDateTimeSpan
{
public:
    enum DateTimeSpanStatus
    {
        valid = 0,
        invalid = 1,
        null = 2
    };

    COleDateTimeSpan() = default;
    COleDateTimeSpan(double days)
        : m_span(days)
    {
    }
    COleDateTimeSpan(LONG days, int hours, int minutes, int seconds);

    DateTimeSpanStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeSpanStatus status) { m_status = status; }
    void SetDateTimeSpan(LONG days, int hours, int minutes, int seconds);

    double GetTotalDays() const { return m_span; }
    double GetTotalHours() const;
    double GetTotalMinutes() const;
    double GetTotalSeconds() const;
    LONG GetDays() const;
    LONG GetHours() const; ///< -23 to 23, and so on.
    LONG GetMinutes() const;
    LONG GetSeconds() const;

    /// %D days, %H hours, %M minutes, %S seconds, %% a percent sign. Empty when null.
    CString Format(LPCTSTR format) const;

    operator double() const { return m_span; }
    // Null when one of the spans is null, else invalid when one of them is
    COleDateTimeSpan operator+(const COleDateTimeSpan& other) const
    {
        return combined(other, m_span + other.m_span);
    }
    COleDateTimeSpan operator-(const COleDateTimeSpan& other) const
    {
        return combined(other, m_span - other.m_span);
    }
    COleDateTimeSpan operator-() const { return combined(*this, -m_span); }

    double m_span = 0;
    DateTimeSpanStatus m_status = valid;

private:
    COleDateTimeSpan combined(const COleDateTimeSpan& other, double days) const
    {
        COleDateTimeSpan result(days);
        result.m_status = std::max(m_status, other.m_status);
        return result;
    }
};

/// A date with a time of day, from the year 100 to 9999, in local time.
class OVOMFC_API COleDateTime
{
public:
    enum DateTimeStatus
    {
        error = -1,
        valid = 0,
        invalid = 1,
        null = 2
    };

    COleDateTime() = default;
    COleDateTime(DATE date);
    COleDateTime(__time64_t time);
    COleDateTime(const SYSTEMTIME& time);
    COleDateTime(const FILETIME& time); ///< Coordinated universal time.
    COleDateTime(int year, int month, int day, int hour, int minute, int second);

    static COleDateTime WINAPI GetCurrentTime();

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }

    // 0 when valid, else the status; what is no date leaves the value as it was
    int SetDateTime(int year, int month, int day, int hour, int minute, int second);
    int SetDate(int year, int month, int day);
    int SetTime(int hour, int minute, int second);
    /// Reads a date in the form of the user's locale; false, and invalid, when it is none.
    bool ParseDateTime(LPCTSTR text, DWORD flags = 0, LCID locale = LANG_USER_DEFAULT);

    // -1 unless valid
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;                     ///< 1 is Sunday.
    int GetDayOfYear() const;                     ///< 1 is the first of January.
    bool GetAsSystemTime(SYSTEMTIME& time) const; ///< False unless valid.

    /// In the form of the user's locale; `flags` are VAR_TIMEVALUEONLY and the like. Empty when null.
    CString Format(DWORD flags = 0, LCID locale = LANG_USER_DEFAULT) const;
    /// In the manner of strftime.
    CString Format(LPCTSTR format) const;

    operator DATE() const { return m_dt; }
    // Null when one of the two is null; else invalid when one of them is, or the date outside of the years
    COleDateTime operator+(const COleDateTimeSpan& span) const;
    COleDateTime operator-(const COleDateTimeSpan& span) const;
    COleDateTimeSpan operator-(const COleDateTime& other) const;
    COleDateTime& operator+=(const COleDateTimeSpan& span);
    COleDateTime& operator-=(const COleDateTimeSpan& span);
    // Null dates are equal to each other; a null date has no place before or after another.
    bool operator==(const COleDateTime& other) const;
    bool operator!=(const COleDateTime& other) const { return !(*this == other); }
    bool operator<(const COleDateTime& other) const;
    bool operator>(const COleDateTime& other) const { return other < *this; }
    bool operator<=(const COleDateTime& other) const;
    bool operator>=(const COleDateTime& other) const { return other <= *this; }

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

private:
    int part(WORD SYSTEMTIME::*field) const;
    COleDateTime moved(double days) const;
};
