#include "PageLayout.h"

#include "Resolution.h"

#include <algorithm>
#include <string_view>

namespace
{

constexpr int kLine = 16; // pixels at 96 dots per inch

CRect placeInParent(HWND child)
{
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool isCombo(HWND window)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(window, name, 16);
    return std::wstring_view(name) == L"ComboBox";
}

// The height that a combo box is given is the one with its list open.
CRect fullPlace(HWND child)
{
    CRect place = placeInParent(child);
    CRect dropped;
    if (isCombo(child) &&
        ::SendMessageW(child, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped)))
        place.bottom = place.top + dropped.Height();
    return place;
}

CPoint clamped(CPoint point, CPoint most)
{
    return {std::clamp(point.x, 0L, most.x), std::clamp(point.y, 0L, most.y)};
}

/// The nearest offset at which a stretch of the page is in view.
LONG offsetShowing(LONG offset, LONG begin, LONG end, LONG view)
{
    return std::min(std::max(offset, end - view), begin);
}

} // namespace

void PageLayout::begin(CWnd& page)
{
    CRect client;
    page.GetClientRect(&client);
    m_page = page.m_hWnd;
    m_size = client.Size();
}

void PageLayout::stretch(HWND child, const Stretch& how)
{
    m_items.push_back({child, fullPlace(child) + m_offset, how});
}

void PageLayout::apply()
{
    if (!m_page || m_applying)
        return;
    m_applying = true; // bars that come and go size the page again
    showBars();
    scrollTo(m_offset);
    place();
    m_applying = false;
}

CSize PageLayout::viewSize() const
{
    CRect client;
    ::GetClientRect(m_page, &client);
    return client.Size();
}

CPoint PageLayout::farthest() const
{
    const CSize view = viewSize();
    return {std::max(m_size.cx - view.cx, 0L), std::max(m_size.cy - view.cy, 0L)};
}

void PageLayout::showBars()
{
    CRect whole;
    ::GetWindowRect(m_page, &whole);
    bool horizontal = whole.Width() < m_size.cx;
    const bool vertical = whole.Height() - (horizontal ? ::GetSystemMetrics(SM_CYHSCROLL) : 0) < m_size.cy;
    horizontal = whole.Width() - (vertical ? ::GetSystemMetrics(SM_CXVSCROLL) : 0) < m_size.cx;
    ::ShowScrollBar(m_page, SB_HORZ, horizontal);
    ::ShowScrollBar(m_page, SB_VERT, vertical);
    const CSize view = viewSize();
    const auto setBar = [this](int bar, LONG size, LONG page) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMax = static_cast<int>(size) - 1;
        info.nPage = static_cast<UINT>(page);
        ::SetScrollInfo(m_page, bar, &info, TRUE);
    };
    if (horizontal)
        setBar(SB_HORZ, m_size.cx, view.cx);
    if (vertical)
        setBar(SB_VERT, m_size.cy, view.cy);
}

// Moves all children, those too that were never named here.
void PageLayout::scrollTo(CPoint offset)
{
    const CPoint to = clamped(offset, farthest());
    const CSize by = m_offset - to;
    m_offset = to;
    if (by.cx == 0 && by.cy == 0)
        return;
    ::ScrollWindowEx(m_page, by.cx, by.cy, nullptr, nullptr, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    ::SetScrollPos(m_page, SB_HORZ, to.x, TRUE);
    ::SetScrollPos(m_page, SB_VERT, to.y, TRUE);
}

void PageLayout::place()
{
    const CSize view = viewSize();
    const LONG gainX = std::max(view.cx - m_size.cx, 0L);
    const LONG gainY = std::max(view.cy - m_size.cy, 0L);
    HDWP moves = ::BeginDeferWindowPos(static_cast<int>(m_items.size()));
    for (const Item& item : m_items) {
        if (!::IsWindow(item.window))
            continue;
        CRect rect = item.home - m_offset;
        rect.OffsetRect(gainX * item.how.moveX / 100, gainY * item.how.moveY / 100);
        rect.right += gainX * item.how.growX / 100;
        rect.bottom += gainY * item.how.growY / 100;
        moves = ::DeferWindowPos(moves, item.window, nullptr, rect.left, rect.top, rect.Width(),
                                 rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    ::EndDeferWindowPos(moves);
}

bool PageLayout::scrollsVertically() const
{
    return farthest().y > 0;
}

void PageLayout::scroll(int bar, int code)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(m_page, bar, &info);
    const int line = scaled(m_page, kLine);
    const int page = static_cast<int>(info.nPage);
    CPoint to = m_offset;
    LONG& at = bar == SB_HORZ ? to.x : to.y;
    switch (code) {
    case SB_LINEUP:
        at -= line;
        break;
    case SB_LINEDOWN:
        at += line;
        break;
    case SB_PAGEUP:
        at -= page;
        break;
    case SB_PAGEDOWN:
        at += page;
        break;
    case SB_TOP:
        at = 0;
        break;
    case SB_BOTTOM:
        at = info.nMax;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        at = info.nTrackPos;
        break;
    default:
        return;
    }
    scrollTo(to);
}

void PageLayout::reveal(HWND inside)
{
    if (!m_page || !::IsChild(m_page, inside))
        return;
    CRect rect;
    ::GetWindowRect(inside, &rect);
    ::MapWindowPoints(nullptr, m_page, reinterpret_cast<POINT*>(&rect), 2);
    rect.OffsetRect(m_offset);
    const CSize view = viewSize();
    scrollTo({offsetShowing(m_offset.x, rect.left, rect.right, view.cx),
              offsetShowing(m_offset.y, rect.top, rect.bottom, view.cy)});
}
