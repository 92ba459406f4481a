// Data exchange: dates.
#include <afxdtctl.h>

#include <detail/send.h>

namespace
{

CDateTimeCtrl& pickerOf(CDataExchange* exchange, int id)
{
    return *afxdetail::controlFrom<CDateTimeCtrl>(exchange->PrepareCtrl(id));
}

CMonthCalCtrl& calendarOf(CDataExchange* exchange, int id)
{
    return *afxdetail::controlFrom<CMonthCalCtrl>(exchange->PrepareCtrl(id));
}

/// The control that was exchanged last, which is what a DDV_ call is about.
template <class Control>
Control& lastOf(CDataExchange* exchange)
{
    return *afxdetail::controlFrom<Control>(exchange->m_hWndLastControl);
}

template <class Control, class Date>
void limit(CDataExchange* exchange, const Date& value, const Date* min, const Date* max)
{
    if (exchange->m_bSaveAndValidate)
        return; // the control has let nothing else in
    if ((min && value < *min) || (max && *max < value))
        TRACE(L"A date on its way to its control lies outside its bounds.\n");
    lastOf<Control>(exchange).SetRange(min, max);
}

} // namespace

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CTime& value)
{
    CDateTimeCtrl& control = pickerOf(exchange, id);
    if (exchange->m_bSaveAndValidate)
        control.GetTime(value);
    else
        control.SetTime(&value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, COleDateTime& value)
{
    CDateTimeCtrl& control = pickerOf(exchange, id);
    if (exchange->m_bSaveAndValidate)
        control.GetTime(value);
    else
        control.SetTime(value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CString& value)
{
    CDateTimeCtrl& control = pickerOf(exchange, id);
    if (exchange->m_bSaveAndValidate) {
        control.GetWindowText(value);
        return;
    }
    COleDateTime date;
    if (date.ParseDateTime(value))
        control.SetTime(date);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, CTime& value)
{
    CMonthCalCtrl& control = calendarOf(exchange, id);
    if (exchange->m_bSaveAndValidate)
        control.GetCurSel(value);
    else
        control.SetCurSel(value);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, COleDateTime& value)
{
    CMonthCalCtrl& control = calendarOf(exchange, id);
    if (exchange->m_bSaveAndValidate)
        control.GetCurSel(value);
    else
        control.SetCurSel(value);
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange* exchange, CTime& value, const CTime* min, const CTime* max)
{
    limit<CDateTimeCtrl>(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange* exchange, COleDateTime& value, const COleDateTime* min,
                               const COleDateTime* max)
{
    limit<CDateTimeCtrl>(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* exchange, CTime& value, const CTime* min, const CTime* max)
{
    limit<CMonthCalCtrl>(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* exchange, COleDateTime& value, const COleDateTime* min,
                            const COleDateTime* max)
{
    limit<CMonthCalCtrl>(exchange, value, min, max);
}
