#include "dates.h"

#include <afxdtctl.h>

#include <detail/send.h>

using afxdetail::DateRange;
using afxdetail::send;

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

CDateTimeCtrl::CDateTimeCtrl() = default;

BOOL CDateTimeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(DATETIMEPICK_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CDateTimeCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, DATETIMEPICK_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

// The value

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME time) const
{
    return send<DWORD>(*this, DTM_GETSYSTEMTIME, 0, time);
}

DWORD CDateTimeCtrl::GetTime(CTime& time) const
{
    SYSTEMTIME parts{};
    const DWORD result = GetTime(&parts);
    if (result == GDT_VALID)
        time = CTime(parts);
    return result;
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& time) const
{
    SYSTEMTIME parts{};
    const DWORD result = GetTime(&parts);
    if (result == GDT_VALID)
        time = COleDateTime(parts);
    else
        time.SetStatus(result == static_cast<DWORD>(GDT_NONE) ? COleDateTime::null : COleDateTime::invalid);
    return time.GetStatus() != COleDateTime::invalid;
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME time)
{
    SYSTEMTIME none{};
    return send<BOOL>(*this, DTM_SETSYSTEMTIME, time ? GDT_VALID : GDT_NONE, time ? time : &none);
}

BOOL CDateTimeCtrl::SetTime(const CTime* time)
{
    SYSTEMTIME parts;
    if (!time)
        return SetTime();
    return time->GetAsSystemTime(parts) && SetTime(&parts);
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& time)
{
    SYSTEMTIME parts;
    if (time.GetStatus() == COleDateTime::null)
        return SetTime();
    return time.GetAsSystemTime(parts) && SetTime(&parts);
}

// Bounds

DWORD CDateTimeCtrl::GetRange(COleDateTime* min, COleDateTime* max) const
{
    SYSTEMTIME dates[2]{};
    const auto present = send<DWORD>(*this, DTM_GETRANGE, 0, dates);
    afxdetail::copyRange(dates, present, min, max);
    return present;
}

DWORD CDateTimeCtrl::GetRange(CTime* min, CTime* max) const
{
    SYSTEMTIME dates[2]{};
    const auto present = send<DWORD>(*this, DTM_GETRANGE, 0, dates);
    afxdetail::copyRange(dates, present, min, max);
    return present;
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* min, const COleDateTime* max)
{
    DateRange range(min, max);
    return send<BOOL>(*this, DTM_SETRANGE, range.present, range.dates);
}

BOOL CDateTimeCtrl::SetRange(const CTime* min, const CTime* max)
{
    DateRange range(min, max);
    return send<BOOL>(*this, DTM_SETRANGE, range.present, range.dates);
}

BOOL CDateTimeCtrl::SetFormat(LPCTSTR format)
{
    return send<BOOL>(*this, DTM_SETFORMATW, 0, format);
}

// The calendar

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const
{
    return afxdetail::controlFrom<CMonthCalCtrl>(send<HWND>(*this, DTM_GETMONTHCAL));
}

void CDateTimeCtrl::CloseMonthCal() const
{
    send(*this, DTM_CLOSEMONTHCAL);
}

COLORREF CDateTimeCtrl::GetMonthCalColor(int part) const
{
    return send<COLORREF>(*this, DTM_GETMCCOLOR, part);
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int part, COLORREF colour)
{
    return send<COLORREF>(*this, DTM_SETMCCOLOR, part, colour);
}

CFont* CDateTimeCtrl::GetMonthCalFont() const
{
    return CFont::FromHandle(send<HFONT>(*this, DTM_GETMCFONT));
}

void CDateTimeCtrl::SetMonthCalFont(HFONT font, BOOL redraw)
{
    send(*this, DTM_SETMCFONT, font, redraw);
}

DWORD CDateTimeCtrl::GetMonthCalStyle() const
{
    return send<DWORD>(*this, DTM_GETMCSTYLE);
}

DWORD CDateTimeCtrl::SetMonthCalStyle(DWORD style)
{
    return send<DWORD>(*this, DTM_SETMCSTYLE, 0, style);
}

BOOL CDateTimeCtrl::GetDateTimePickerInfo(LPDATETIMEPICKERINFO info) const
{
    info->cbSize = sizeof *info;
    send(*this, DTM_GETDATETIMEPICKERINFO, 0, info);
    return info->hwndEdit || info->hwndUD || info->hwndDropDown || !::IsRectEmpty(&info->rcButton);
}

BOOL CDateTimeCtrl::GetIdealSize(LPSIZE size) const
{
    return send<BOOL>(*this, DTM_GETIDEALSIZE, 0, size);
}
