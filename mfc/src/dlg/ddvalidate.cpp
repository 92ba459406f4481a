// DDV_: values that are out of bounds are refused.
#include <afxwin.h>

#include <string>

namespace
{

CString asText(double value, int precision)
{
    CString text;
    text.Format(L"%.*g", precision, value);
    return text;
}

template <class Number>
CString asText(Number value)
{
    return CString(std::to_wstring(value).c_str());
}

[[noreturn]] void refuse(CDataExchange* exchange, UINT messageId, const CString& min, const CString& max)
{
    CString message;
    AfxFormatString2(message, messageId, min, max);
    AfxMessageBox(message, MB_ICONEXCLAMATION, messageId);
    exchange->Fail();
}

/// Values on their way to the controls are the program's own: they are not refused.
template <class Number>
bool isRefused(const CDataExchange* exchange, Number value, Number min, Number max)
{
    return exchange->m_bSaveAndValidate && (value < min || value > max);
}

template <class Number>
void checkInteger(CDataExchange* exchange, Number value, Number min, Number max)
{
    if (isRefused(exchange, value, min, max))
        refuse(exchange, AFX_IDP_PARSE_INT_RANGE, asText(min), asText(max));
}

void checkReal(CDataExchange* exchange, double value, double min, double max, int precision)
{
    if (isRefused(exchange, value, min, max))
        refuse(exchange, AFX_IDP_PARSE_REAL_RANGE, asText(min, precision), asText(max, precision));
}

} // namespace

void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE min, BYTE max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short min, short max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int min, int max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long min, long max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT min, UINT max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD min, DWORD max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG min, LONGLONG max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG min, ULONGLONG max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD min, DWORD max)
{
    checkInteger(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float min, float max)
{
    checkReal(exchange, static_cast<double>(value), static_cast<double>(min), static_cast<double>(max), 6);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double min, double max, int precision)
{
    checkReal(exchange, value, min, max, precision);
}

void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxCharacters)
{
    if (!exchange->m_bSaveAndValidate) {
        if (exchange->m_hWndLastControl && exchange->m_bEditLastControl)
            ::SendMessageW(exchange->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(maxCharacters), 0);
        return;
    }
    if (value.GetLength() <= maxCharacters)
        return;
    CString message;
    AfxFormatString1(message, AFX_IDP_PARSE_STRING_SIZE, asText(maxCharacters));
    AfxMessageBox(message, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
    exchange->Fail();
}
