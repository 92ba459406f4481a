// CTime, CTimeSpan.
#include <afx.h>

#include <oledb.h>

namespace
{

constexpr LONGLONG kTicksPerSecond = 10'000'000;      // of FILETIME
constexpr LONGLONG kTicksTo1970 = 116444736000000000; // from 1601

__time64_t secondsOf(int year, int month, int day, int hour, int minute, int second, int daylight)
{
    tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = daylight;
    return ::_mktime64(&parts);
}

CString formatted(LPCTSTR format, const tm& parts)
{
    // The mark at the end tells a text that is empty or whole from one that does not fit.
    const CString marked = CString(format) + L"|";
    CString text;
    for (int room = 128; room <= 1 << 20; room *= 2) {
        const auto length =
            std::wcsftime(text.GetBuffer(room), static_cast<std::size_t>(room), marked, &parts);
        text.ReleaseBuffer(static_cast<int>(length));
        if (length > 0 && text[static_cast<int>(length) - 1] == L'|')
            return text.Left(static_cast<int>(length) - 1);
    }
    return CString();
}

CString loaded(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

} // namespace

// CTimeSpan

CTimeSpan::CTimeSpan(LONG days, int hours, int minutes, int seconds)
    : m_seconds(seconds + 60 * (minutes + 60 * (hours + __time64_t{24} * days)))
{
}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan other)
{
    return *this = *this + other;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan other)
{
    return *this = *this - other;
}

CString CTimeSpan::Format(LPCTSTR format) const
{
    CString text;
    for (; *format; ++format) {
        if (*format != L'%' || !format[1]) {
            text.AppendChar(*format);
            continue;
        }
        switch (*++format) {
        case L'D':
            text.AppendFormat(L"%I64d", GetDays());
            break;
        case L'H':
            text.AppendFormat(L"%02d", static_cast<int>(GetHours()));
            break;
        case L'M':
            text.AppendFormat(L"%02d", static_cast<int>(GetMinutes()));
            break;
        case L'S':
            text.AppendFormat(L"%02d", static_cast<int>(GetSeconds()));
            break;
        default:
            text.AppendChar(*format);
        }
    }
    return text;
}

CString CTimeSpan::Format(UINT formatId) const
{
    return Format(loaded(formatId).GetString());
}

// CTime

CTime::CTime(int year, int month, int day, int hour, int minute, int second, int daylight)
    : m_time(secondsOf(year, month, day, hour, minute, second, daylight))
{
}

CTime::CTime(WORD dosDate, WORD dosTime, int daylight)
    : CTime(1980 + (dosDate >> 9), dosDate >> 5 & 15, dosDate & 31, dosTime >> 11, dosTime >> 5 & 63,
            2 * (dosTime & 31), daylight)
{
}

CTime::CTime(const SYSTEMTIME& time, int daylight)
    : CTime(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, daylight)
{
}

CTime::CTime(const FILETIME& time, int)
    : m_time(((LONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime) - kTicksTo1970) / kTicksPerSecond)
{
}

CTime::CTime(const DBTIMESTAMP& time, int daylight)
    : CTime(time.year, time.month, time.day, time.hour, time.minute, time.second, daylight)
{
}

CTime WINAPI CTime::GetCurrentTime()
{
    return ::_time64(nullptr);
}

tm CTime::local() const
{
    tm parts{};
    GetLocalTm(&parts);
    return parts;
}

tm* CTime::GetLocalTm(tm* result) const
{
    return ::_localtime64_s(result, &m_time) == 0 ? result : nullptr;
}

tm* CTime::GetGmtTm(tm* result) const
{
    return ::_gmtime64_s(result, &m_time) == 0 ? result : nullptr;
}

int CTime::GetYear() const
{
    return local().tm_year + 1900;
}

int CTime::GetMonth() const
{
    return local().tm_mon + 1;
}

int CTime::GetDay() const
{
    return local().tm_mday;
}

int CTime::GetHour() const
{
    return local().tm_hour;
}

int CTime::GetMinute() const
{
    return local().tm_min;
}

int CTime::GetSecond() const
{
    return local().tm_sec;
}

int CTime::GetDayOfWeek() const
{
    return local().tm_wday + 1;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& time) const
{
    tm parts{};
    if (!GetLocalTm(&parts))
        return false;
    time = {};
    time.wYear = static_cast<WORD>(parts.tm_year + 1900);
    time.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    time.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    time.wDay = static_cast<WORD>(parts.tm_mday);
    time.wHour = static_cast<WORD>(parts.tm_hour);
    time.wMinute = static_cast<WORD>(parts.tm_min);
    time.wSecond = static_cast<WORD>(parts.tm_sec);
    return true;
}

bool CTime::GetAsDBTIMESTAMP(DBTIMESTAMP& time) const
{
    SYSTEMTIME parts;
    if (!GetAsSystemTime(parts))
        return false;
    time = {};
    time.year = static_cast<SHORT>(parts.wYear);
    time.month = parts.wMonth;
    time.day = parts.wDay;
    time.hour = parts.wHour;
    time.minute = parts.wMinute;
    time.second = parts.wSecond;
    return true;
}

CString CTime::Format(LPCTSTR format) const
{
    tm parts{};
    if (!GetLocalTm(&parts))
        AfxThrowInvalidArgException();
    return formatted(format, parts);
}

CString CTime::Format(UINT formatId) const
{
    return Format(loaded(formatId).GetString());
}

CString CTime::FormatGmt(LPCTSTR format) const
{
    tm parts{};
    if (!GetGmtTm(&parts))
        AfxThrowInvalidArgException();
    return formatted(format, parts);
}

CString CTime::FormatGmt(UINT formatId) const
{
    return FormatGmt(loaded(formatId).GetString());
}

CTime& CTime::operator+=(CTimeSpan span)
{
    return *this = *this + span;
}

CTime& CTime::operator-=(CTimeSpan span)
{
    return *this = *this - span;
}
