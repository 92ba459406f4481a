// Internal: how dates travel between the classes and the controls.
#pragma once

#include <afxdisp.h>

namespace afxdetail
{

/// Two dates, of which either may be missing: how a control is told its bounds.
struct DateRange
{
    SYSTEMTIME dates[2]{};
    DWORD present = 0; ///< GDTR_MIN and GDTR_MAX

    template <class Date>
    DateRange(const Date* min, const Date* max)
    {
        if (min && min->GetAsSystemTime(dates[0]))
            present |= GDTR_MIN;
        if (max && max->GetAsSystemTime(dates[1]))
            present |= GDTR_MAX;
    }
};

/// Copies those bounds that there are.
template <class Date>
void copyRange(const SYSTEMTIME (&dates)[2], DWORD present, Date* min, Date* max)
{
    if (min && (present & GDTR_MIN))
        *min = Date(dates[0]);
    if (max && (present & GDTR_MAX))
        *max = Date(dates[1]);
}

/// The date alone, at midnight: what a calendar knows. The rest of the structure is left as it was.
inline SYSTEMTIME dayOf(const SYSTEMTIME& time)
{
    SYSTEMTIME day{};
    day.wYear = time.wYear;
    day.wMonth = time.wMonth;
    day.wDay = time.wDay;
    day.wDayOfWeek = time.wDayOfWeek;
    return day;
}

} // namespace afxdetail
