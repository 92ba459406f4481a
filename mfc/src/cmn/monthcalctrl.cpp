#include "dates.h"

#include <afxdtctl.h>

#include <detail/send.h>

using afxdetail::DateRange;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

namespace
{

// A calendar leaves the time of day of what it gives undefined.
void assignDay(CTime& to, const SYSTEMTIME& from)
{
    to = CTime(afxdetail::dayOf(from));
}

void assignDay(COleDateTime& to, const SYSTEMTIME& from)
{
    to = COleDateTime(afxdetail::dayOf(from));
}

/// Asks for one day: `get` fills it in and says whether it did.
template <class Date, class Get>
BOOL getDay(Date& date, Get get)
{
    SYSTEMTIME parts{};
    if (!get(&parts))
        return FALSE;
    assignDay(date, parts);
    return TRUE;
}

/// Asks for two days, likewise; gives what `get` gives.
template <class Date, class Get>
auto getDays(Date& min, Date& max, Get get)
{
    SYSTEMTIME parts[2]{};
    const auto result = get(&parts[0], &parts[1]);
    if (result) {
        assignDay(min, parts[0]);
        assignDay(max, parts[1]);
    }
    return result;
}

} // namespace

CMonthCalCtrl::CMonthCalCtrl() = default;

BOOL CMonthCalCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(MONTHCAL_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CMonthCalCtrl::Create(DWORD style, const POINT& place, CWnd* parent, UINT id)
{
    return Create(style, CRect(place, CSize(0, 0)), parent, id) && SizeMinReq();
}

BOOL CMonthCalCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, MONTHCAL_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

// The day that is selected

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME date) const
{
    return send<BOOL>(*this, MCM_GETCURSEL, 0, date);
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime& date) const
{
    return getDay(date, [this](LPSYSTEMTIME day) { return GetCurSel(day); });
}

BOOL CMonthCalCtrl::GetCurSel(CTime& date) const
{
    return getDay(date, [this](LPSYSTEMTIME day) { return GetCurSel(day); });
}

BOOL CMonthCalCtrl::SetCurSel(const LPSYSTEMTIME date)
{
    return send<BOOL>(*this, MCM_SETCURSEL, 0, date);
}

BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& date)
{
    SYSTEMTIME day;
    return date.GetAsSystemTime(day) && SetCurSel(&day);
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& date)
{
    SYSTEMTIME day;
    return date.GetAsSystemTime(day) && SetCurSel(&day);
}

// The days that are selected

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME min, LPSYSTEMTIME max) const
{
    SYSTEMTIME days[2]{};
    if (!send<BOOL>(*this, MCM_GETSELRANGE, 0, days))
        return FALSE;
    *min = days[0];
    *max = days[1];
    return TRUE;
}

BOOL CMonthCalCtrl::GetSelRange(COleDateTime& min, COleDateTime& max) const
{
    return getDays(min, max,
                   [this](LPSYSTEMTIME first, LPSYSTEMTIME last) { return GetSelRange(first, last); });
}

BOOL CMonthCalCtrl::GetSelRange(CTime& min, CTime& max) const
{
    return getDays(min, max,
                   [this](LPSYSTEMTIME first, LPSYSTEMTIME last) { return GetSelRange(first, last); });
}

BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME min, const LPSYSTEMTIME max)
{
    SYSTEMTIME days[2]{*min, *max};
    return send<BOOL>(*this, MCM_SETSELRANGE, 0, days);
}

BOOL CMonthCalCtrl::SetSelRange(const COleDateTime& min, const COleDateTime& max)
{
    SYSTEMTIME first, last;
    return min.GetAsSystemTime(first) && max.GetAsSystemTime(last) && SetSelRange(&first, &last);
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& min, const CTime& max)
{
    SYSTEMTIME first, last;
    return min.GetAsSystemTime(first) && max.GetAsSystemTime(last) && SetSelRange(&first, &last);
}

int CMonthCalCtrl::GetMaxSelCount() const
{
    return send<int>(*this, MCM_GETMAXSELCOUNT);
}

BOOL CMonthCalCtrl::SetMaxSelCount(int days)
{
    return send<BOOL>(*this, MCM_SETMAXSELCOUNT, days);
}

// The days that can be reached

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME min, LPSYSTEMTIME max) const
{
    SYSTEMTIME dates[2]{};
    const auto present = send<DWORD>(*this, MCM_GETRANGE, 0, dates);
    if (min)
        *min = dates[0];
    if (max)
        *max = dates[1];
    return present;
}

DWORD CMonthCalCtrl::GetRange(COleDateTime* min, COleDateTime* max) const
{
    SYSTEMTIME dates[2]{};
    const DWORD present = GetRange(&dates[0], &dates[1]);
    afxdetail::copyRange(dates, present, min, max);
    return present;
}

DWORD CMonthCalCtrl::GetRange(CTime* min, CTime* max) const
{
    SYSTEMTIME dates[2]{};
    const DWORD present = GetRange(&dates[0], &dates[1]);
    afxdetail::copyRange(dates, present, min, max);
    return present;
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME min, const LPSYSTEMTIME max)
{
    SYSTEMTIME dates[2]{};
    DWORD present = 0;
    if (min) {
        dates[0] = *min;
        present |= GDTR_MIN;
    }
    if (max) {
        dates[1] = *max;
        present |= GDTR_MAX;
    }
    return send<BOOL>(*this, MCM_SETRANGE, present, dates);
}

BOOL CMonthCalCtrl::SetRange(const COleDateTime* min, const COleDateTime* max)
{
    DateRange range(min, max);
    return send<BOOL>(*this, MCM_SETRANGE, range.present, range.dates);
}

BOOL CMonthCalCtrl::SetRange(const CTime* min, const CTime* max)
{
    DateRange range(min, max);
    return send<BOOL>(*this, MCM_SETRANGE, range.present, range.dates);
}

// What is shown

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME min, LPSYSTEMTIME max, DWORD flags) const
{
    SYSTEMTIME dates[2]{};
    const auto months = send<int>(*this, MCM_GETMONTHRANGE, flags, dates);
    *min = dates[0];
    *max = dates[1];
    return months;
}

int CMonthCalCtrl::GetMonthRange(COleDateTime& min, COleDateTime& max, DWORD flags) const
{
    return getDays(min, max,
                   [&](LPSYSTEMTIME first, LPSYSTEMTIME last) { return GetMonthRange(first, last, flags); });
}

int CMonthCalCtrl::GetMonthRange(CTime& min, CTime& max, DWORD flags) const
{
    return getDays(min, max,
                   [&](LPSYSTEMTIME first, LPSYSTEMTIME last) { return GetMonthRange(first, last, flags); });
}

BOOL CMonthCalCtrl::SetDayState(int months, LPMONTHDAYSTATE states)
{
    return send<BOOL>(*this, MCM_SETDAYSTATE, months, states);
}

int CMonthCalCtrl::GetMonthDelta() const
{
    return send<int>(*this, MCM_GETMONTHDELTA);
}

int CMonthCalCtrl::SetMonthDelta(int months)
{
    return send<int>(*this, MCM_SETMONTHDELTA, months);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* local) const
{
    const auto answer = send<DWORD>(*this, MCM_GETFIRSTDAYOFWEEK);
    if (local)
        *local = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int day, LPINT previous)
{
    const auto answer = send<DWORD>(*this, MCM_SETFIRSTDAYOFWEEK, 0, day);
    if (previous)
        *previous = LOWORD(answer);
    return HIWORD(answer);
}

BOOL CMonthCalCtrl::GetToday(LPSYSTEMTIME date) const
{
    return send<BOOL>(*this, MCM_GETTODAY, 0, date);
}

BOOL CMonthCalCtrl::GetToday(COleDateTime& date) const
{
    return getDay(date, [this](LPSYSTEMTIME day) { return GetToday(day); });
}

BOOL CMonthCalCtrl::GetToday(CTime& date) const
{
    return getDay(date, [this](LPSYSTEMTIME day) { return GetToday(day); });
}

void CMonthCalCtrl::SetToday(const LPSYSTEMTIME date)
{
    send(*this, MCM_SETTODAY, 0, date);
}

void CMonthCalCtrl::SetToday(const COleDateTime& date)
{
    SYSTEMTIME day;
    if (date.GetAsSystemTime(day))
        SetToday(&day);
}

void CMonthCalCtrl::SetToday(const CTime* date)
{
    SYSTEMTIME day;
    SetToday(date && date->GetAsSystemTime(day) ? &day : nullptr);
}

// Colours and sizes

COLORREF CMonthCalCtrl::GetColor(int part) const
{
    return send<COLORREF>(*this, MCM_GETCOLOR, part);
}

COLORREF CMonthCalCtrl::SetColor(int part, COLORREF colour)
{
    return send<COLORREF>(*this, MCM_SETCOLOR, part, colour);
}

BOOL CMonthCalCtrl::GetMinReqRect(RECT* rect) const
{
    return send<BOOL>(*this, MCM_GETMINREQRECT, 0, rect);
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL repaint)
{
    CRect rect;
    return GetMinReqRect(&rect) &&
           SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW));
}

DWORD CMonthCalCtrl::HitTest(PMCHITTESTINFO hit)
{
    hit->cbSize = sizeof *hit;
    return send<DWORD>(*this, MCM_HITTEST, 0, hit);
}
