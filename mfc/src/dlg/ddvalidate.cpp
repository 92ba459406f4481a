// DDV_: values that are out of bounds are refused.
#include "ddxmessages.h"

namespace
{

using afxdetail::writeNumber;

/// Values on their way to the controls are the program's own: they are not refused.
template <class Number>
bool isRefused(const CDataExchange* exchange, Number value, Number min, Number max)
{
    // A value that is not a number is refused as well: it compares as neither less nor greater.
    return exchange->m_bSaveAndValidate && !(value >= min && value <= max);
}

template <class Number>
void checkInteger(CDataExchange* exchange, Number value, Number min, Number max)
{
    if (isRefused(exchange, value, min, max))
        afxdetail::refuse(exchange, AFX_IDP_PARSE_INT_RANGE, writeNumber(min), writeNumber(max));
}

template <class Number>
void checkReal(CDataExchange* exchange, Number value, Number min, Number max, int precision)
{
    if (isRefused(exchange, value, min, max))
        afxdetail::refuse(exchange, AFX_IDP_PARSE_REAL_RANGE, writeNumber(min, precision),
                          writeNumber(max, precision));
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

void AFXAPI DDV_MinMaxUnsigned(CDataExchange* exchange, UINT value, UINT min, UINT max)
{
    DDV_MinMaxUInt(exchange, value, min, max);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD min, DWORD max)
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
    checkReal(exchange, value, min, max, std::numeric_limits<float>::digits10);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double min, double max,
                             int precision)
{
    checkReal(exchange, value, min, max, precision);
}

void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxCharacters)
{
    if (exchange->m_bSaveAndValidate) {
        if (value.GetLength() > maxCharacters)
            afxdetail::refuse(exchange, AFX_IDP_PARSE_STRING_SIZE, writeNumber(maxCharacters));
        return;
    }
    if (!exchange->m_hWndLastControl)
        return;
    // EM_LIMITTEXT for an edit control; a combo box knows another message.
    const UINT limit = exchange->m_bEditLastControl ? UINT{EM_LIMITTEXT} : UINT{CB_LIMITTEXT};
    ::SendMessageW(exchange->m_hWndLastControl, limit, static_cast<WPARAM>(maxCharacters), 0);
}
