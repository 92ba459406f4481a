#include "PageHeader.h"

#include "Resolution.h"

namespace
{

// Pixels at 96 dots per inch.
constexpr int kMargin = 10;
constexpr int kGap = 2;
constexpr int kAccent = 5; // height of the coloured line

int lineHeight(CDC& dc, CFont& font)
{
    CFont* const old = dc.SelectObject(&font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(old);
    return metrics.tmHeight;
}

} // namespace

BEGIN_MESSAGE_MAP(PageHeader, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

bool PageHeader::create(CWnd& parent)
{
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW));
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent, 0) != FALSE;
}

void PageHeader::useFont(const LOGFONT& font)
{
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&font);
    LOGFONT face = font;
    face.lfHeight = face.lfHeight * 3 / 2;
    face.lfWeight = FW_BOLD;
    m_titleFont.DeleteObject();
    m_titleFont.CreateFontIndirect(&face);

    CClientDC dc(this);
    m_titleHeight = lineHeight(dc, m_titleFont);
    m_margin = scaled(m_hWnd, kMargin);
    m_gap = scaled(m_hWnd, kGap);
    m_height = m_margin + m_titleHeight + m_gap + lineHeight(dc, m_font) + m_margin;
    Invalidate();
}

void PageHeader::show(const wchar_t* title, const wchar_t* summary)
{
    m_title = title;
    m_summary = summary;
    Invalidate();
}

void PageHeader::setAccent(COLORREF colour)
{
    m_accent = colour;
    Invalidate();
}

/// The ground too, which has no brush: where the window moves between erasing and painting, as it does when a
/// bar is docked, the two would be of different places.
void PageHeader::OnPaint()
{
    CPaintDC dc(this);
    CRect place;
    GetClientRect(&place);
    dc.FillSolidRect(&place, ::GetSysColor(COLOR_WINDOW));
    const int line = m_accent ? scaled(m_hWnd, kAccent) : 1;
    dc.FillSolidRect(place.left, place.bottom - line, place.Width(), line,
                     m_accent.value_or(::GetSysColor(COLOR_BTNSHADOW)));

    place.DeflateRect(m_margin, m_margin);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    CFont* const old = dc.SelectObject(&m_titleFont);
    dc.DrawText(m_title, -1, &place, DT_SINGLELINE | DT_NOPREFIX);
    dc.SelectObject(&m_font);
    place.top += m_titleHeight + m_gap;
    dc.DrawText(m_summary, -1, &place, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SelectObject(old);
}
