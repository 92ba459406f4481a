// Controls for dates and times.
#ifndef __AFXDTCTL_H__
#define __AFXDTCTL_H__
#pragma once

#include <afxwin.h>
#include <afxdisp.h>
#include <commctrl.h>

#include <afx/DateTimeCtrl.h>
#include <afx/MonthCalCtrl.h>

// The value of a date control that has none ("no date") is left as it is when it is read as a CTime, and
// becomes null when it is read as a COleDateTime.
OVOMFC_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CTime& value);
OVOMFC_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, COleDateTime& value);
OVOMFC_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CString& value); ///< Its text.
OVOMFC_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, CTime& value);
OVOMFC_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, COleDateTime& value);

// Bounds are inclusive; a null pointer is no bound. They are given to the control, which lets the user enter
// nothing else.
OVOMFC_API void AFXAPI DDV_MinMaxDateTime(CDataExchange* exchange, CTime& value, const CTime* min,
                                          const CTime* max);
OVOMFC_API void AFXAPI DDV_MinMaxDateTime(CDataExchange* exchange, COleDateTime& value,
                                          const COleDateTime* min, const COleDateTime* max);
OVOMFC_API void AFXAPI DDV_MinMaxMonth(CDataExchange* exchange, CTime& value, const CTime* min,
                                       const CTime* max);
OVOMFC_API void AFXAPI DDV_MinMaxMonth(CDataExchange* exchange, COleDateTime& value, const COleDateTime* min,
                                       const COleDateTime* max);

#endif // __AFXDTCTL_H__
