// Data exchange with buttons, lists and scroll bars.
#include <afxwin.h>
#include <afxcmn.h>

namespace
{

/// What list boxes and combo boxes call the same things.
struct ListMessages
{
    UINT getCurrent;
    UINT setCurrent;
    UINT find;
    UINT findExact;
    UINT textLength;
    UINT text;
};

constexpr ListMessages kListBox{LB_GETCURSEL,       LB_SETCURSEL,  LB_FINDSTRING,
                                LB_FINDSTRINGEXACT, LB_GETTEXTLEN, LB_GETTEXT};
constexpr ListMessages kComboBox{CB_GETCURSEL,       CB_SETCURSEL,    CB_FINDSTRING,
                                 CB_FINDSTRINGEXACT, CB_GETLBTEXTLEN, CB_GETLBTEXT};

void exchangeIndex(CDataExchange* exchange, int id, int& index, const ListMessages& messages)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(control, messages.getCurrent, 0, 0));
    else
        ::SendMessageW(control, messages.setCurrent, static_cast<WPARAM>(index), 0);
}

CString currentText(HWND control, const ListMessages& messages)
{
    CString text;
    const LRESULT current = ::SendMessageW(control, messages.getCurrent, 0, 0);
    if (current < 0)
        return text;
    const LRESULT length = ::SendMessageW(control, messages.textLength, static_cast<WPARAM>(current), 0);
    LPTSTR buffer = text.GetBuffer(static_cast<int>(length));
    ::SendMessageW(control, messages.text, static_cast<WPARAM>(current), reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer();
    return text;
}

/// Selects the first item that is the text, or begins with it; none when there is no such item. Gives its
/// index.
LRESULT selectText(HWND control, const ListMessages& messages, const CString& text, bool exact)
{
    // Everything begins with an empty text, but who asks for none does not want the first one.
    const UINT find = exact || text.IsEmpty() ? messages.findExact : messages.find;
    const LRESULT index =
        ::SendMessageW(control, find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.GetString()));
    ::SendMessageW(control, messages.setCurrent, static_cast<WPARAM>(index), 0);
    return index;
}

void exchangeListBoxText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = currentText(control, kListBox);
    else
        selectText(control, kListBox, value, exact);
}

void exchangeComboText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        CWnd::FromHandle(control)->GetWindowText(value);
    else if (selectText(control, kComboBox, value, exact) < 0)
        CWnd::FromHandle(control)->SetWindowText(value); // not in the list: only the edit control shows it
}

bool isRadioButton(HWND control)
{
    return (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

bool beginsGroup(HWND control)
{
    return (::GetWindowLongW(control, GWL_STYLE) & WS_GROUP) != 0;
}

} // namespace

void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessageW(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = -1;
    int position = 0;
    do {
        if (!isRadioButton(control))
            continue;
        if (!exchange->m_bSaveAndValidate)
            ::SendMessageW(control, BM_SETCHECK, position == value ? BST_CHECKED : BST_UNCHECKED, 0);
        else if (::SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
            value = position;
        ++position;
    } while ((control = ::GetWindow(control, GW_HWNDNEXT)) != nullptr && !beginsGroup(control));
}

void AFXAPI DDX_LBIndex(CDataExchange* exchange, int id, int& index)
{
    exchangeIndex(exchange, id, index, kListBox);
}

void AFXAPI DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    exchangeIndex(exchange, id, index, kComboBox);
}

void AFXAPI DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    exchangeListBoxText(exchange, id, value, false);
}

void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    exchangeListBoxText(exchange, id, value, true);
}

void AFXAPI DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    exchangeComboText(exchange, id, value, false);
}

void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    exchangeComboText(exchange, id, value, true);
}

void AFXAPI DDX_Scroll(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* exchange, int id, int& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessageW(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessageW(control, TBM_SETPOS, TRUE, value);
}

void AFXAPI DDX_IPAddress(CDataExchange* exchange, int id, DWORD& value)
{
    const HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        ::SendMessageW(control, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&value));
    else
        ::SendMessageW(control, IPM_SETADDRESS, 0, static_cast<LPARAM>(value));
}
