// CDateTimeCtrl: a field for a date or a time.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CFont;
class CMonthCalCtrl;
class COleDateTime;
class CTime;

/// A date and time picker. The calendar that it drops down is an object of its own, which lives as long as it
/// is shown.
class OVOMFC_API CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // The value. A control of style DTS_SHOWNONE may have none.
    BOOL
    GetTime(COleDateTime& time) const; ///< No date makes it null; FALSE when the control does not answer.
    DWORD GetTime(CTime& time) const;  ///< GDT_VALID, or GDT_NONE and `time` as it was.
    DWORD GetTime(LPSYSTEMTIME time) const; ///< As above.
    BOOL SetTime(const COleDateTime& time); ///< A null one is no date.
    BOOL SetTime(const CTime* time);        ///< NULL is no date.
    BOOL SetTime(LPSYSTEMTIME time = nullptr);

    // Bounds. NULL, and a null date, is no bound. What is given back are GDTR_MIN and GDTR_MAX bits, for
    // those that there are.
    DWORD GetRange(COleDateTime* min, COleDateTime* max) const;
    DWORD GetRange(CTime* min, CTime* max) const;
    BOOL SetRange(const COleDateTime* min, const COleDateTime* max);
    BOOL SetRange(const CTime* min, const CTime* max);

    BOOL SetFormat(LPCTSTR format); ///< NULL: the form of the control's style.

    // The calendar
    CMonthCalCtrl* GetMonthCalCtrl() const; ///< NULL while none is shown. May be a temporary object.
    void CloseMonthCal() const;
    COLORREF GetMonthCalColor(int part) const; ///< `part` is a MCSC_ value.
    COLORREF SetMonthCalColor(int part, COLORREF colour);
    CFont* GetMonthCalFont() const;
    void SetMonthCalFont(HFONT font, BOOL redraw = TRUE);
    DWORD GetMonthCalStyle() const;
    DWORD SetMonthCalStyle(DWORD style);

    BOOL
    GetDateTimePickerInfo(LPDATETIMEPICKERINFO info) const; ///< Fills in the size of the structure by itself.
    BOOL GetIdealSize(LPSIZE size) const;
};
