#include "Journal.h"

#include "Resolution.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr size_t kLines = 2000; // more are of no use, and each is kept
constexpr int kMargin = 4;      // pixels at 96 dots per inch, beside the widest line

bool asksForLines(UINT message)
{
    return message >= LB_ADDSTRING && message < LB_MSGMAX;
}

} // namespace

bool Journal::create(CWnd& parent, int id)
{
    constexpr DWORD kStyle =
        LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | WS_VISIBLE | WS_CHILD;
    return CWnd::CreateEx(WS_EX_CLIENTEDGE, L"LISTBOX", nullptr, kStyle, CRect(), &parent, id) != FALSE;
}

void Journal::add(const std::wstring& line)
{
    if (m_added.empty())
        Invalidate(FALSE);
    if (m_added.size() == kLines)
        m_added.pop_front();
    m_added.push_back(line);
}

void Journal::clear()
{
    m_added.clear();
    ResetContent();
    SetHorizontalExtent(0);
}

bool Journal::isEmpty() const
{
    return m_added.empty() && GetCount() == 0;
}

void Journal::useFont(CFont& font)
{
    SetFont(&font);
    SetHorizontalExtent(0);
    widen(0);
}

LRESULT Journal::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PAINT || asksForLines(message))
        showAdded();
    return CListBox::WindowProc(message, wParam, lParam);
}

void Journal::showAdded()
{
    const std::deque<std::wstring> lines = std::exchange(m_added, {});
    if (lines.empty())
        return;
    SetRedraw(FALSE);
    const int kept = static_cast<int>(std::min(static_cast<size_t>(GetCount()), kLines - lines.size()));
    while (GetCount() > kept)
        DeleteString(0);
    for (const std::wstring& line : lines)
        AddString(line.c_str());
    widen(kept);
    SetTopIndex(GetCount() - 1);
    SetRedraw(TRUE);
    Invalidate();
}

/// Lines wider than the list are reached with its scroll bar.
void Journal::widen(int from)
{
    CClientDC dc(this);
    CFont* const old = dc.SelectObject(GetFont());
    int widest = 0;
    CString line;
    for (int i = from; i < GetCount(); ++i) {
        GetText(i, line);
        widest = std::max(widest, static_cast<int>(dc.GetTextExtent(line).cx));
    }
    dc.SelectObject(old);
    const int needed = widest + scaled(m_hWnd, kMargin);
    if (widest > 0 && needed > GetHorizontalExtent())
        SetHorizontalExtent(needed);
}
