// CMonthCalCtrl: a calendar of one month or several.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class COleDateTime;
class CTime;

/// A month calendar. Days of the week count from Monday, 0.
class OVOMFC_API CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    CMonthCalCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    /// As large as one month needs.
    virtual BOOL Create(DWORD style, const POINT& place, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // The day that is selected. FALSE with MCS_MULTISELECT.
    BOOL GetCurSel(COleDateTime& date) const;
    BOOL GetCurSel(CTime& date) const;
    BOOL GetCurSel(LPSYSTEMTIME date) const;
    BOOL SetCurSel(const COleDateTime& date);
    BOOL SetCurSel(const CTime& date);
    BOOL SetCurSel(const LPSYSTEMTIME date);

    // The days that are selected. FALSE without MCS_MULTISELECT, and for more than GetMaxSelCount days.
    BOOL GetSelRange(COleDateTime& min, COleDateTime& max) const;
    BOOL GetSelRange(CTime& min, CTime& max) const;
    BOOL GetSelRange(LPSYSTEMTIME min, LPSYSTEMTIME max) const;
    BOOL SetSelRange(const COleDateTime& min, const COleDateTime& max);
    BOOL SetSelRange(const CTime& min, const CTime& max);
    BOOL SetSelRange(const LPSYSTEMTIME min, const LPSYSTEMTIME max);
    int GetMaxSelCount() const;
    BOOL SetMaxSelCount(int days);

    // The days that can be reached. NULL, and a null date, is no bound. What is given back are GDTR_MIN and
    // GDTR_MAX bits, for those that there are.
    DWORD GetRange(COleDateTime* min, COleDateTime* max) const;
    DWORD GetRange(CTime* min, CTime* max) const;
    DWORD GetRange(LPSYSTEMTIME min, LPSYSTEMTIME max) const;
    BOOL SetRange(const COleDateTime* min, const COleDateTime* max);
    BOOL SetRange(const CTime* min, const CTime* max);
    BOOL SetRange(const LPSYSTEMTIME min, const LPSYSTEMTIME max);

    // What is shown. `flags` is GMR_VISIBLE or GMR_DAYSTATE; gives the number of months.
    int GetMonthRange(COleDateTime& min, COleDateTime& max, DWORD flags) const;
    int GetMonthRange(CTime& min, CTime& max, DWORD flags) const;
    int GetMonthRange(LPSYSTEMTIME min, LPSYSTEMTIME max, DWORD flags) const;
    BOOL SetDayState(int months, LPMONTHDAYSTATE states); ///< The days to be bold.
    int GetMonthDelta() const;                            ///< How many months a click scrolls.
    int SetMonthDelta(int months);
    int GetFirstDayOfWeek(BOOL* local = nullptr) const;
    BOOL SetFirstDayOfWeek(int day, LPINT previous = nullptr);
    BOOL GetToday(COleDateTime& date) const;
    BOOL GetToday(CTime& date) const;
    BOOL GetToday(LPSYSTEMTIME date) const;
    void SetToday(const COleDateTime& date);
    void SetToday(const CTime* date);
    void SetToday(const LPSYSTEMTIME date); ///< NULL: the day that it is.

    // Colours and sizes
    COLORREF GetColor(int part) const; ///< `part` is a MCSC_ value.
    COLORREF SetColor(int part, COLORREF colour);
    BOOL GetMinReqRect(RECT* rect) const; ///< What one month needs.
    BOOL SizeMinReq(BOOL repaint = TRUE);
    DWORD HitTest(PMCHITTESTINFO hit); ///< Fills in the size of the structure by itself.
};
