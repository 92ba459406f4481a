#include "DrawingSamples.h"

#include "Resolution.h"
#include "resource.h"

#include <ovosvg/ovosvg.h>

#include <string>
#include <vector>

BEGIN_MESSAGE_MAP(DrawingSamples, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

// Pixels at 96 dots per inch.
constexpr int kSizesShown[] = {16, 20, 24, 32, 48};
constexpr int kLabel = 104;
constexpr int kGap = 10;
constexpr int kLine = 18;

constexpr int kImages = 3;
constexpr std::size_t kEnlarged = 1; // of the sizes
constexpr int kZoom = 3;

std::vector<ovosvg::SvgDrawing> drawings()
{
    using ovosvg::SvgDrawing;
    return {SvgDrawing::fromResource(IDR_DRAWING_SUN), SvgDrawing::fromResource(IDR_DRAWING_CLOCK),
            SvgDrawing::fromResource(IDR_DRAWING_CHART)};
}

} // namespace

bool DrawingSamples::create(CWnd& parent)
{
    const ovosvg::SvgStrip drawn(drawings());
    for (std::size_t i = 0; i < kSizes; ++i) {
        const int size = kSizesShown[i];
        m_drawn[i] = CImageStrips(drawn, size);
        m_scaled[i] =
            CImageStrips({{IDB_DRAWINGS_16, 16}, {IDB_DRAWINGS_24, 24}, {IDB_DRAWINGS_32, 32}}, size);
        load(m_drawn[i], parent);
        load(m_scaled[i], parent);
    }
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CreateEx(0, cls, L"", WS_CHILD, CRect(), &parent, 1) != FALSE;
}

/// Another resolution makes another page; other system colours make other images.
void DrawingSamples::load(CImageStrips& strips, CWnd& parent)
{
    strips.UseDisabledImages(true);
    strips.Load(dotsPerInch(parent.m_hWnd));
    strips.Follow(*parent.GetTopLevelParent(), [this] {
        if (m_hWnd)
            Invalidate();
    });
}

void DrawingSamples::OnPaint()
{
    CPaintDC dc(this);
    CFont* const old = dc.SelectObject(GetParent()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    int top = drawSizes(dc);
    top = drawRow(dc, L"Drawn as SVG", m_drawn, false, top);
    top = drawRow(dc, L"Disabled", m_drawn, true, top);
    top = drawRow(dc, L"Three strips", m_scaled, false, top);
    top = drawRow(dc, L"Disabled", m_scaled, true, top);
    drawEnlarged(dc, L"Drawn, scaled", top);
    dc.SelectObject(old);
}

/// The sizes in pixels, each above its images.
int DrawingSamples::drawSizes(CDC& dc)
{
    const int line = scaled(m_hWnd, kLine);
    int left = scaled(m_hWnd, kLabel);
    CRect label(0, 0, left, line);
    dc.DrawText(L"Pixels", -1, &label, DT_SINGLELINE);
    for (const CImageStrips& strips : m_drawn) {
        const int width = kImages * (strips.GetSize() + 2);
        CRect place(left, 0, left + width, line);
        dc.DrawText(std::to_wstring(strips.GetSize()).c_str(), -1, &place, DT_SINGLELINE | DT_NOCLIP);
        left += width + scaled(m_hWnd, kGap);
    }
    return line;
}

int DrawingSamples::drawRow(CDC& dc, const wchar_t* label, const Row& row, bool disabled, int top)
{
    const int height = row.back().GetSize();
    CRect place(0, top, scaled(m_hWnd, kLabel), top + height);
    dc.DrawText(label, -1, &place, DT_SINGLELINE | DT_VCENTER);
    int left = place.right;
    for (const CImageStrips& strips : row) {
        const HIMAGELIST list = disabled ? strips.GetDisabledImageList() : strips.GetImageList();
        for (int i = 0; i < kImages; ++i, left += strips.GetSize() + 2)
            ::ImageList_Draw(list, i, dc, left, top + (height - strips.GetSize()) / 2, ILD_TRANSPARENT);
        left += scaled(m_hWnd, kGap);
    }
    return top + height + scaled(m_hWnd, kGap) / 2;
}

/// The images of one size with every pixel as a square, drawn and beside them scaled.
void DrawingSamples::drawEnlarged(CDC& dc, const wchar_t* label, int top)
{
    const int size = m_drawn[kEnlarged].GetSize();
    const int side = size * kZoom;
    CRect place(0, top, scaled(m_hWnd, kLabel), top + side);
    dc.DrawText(label, -1, &place, DT_SINGLELINE | DT_VCENTER);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, size, size);
    CBitmap* const old = memory.SelectObject(&bitmap);
    dc.SetStretchBltMode(COLORONCOLOR);
    int left = place.right;
    for (const Row* const row : {&m_drawn, &m_scaled}) {
        for (int i = 0; i < kImages; ++i, left += side + 2) {
            memory.FillSolidRect(0, 0, size, size, ::GetSysColor(COLOR_BTNFACE));
            ::ImageList_Draw((*row)[kEnlarged].GetImageList(), i, memory, 0, 0, ILD_TRANSPARENT);
            dc.StretchBlt(left, top, side, side, &memory, 0, 0, size, size, SRCCOPY | NOMIRRORBITMAP);
        }
        left += scaled(m_hWnd, kGap);
    }
    memory.SelectObject(old);
}
