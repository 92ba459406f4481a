// What Format and the like take and refuse. With CASE_Refused every marked line gives an error.
#include <afxwin.h>

#include <string>

struct Plain
{
    int number = 1;
};

struct Movable
{
    Movable() = default;
    Movable(Movable&&) = default;
};

int Plain::*member = &Plain::number;

void taken(CString& text, const CString& other, HWND wnd, const Plain& plain)
{
    text.Format(L"%s %d %p %s", other, plain.number, wnd, text + other);
    text.Format(1, other);
    text.AppendFormat(L"%s", other);
    text.AppendFormat(1, other);
    text.FormatMessage(L"%1", other);
    text.FormatMessage(1, other);
    AfxTrace(L"%s", other);
}

#ifdef CASE_Refused
void refused(CString& text, const std::wstring& word, const Plain& plain, const CRect& rect)
{
    // refused from here
    text.Format(L"%s", word);
    text.Format(L"%s", plain);
    text.Format(L"%s %d", text, rect);
    text.Format(L"%s", Movable());
    text.Format(L"%d", member);
    text.Format(1, word);
    text.AppendFormat(L"%s", plain);
    text.AppendFormat(1, plain);
    text.FormatMessage(L"%1", word);
    text.FormatMessage(1, word);
    AfxTrace(L"%s", word);
    AfxTrace("%s", word);
    // refused to here
}
#endif
