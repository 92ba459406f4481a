// CEdit.
#include <afxwin.h>
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(0, L"EDIT", nullptr, style | WS_CHILD, rect, parent, id);
}

int CEdit::GetLineCount() const
{
    return static_cast<int>(SendMessage(EM_GETLINECOUNT));
}

int CEdit::LineFromChar(int index) const
{
    return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(index)));
}

int CEdit::LineIndex(int line) const
{
    return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(line)));
}

int CEdit::LineLength(int position) const
{
    return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(position)));
}

void CEdit::LineScroll(int lines, int chars)
{
    SendMessage(EM_LINESCROLL, static_cast<WPARAM>(chars), lines);
}

int CEdit::GetFirstVisibleLine() const
{
    return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE));
}

int CEdit::CharFromPos(CPoint point) const
{
    return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, static_cast<LPARAM>(MAKELONG(point.x, point.y))));
}

CPoint CEdit::PosFromChar(UINT position) const
{
    return CPoint(static_cast<LPARAM>(SendMessage(EM_POSFROMCHAR, position)));
}

void CEdit::SetHandle(HLOCAL buffer)
{
    SendMessage(EM_SETHANDLE, reinterpret_cast<WPARAM>(buffer));
}

HLOCAL CEdit::GetHandle() const
{
    return reinterpret_cast<HLOCAL>(SendMessage(EM_GETHANDLE));
}

BOOL CEdit::FmtLines(BOOL addEndOfLine)
{
    return static_cast<BOOL>(SendMessage(EM_FMTLINES, static_cast<WPARAM>(addEndOfLine)));
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
}

void CEdit::Cut()
{
    SendMessage(WM_CUT);
}

void CEdit::Copy()
{
    SendMessage(WM_COPY);
}

void CEdit::Paste()
{
    SendMessage(WM_PASTE);
}

void CEdit::Clear()
{
    SendMessage(WM_CLEAR);
}

BOOL CEdit::CanUndo() const
{
    return static_cast<BOOL>(SendMessage(EM_CANUNDO));
}

BOOL CEdit::Undo()
{
    return static_cast<BOOL>(SendMessage(EM_UNDO));
}

void CEdit::EmptyUndoBuffer()
{
    SendMessage(EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::GetModify() const
{
    return static_cast<BOOL>(SendMessage(EM_GETMODIFY));
}

void CEdit::SetModify(BOOL modified)
{
    SendMessage(EM_SETMODIFY, static_cast<WPARAM>(modified));
}

void CEdit::LimitText(int chars)
{
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(chars));
}

void CEdit::SetLimitText(UINT chars)
{
    SendMessage(EM_SETLIMITTEXT, chars);
}

UINT CEdit::GetLimitText() const
{
    return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}

BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
}

TCHAR CEdit::GetPasswordChar() const
{
    return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR));
}

void CEdit::SetPasswordChar(TCHAR character)
{
    SendMessage(EM_SETPASSWORDCHAR, static_cast<WPARAM>(character));
}

void CEdit::GetRect(LPRECT rect) const
{
    SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(rect));
}

void CEdit::SetRect(LPCRECT rect)
{
    SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(rect));
}

void CEdit::SetRectNP(LPCRECT rect)
{
    SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(rect));
}

DWORD CEdit::GetMargins() const
{
    return static_cast<DWORD>(SendMessage(EM_GETMARGINS));
}

void CEdit::SetMargins(UINT left, UINT right)
{
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN|EC_RIGHTMARGIN, MAKELONG(left,right));
}

BOOL CEdit::SetCueBanner(LPCWSTR text)
{
    return static_cast<BOOL>(SendMessage(EM_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(text)));
}

BOOL CEdit::SetCueBanner(LPCWSTR text, BOOL drawWhenFocused)
{
    return static_cast<BOOL>(SendMessage(EM_SETCUEBANNER, static_cast<WPARAM>(drawWhenFocused), reinterpret_cast<LPARAM>(text)));
}

void CEdit::SetHighlight(int start, int end)
{
    SendMessage(EM_SETHILITE, static_cast<WPARAM>(start), end);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP tip)
{
    return static_cast<BOOL>(SendMessage(EM_SHOWBALLOONTIP, 0, reinterpret_cast<LPARAM>(tip)));
}

BOOL CEdit::HideBalloonTip()
{
    return static_cast<BOOL>(SendMessage(EM_HIDEBALLOONTIP));
}

int CEdit::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    *reinterpret_cast<WORD*>(buffer) = static_cast<WORD>(maxLength);
    return static_cast<int>(SendMessage(EM_GETLINE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)));
}

int CEdit::GetLine(int index, LPTSTR buffer) const
{
    return static_cast<int>(SendMessage(EM_GETLINE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)));
}

DWORD CEdit::GetSel() const
{
    return static_cast<DWORD>(SendMessage(EM_GETSEL));
}

void CEdit::GetSel(int& start, int& end) const
{
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll)
{
    SetSel(static_cast<short>(LOWORD(selection)), static_cast<short>(HIWORD(selection)), noScroll);
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll)
        SendMessage(EM_SCROLLCARET);
}

BOOL CEdit::SetTabStops(const int& eachStop)
{
    return static_cast<BOOL>(SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&eachStop)));
}

void CEdit::SetTabStops()
{
    SendMessage(EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(int count, LPINT stops)
{
    return static_cast<BOOL>(SendMessage(EM_SETTABSTOPS, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(stops)));
}
