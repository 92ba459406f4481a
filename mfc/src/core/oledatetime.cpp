// COleDateTime, COleDateTimeSpan.
#include <atlcomtime.h>
#include <afx.h>

#include <cmath>

namespace
{

constexpr double kSecondsPerDay = 86400;
constexpr DATE kMin = -657434; // the first of January 100
constexpr DATE kEnd = 2958466; // the first of January 10000

bool isDate(DATE date)
{
    return date >= kMin && date < kEnd;
}

// The part of the day counts forwards on days before 1899 too: -1.25 lies after -1. Straight lines do not, so
// that they can be added and compared.
double straight(DATE date)
{
    const double day = std::trunc(date);
    return date >= 0 ? date : day + (day - date);
}

DATE bent(double line)
{
    const double day = std::floor(line);
    return line >= 0 ? line : day - (line - day);
}

/// The system rounds away parts of a second and knows which days a month has.
bool systemTimeOf(DATE date, SYSTEMTIME& time)
{
    return ::VariantTimeToSystemTime(date, &time) != FALSE;
}

/// A date that a span of this status was added to. Null goes before invalid.
COleDateTime withStatusOf(const COleDateTimeSpan& span, COleDateTime date)
{
    if (span.GetStatus() == COleDateTimeSpan::null)
        date.SetStatus(COleDateTime::null);
    else if (span.GetStatus() != COleDateTimeSpan::valid && date.GetStatus() == COleDateTime::valid)
        date.SetStatus(COleDateTime::invalid);
    return date;
}

long long wholeSeconds(double days)
{
    return std::llround(days * kSecondsPerDay);
}

} // namespace

// COleDateTimeSpan

COleDateTimeSpan::COleDateTimeSpan(LONG days, int hours, int minutes, int seconds)
{
    SetDateTimeSpan(days, hours, minutes, seconds);
}

void COleDateTimeSpan::SetDateTimeSpan(LONG days, int hours, int minutes, int seconds)
{
    m_span = days + (hours * 3600.0 + minutes * 60.0 + seconds) / kSecondsPerDay;
    m_status = valid;
}

double COleDateTimeSpan::GetTotalHours() const
{
    return m_span * 24;
}

double COleDateTimeSpan::GetTotalMinutes() const
{
    return m_span * 24 * 60;
}

double COleDateTimeSpan::GetTotalSeconds() const
{
    return m_span * kSecondsPerDay;
}

LONG COleDateTimeSpan::GetDays() const
{
    return static_cast<LONG>(wholeSeconds(m_span) / 86400);
}

LONG COleDateTimeSpan::GetHours() const
{
    return static_cast<LONG>(wholeSeconds(m_span) / 3600 % 24);
}

LONG COleDateTimeSpan::GetMinutes() const
{
    return static_cast<LONG>(wholeSeconds(m_span) / 60 % 60);
}

LONG COleDateTimeSpan::GetSeconds() const
{
    return static_cast<LONG>(wholeSeconds(m_span) % 60);
}

CString COleDateTimeSpan::Format(LPCTSTR format) const
{
    return m_status == valid ? CTimeSpan(wholeSeconds(m_span)).Format(format) : CString();
}

// COleDateTime

COleDateTime::COleDateTime(DATE date)
    : m_dt(date)
    , m_status(isDate(date) ? valid : invalid)
{
}

COleDateTime::COleDateTime(__time64_t time)
{
    SYSTEMTIME parts;
    *this = CTime(time).GetAsSystemTime(parts) ? COleDateTime(parts) : COleDateTime(kEnd);
}

COleDateTime::COleDateTime(const SYSTEMTIME& time)
{
    SYSTEMTIME whole = time;
    whole.wMilliseconds = 0;
    m_status = ::SystemTimeToVariantTime(&whole, &m_dt) ? valid : invalid;
}

COleDateTime::COleDateTime(const FILETIME& time)
{
    FILETIME local;
    SYSTEMTIME parts;
    if (::FileTimeToLocalFileTime(&time, &local) && ::FileTimeToSystemTime(&local, &parts))
        *this = COleDateTime(parts);
    else
        m_status = invalid;
}

COleDateTime::COleDateTime(int year, int month, int day, int hour, int minute, int second)
{
    SetDateTime(year, month, day, hour, minute, second);
}

COleDateTime WINAPI COleDateTime::GetCurrentTime()
{
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    return now;
}

int COleDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second)
{
    SYSTEMTIME parts{};
    parts.wYear = static_cast<WORD>(year);
    parts.wMonth = static_cast<WORD>(month);
    parts.wDay = static_cast<WORD>(day);
    parts.wHour = static_cast<WORD>(hour);
    parts.wMinute = static_cast<WORD>(minute);
    parts.wSecond = static_cast<WORD>(second);
    // The system takes days beyond the month's end for days of the next one, and years of two digits for this
    // century's.
    SYSTEMTIME back{};
    DATE date = 0;
    const bool inRange = year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= 31 &&
                         hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
    const bool exists = inRange && ::SystemTimeToVariantTime(&parts, &date) && systemTimeOf(date, back) &&
                        back.wDay == parts.wDay;
    if (exists)
        m_dt = date;
    m_status = exists ? valid : invalid;
    return m_status;
}

int COleDateTime::SetDate(int year, int month, int day)
{
    return SetDateTime(year, month, day, 0, 0, 0);
}

int COleDateTime::SetTime(int hour, int minute, int second)
{
    // A time of day alone is one of the first day.
    return SetDateTime(1899, 12, 30, hour, minute, second);
}

bool COleDateTime::ParseDateTime(LPCTSTR text, DWORD flags, LCID locale)
{
    m_status =
        SUCCEEDED(::VarDateFromStr(const_cast<LPOLESTR>(text), locale, flags, &m_dt)) ? valid : invalid;
    return m_status == valid;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& time) const
{
    return m_status == valid && systemTimeOf(m_dt, time);
}

int COleDateTime::part(WORD SYSTEMTIME::*field) const
{
    SYSTEMTIME parts;
    return GetAsSystemTime(parts) ? int{parts.*field} : int{error};
}

int COleDateTime::GetYear() const
{
    return part(&SYSTEMTIME::wYear);
}

int COleDateTime::GetMonth() const
{
    return part(&SYSTEMTIME::wMonth);
}

int COleDateTime::GetDay() const
{
    return part(&SYSTEMTIME::wDay);
}

int COleDateTime::GetHour() const
{
    return part(&SYSTEMTIME::wHour);
}

int COleDateTime::GetMinute() const
{
    return part(&SYSTEMTIME::wMinute);
}

int COleDateTime::GetSecond() const
{
    return part(&SYSTEMTIME::wSecond);
}

int COleDateTime::GetDayOfWeek() const
{
    if (m_status != valid)
        return error;
    // The day 0 was a Saturday.
    const int day = static_cast<int>(std::floor(straight(m_dt)));
    return ((day + 6) % 7 + 7) % 7 + 1;
}

int COleDateTime::GetDayOfYear() const
{
    if (m_status != valid)
        return error;
    const COleDateTime newYear(GetYear(), 1, 1, 0, 0, 0);
    return static_cast<int>(std::floor(straight(m_dt)) - straight(newYear.m_dt)) + 1;
}

CString COleDateTime::Format(DWORD flags, LCID locale) const
{
    BSTR text = nullptr;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, locale, flags, &text)))
        return CString();
    const CString result(text);
    ::SysFreeString(text);
    return result;
}

CString COleDateTime::Format(LPCTSTR format) const
{
    SYSTEMTIME parts;
    if (!GetAsSystemTime(parts))
        return CString();
    tm date{};
    date.tm_year = parts.wYear - 1900;
    date.tm_mon = parts.wMonth - 1;
    date.tm_mday = parts.wDay;
    date.tm_hour = parts.wHour;
    date.tm_min = parts.wMinute;
    date.tm_sec = parts.wSecond;
    date.tm_wday = GetDayOfWeek() - 1;
    date.tm_yday = GetDayOfYear() - 1;
    wchar_t text[256];
    return CString(text, static_cast<int>(std::wcsftime(text, std::size(text), format, &date)));
}

COleDateTime COleDateTime::moved(double days) const
{
    if (m_status != valid)
        return *this;
    return COleDateTime(bent(straight(m_dt) + days));
}

COleDateTime COleDateTime::operator+(const COleDateTimeSpan& span) const
{
    return withStatusOf(span, moved(span.m_span));
}

COleDateTime COleDateTime::operator-(const COleDateTimeSpan& span) const
{
    return withStatusOf(span, moved(-span.m_span));
}

COleDateTimeSpan COleDateTime::operator-(const COleDateTime& other) const
{
    COleDateTimeSpan span = straight(m_dt) - straight(other.m_dt);
    if (m_status == null || other.m_status == null)
        span.SetStatus(COleDateTimeSpan::null);
    else if (m_status != valid || other.m_status != valid)
        span.SetStatus(COleDateTimeSpan::invalid);
    return span;
}

COleDateTime& COleDateTime::operator+=(const COleDateTimeSpan& span)
{
    return *this = *this + span;
}

COleDateTime& COleDateTime::operator-=(const COleDateTimeSpan& span)
{
    return *this = *this - span;
}

bool COleDateTime::operator==(const COleDateTime& other) const
{
    return m_status == other.m_status && (m_status == null || m_dt == other.m_dt);
}

bool COleDateTime::operator<(const COleDateTime& other) const
{
    return m_status == valid && other.m_status == valid && straight(m_dt) < straight(other.m_dt);
}

bool COleDateTime::operator<=(const COleDateTime& other) const
{
    return *this == other || *this < other;
}
