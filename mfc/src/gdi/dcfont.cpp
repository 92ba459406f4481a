// CDC: what the selected font is like.
#include <afxwin.h>

#include "bothdcs.h"

using afxdetail::inBoth;

BOOL CDC::GetCharWidth(UINT first, UINT last, LPINT widths) const
{
    return ::GetCharWidth32W(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetCharWidth(UINT first, UINT last, float* widths) const
{
    return ::GetCharWidthFloatW(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetOutputCharWidth(UINT first, UINT last, LPINT widths) const
{
    return ::GetCharWidth32W(m_hDC, first, last, widths);
}

BOOL CDC::GetCharWidthI(UINT first, UINT count, LPWORD glyphs, LPINT widths) const
{
    return ::GetCharWidthI(m_hAttribDC, first, count, glyphs, widths);
}

BOOL CDC::GetCharABCWidths(UINT first, UINT last, LPABC widths) const
{
    return ::GetCharABCWidthsW(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetCharABCWidths(UINT first, UINT last, LPABCFLOAT widths) const
{
    return ::GetCharABCWidthsFloatW(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetCharABCWidthsI(UINT first, UINT count, LPWORD glyphs, LPABC widths) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, first, count, glyphs, widths);
}

DWORD CDC::SetMapperFlags(DWORD flag)
{
    return inBoth(*this, [flag](HDC dc) { return ::SetMapperFlags(dc, flag); });
}

CSize CDC::GetAspectRatioFilter() const
{
    CSize ratio;
    ::GetAspectRatioFilterEx(m_hAttribDC, &ratio);
    return ratio;
}

DWORD CDC::GetFontData(DWORD table, DWORD offset, LPVOID data, DWORD size) const
{
    return ::GetFontData(m_hAttribDC, table, offset, data, size);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hAttribDC);
}

int CDC::GetKerningPairs(int count, LPKERNINGPAIR pairs) const
{
    return static_cast<int>(::GetKerningPairsW(m_hAttribDC, static_cast<DWORD>(count), pairs));
}

UINT CDC::GetOutlineTextMetrics(UINT size, LPOUTLINETEXTMETRIC metrics) const
{
    return ::GetOutlineTextMetricsW(m_hAttribDC, size, metrics);
}

DWORD CDC::GetGlyphOutline(UINT character, UINT format, LPGLYPHMETRICS metrics, DWORD size, LPVOID buffer,
                           const MAT2* matrix) const
{
    return ::GetGlyphOutlineW(m_hAttribDC, character, format, metrics, size, buffer, matrix);
}
