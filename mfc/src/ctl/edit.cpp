#include <afxwin.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_EDITW, nullptr, style, rect, parent, id);
}

int CEdit::GetLineCount() const
{
    return send<int>(*this, EM_GETLINECOUNT);
}

int CEdit::GetLine(int index, LPTSTR buffer) const
{
    return send<int>(*this, EM_GETLINE, index, buffer);
}

int CEdit::GetLine(int index, LPTSTR buffer, int maxLength) const
{
    buffer[0] = static_cast<TCHAR>(maxLength);
    return GetLine(index, buffer);
}

int CEdit::LineFromChar(int index) const
{
    return send<int>(*this, EM_LINEFROMCHAR, index);
}

int CEdit::LineIndex(int line) const
{
    return send<int>(*this, EM_LINEINDEX, line);
}

int CEdit::LineLength(int position) const
{
    return send<int>(*this, EM_LINELENGTH, position);
}

void CEdit::LineScroll(int lines, int chars)
{
    send(*this, EM_LINESCROLL, chars, lines);
}

int CEdit::GetFirstVisibleLine() const
{
    return send<int>(*this, EM_GETFIRSTVISIBLELINE);
}

int CEdit::CharFromPos(CPoint point) const
{
    return send<int>(*this, EM_CHARFROMPOS, 0, afxdetail::pack(point.x, point.y));
}

CPoint CEdit::PosFromChar(UINT position) const
{
    const DWORD place = send<DWORD>(*this, EM_POSFROMCHAR, position);
    return CPoint(GET_X_LPARAM(place), GET_Y_LPARAM(place));
}

void CEdit::SetHandle(HLOCAL buffer)
{
    send(*this, EM_SETHANDLE, buffer);
}

HLOCAL CEdit::GetHandle() const
{
    return send<HLOCAL>(*this, EM_GETHANDLE);
}

BOOL CEdit::FmtLines(BOOL addEndOfLine)
{
    return send<BOOL>(*this, EM_FMTLINES, addEndOfLine);
}

DWORD CEdit::GetSel() const
{
    return send<DWORD>(*this, EM_GETSEL);
}

void CEdit::GetSel(int& start, int& end) const
{
    send(*this, EM_GETSEL, &start, &end);
}

void CEdit::SetSel(DWORD selection, BOOL noScroll)
{
    const auto position = [](WORD word) { return word == 0xFFFF ? -1 : static_cast<int>(word); };
    SetSel(position(LOWORD(selection)), position(HIWORD(selection)), noScroll);
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    send(*this, EM_SETSEL, start, end);
    if (!noScroll)
        send(*this, EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo)
{
    send(*this, EM_REPLACESEL, canUndo, text);
}

void CEdit::Cut()
{
    send(*this, WM_CUT);
}

void CEdit::Copy()
{
    send(*this, WM_COPY);
}

void CEdit::Paste()
{
    send(*this, WM_PASTE);
}

void CEdit::Clear()
{
    send(*this, WM_CLEAR);
}

BOOL CEdit::CanUndo() const
{
    return send<BOOL>(*this, EM_CANUNDO);
}

BOOL CEdit::Undo()
{
    return send<BOOL>(*this, EM_UNDO);
}

void CEdit::EmptyUndoBuffer()
{
    send(*this, EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::GetModify() const
{
    return send<BOOL>(*this, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL modified)
{
    send(*this, EM_SETMODIFY, modified);
}

void CEdit::LimitText(int chars)
{
    send(*this, EM_LIMITTEXT, chars);
}

void CEdit::SetLimitText(UINT chars)
{
    send(*this, EM_SETLIMITTEXT, chars);
}

UINT CEdit::GetLimitText() const
{
    return send<UINT>(*this, EM_GETLIMITTEXT);
}

BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return send<BOOL>(*this, EM_SETREADONLY, readOnly);
}

TCHAR CEdit::GetPasswordChar() const
{
    return send<TCHAR>(*this, EM_GETPASSWORDCHAR);
}

void CEdit::SetPasswordChar(TCHAR character)
{
    send(*this, EM_SETPASSWORDCHAR, character);
}

void CEdit::GetRect(LPRECT rect) const
{
    send(*this, EM_GETRECT, 0, rect);
}

void CEdit::SetRect(LPCRECT rect)
{
    send(*this, EM_SETRECT, 0, rect);
}

void CEdit::SetRectNP(LPCRECT rect)
{
    send(*this, EM_SETRECTNP, 0, rect);
}

DWORD CEdit::GetMargins() const
{
    return send<DWORD>(*this, EM_GETMARGINS);
}

void CEdit::SetMargins(UINT left, UINT right)
{
    send(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(left, right));
}

void CEdit::SetTabStops()
{
    send(*this, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& eachStop)
{
    return send<BOOL>(*this, EM_SETTABSTOPS, 1, &eachStop);
}

BOOL CEdit::SetTabStops(int count, LPINT stops)
{
    return send<BOOL>(*this, EM_SETTABSTOPS, count, stops);
}

BOOL CEdit::SetCueBanner(LPCWSTR text)
{
    return SetCueBanner(text, FALSE);
}

BOOL CEdit::SetCueBanner(LPCWSTR text, BOOL drawWhenFocused)
{
    return send<BOOL>(*this, EM_SETCUEBANNER, drawWhenFocused, text);
}

CString CEdit::GetCueBanner() const
{
    constexpr int kRoom = 1024;
    CString text;
    const BOOL got = GetCueBanner(text.GetBuffer(kRoom), kRoom);
    text.ReleaseBuffer(got ? -1 : 0);
    return text;
}

BOOL CEdit::GetCueBanner(LPWSTR text, int room) const
{
    return send<BOOL>(*this, EM_GETCUEBANNER, text, room);
}

void CEdit::SetHighlight(int start, int end)
{
    send(*this, EM_SETHILITE, start, end);
}

BOOL CEdit::GetHighlight(int* start, int* end) const
{
    const DWORD range = send<DWORD>(*this, EM_GETHILITE);
    *start = LOWORD(range);
    *end = HIWORD(range);
    return range != 0;
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP tip)
{
    return send<BOOL>(*this, EM_SHOWBALLOONTIP, 0, tip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR title, LPCWSTR text, INT icon)
{
    EDITBALLOONTIP tip{sizeof tip, title, text, icon};
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return send<BOOL>(*this, EM_HIDEBALLOONTIP);
}
