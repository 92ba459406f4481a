// DDX_Text: numbers and text in edit controls.
#include "ddxmessages.h"

namespace
{

using afxdetail::NumberFault;
using afxdetail::writeNumber;

CString textOf(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

void setText(HWND control, LPCTSTR text)
{
    if (textOf(control) != text) // no change notification for nothing
        CWnd::FromHandle(control)->SetWindowText(text);
}

/// Tells what to enter instead: which kind of number, or, for one that the type cannot hold, between which
/// bounds.
template <class Number>
[[noreturn]] void refuseText(CDataExchange* exchange, NumberFault fault, UINT messageId)
{
    if (fault == NumberFault::NotANumber)
        afxdetail::refuse(exchange, messageId);
    using Limits = std::numeric_limits<Number>;
    constexpr bool kReal = std::is_floating_point_v<Number>;
    afxdetail::refuse(exchange, kReal ? AFX_IDP_PARSE_REAL_RANGE : AFX_IDP_PARSE_INT_RANGE,
                      writeNumber(Limits::lowest()), writeNumber(Limits::max()));
}

template <class Number>
void exchangeNumber(CDataExchange* exchange, int id, Number& value, UINT messageId)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        setText(control, writeNumber(value).c_str());
        return;
    }
    const auto read = afxdetail::readNumber<Number>(textOf(control).GetString());
    if (read.fault != NumberFault::None)
        refuseText<Number>(exchange, read.fault, messageId);
    value = read.value;
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, short& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, long& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, LONGLONG& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, float& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_REAL);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, double& value)
{
    exchangeNumber(exchange, id, value, AFX_IDP_PARSE_REAL);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = textOf(control);
    else
        setText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int room)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        setText(control, value);
        return;
    }
    const CString text = textOf(control);
    if (text.GetLength() >= room)
        afxdetail::refuse(exchange, AFX_IDP_PARSE_STRING_SIZE, writeNumber(room - 1));
    ::lstrcpynW(value, text, room);
}
