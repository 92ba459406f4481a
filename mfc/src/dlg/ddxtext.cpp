// DDX_Text: numbers and text in edit controls.
#include <afxwin.h>

#include <cerrno>
#include <cmath>
#include <cwchar>
#include <limits>
#include <type_traits>

namespace
{

CString textOf(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

void setText(HWND control, const CString& text)
{
    if (textOf(control) != text) // no change notification for nothing
        ::SetWindowTextW(control, text);
}

[[noreturn]] void refuse(CDataExchange* exchange, UINT messageId)
{
    AfxMessageBox(messageId, MB_ICONEXCLAMATION);
    exchange->Fail();
}

/// Whether everything from `end` on is blank, and something was read before it.
bool readWhole(const wchar_t* start, const wchar_t* end)
{
    return end != start && end[std::wcsspn(end, L" \t")] == 0;
}

template <class Number>
bool parse(const CString& text, Number& number)
{
    const wchar_t* const start = text.GetString();
    wchar_t* end = nullptr;
    errno = 0;
    if constexpr (std::is_floating_point_v<Number>) {
        const double value = std::wcstod(start, &end);
        number = static_cast<Number>(value);
        return readWhole(start, end) && std::isfinite(static_cast<double>(number));
    } else if constexpr (std::is_signed_v<Number>) {
        const long long value = std::wcstoll(start, &end, 10);
        number = static_cast<Number>(value);
        return readWhole(start, end) && errno != ERANGE && value == static_cast<long long>(number);
    } else {
        const unsigned long long value = std::wcstoull(start, &end, 10);
        number = static_cast<Number>(value);
        return readWhole(start, end) && errno != ERANGE && text.Find(L'-') < 0 &&
               value == static_cast<unsigned long long>(number);
    }
}

template <class Number>
CString format(Number number)
{
    CString text;
    if constexpr (std::is_floating_point_v<Number>)
        text.Format(L"%.*g", std::numeric_limits<Number>::digits10, static_cast<double>(number));
    else if constexpr (std::is_signed_v<Number>)
        text.Format(L"%I64d", static_cast<long long>(number));
    else
        text.Format(L"%I64u", static_cast<unsigned long long>(number));
    return text;
}

template <class Number>
void exchangeNumber(CDataExchange* exchange, int id, Number& value, UINT messageId)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        setText(control, format(value));
        return;
    }
    Number read{};
    if (!parse(textOf(control), read))
        refuse(exchange, messageId);
    value = read;
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

void AFXAPI DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int maxCharacters)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        setText(control, CString(value));
        return;
    }
    const CString text = textOf(control);
    if (text.GetLength() >= maxCharacters) {
        CString message;
        AfxFormatString1(message, AFX_IDP_PARSE_STRING_SIZE, CString(std::to_wstring(maxCharacters - 1).c_str()));
        AfxMessageBox(message, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        exchange->Fail();
    }
    ::lstrcpynW(value, text, maxCharacters);
}
