// Data exchange (DDX_) and validation (DDV_). In DoDataExchange, each DDV_ follows the DDX_ of its control.
#ifndef __AFXDD_H__
#define __AFXDD_H__
#pragma once

#include <afx/DataExchange.h>

/// Ties a member to its control; does nothing when it is tied already.
OVOMFC_API void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// Numbers are decimal, whatever the locale. A text that is none, or that the type cannot hold, is refused
// with a message that says what to enter.
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, BYTE& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, short& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, UINT& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, long& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, DWORD& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, LONGLONG& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, float& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, double& value);
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value);
/// `room` counts the terminating zero; a longer text is refused.
OVOMFC_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int room);

// Buttons
OVOMFC_API void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value); ///< BST_ values
/// The position of the checked button in the group that begins with `id`, -1 for none.
OVOMFC_API void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value);

// Lists. Index -1 stands for no selection. Without Exact the first item that begins with the text is
// selected; case does not count. An empty text, or one that no item has, leaves nothing selected; in the edit
// control of a combo box it is shown all the same.
OVOMFC_API void AFXAPI DDX_LBIndex(CDataExchange* exchange, int id, int& index);
OVOMFC_API void AFXAPI DDX_LBString(CDataExchange* exchange, int id, CString& value);
OVOMFC_API void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int id, CString& value);
OVOMFC_API void AFXAPI DDX_CBIndex(CDataExchange* exchange, int id, int& index);
OVOMFC_API void AFXAPI DDX_CBString(CDataExchange* exchange, int id, CString& value);
OVOMFC_API void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);

// Positions
OVOMFC_API void AFXAPI DDX_Scroll(CDataExchange* exchange, int id, int& value);
OVOMFC_API void AFXAPI DDX_Slider(CDataExchange* exchange, int id, int& value);

OVOMFC_API void AFXAPI DDX_IPAddress(CDataExchange* exchange, int id,
                                     DWORD& value); ///< First field in the high byte.

// Bounds are inclusive. A value outside is refused with a message that names them. Values on their way to the
// controls are not checked.
OVOMFC_API void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE min, BYTE max);
OVOMFC_API void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short min, short max);
OVOMFC_API void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int min, int max);
OVOMFC_API void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long min, long max);
OVOMFC_API void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT min, UINT max);
OVOMFC_API void AFXAPI DDV_MinMaxUnsigned(CDataExchange* exchange, UINT value, UINT min, UINT max);
OVOMFC_API void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD min, DWORD max);
OVOMFC_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG min,
                                          LONGLONG max);
OVOMFC_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG min,
                                           ULONGLONG max);
OVOMFC_API void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float min, float max);
OVOMFC_API void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double min, double max,
                                        int precision = 15);
OVOMFC_API void AFXAPI DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD min, DWORD max);
/// Also limits what can be typed.
OVOMFC_API void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxCharacters);

#endif // __AFXDD_H__
