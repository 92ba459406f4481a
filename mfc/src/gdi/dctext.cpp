// CDC: writing text.
#include <afxwin.h>

#include <detail/handleof.h>

#include "bothdcs.h"

using afxdetail::handleOf;
using afxdetail::inBoth;

namespace
{

/// The longest that DT_MODIFYSTRING makes a text: an ellipsis and the terminating zero.
constexpr std::size_t kEllipsisRoom = 4;

CSize textExtent(HDC dc, LPCTSTR text, int count)
{
    CSize size;
    ::GetTextExtentPoint32W(dc, text, count, &size);
    return size;
}

CSize tabbedExtent(HDC dc, LPCTSTR text, int count, int tabCount, LPINT tabStops)
{
    return CSize(::GetTabbedTextExtentW(dc, text, count, tabCount, tabStops));
}

} // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int count)
{
    return ::TextOutW(m_hDC, x, y, text, count);
}

BOOL CDC::TextOut(int x, int y, const CString& text)
{
    return TextOut(x, y, text, text.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths)
{
    return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths)
{
    return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount, LPINT tabStops, int tabOrigin)
{
    return CSize(
        static_cast<DWORD>(::TabbedTextOutW(m_hDC, x, y, text, count, tabCount, tabStops, tabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& text, int tabCount, LPINT tabStops, int tabOrigin)
{
    return TabbedTextOut(x, y, text, text.GetLength(), tabCount, tabStops, tabOrigin);
}

int CDC::DrawText(LPCTSTR text, int count, LPRECT rect, UINT format)
{
    return ::DrawTextW(m_hDC, text, count, rect, format);
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format)
{
    if (!(format & DT_MODIFYSTRING))
        return DrawText(text.GetString(), text.GetLength(), rect, format);
    // The string is the caller's and constant: a copy takes the ellipsis.
    std::wstring copy(text);
    copy.resize(copy.size() + kEllipsisRoom);
    return DrawText(copy.data(), text.GetLength(), rect, format);
}

int CDC::DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params)
{
    return ::DrawTextExW(m_hDC, text, count, rect, format, params);
}

int CDC::DrawTextEx(const CString& text, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params)
{
    std::wstring copy(text);
    copy.resize(copy.size() + kEllipsisRoom);
    return DrawTextEx(copy.data(), text.GetLength(), rect, format, params);
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const
{
    return textExtent(m_hAttribDC, text, count);
}

CSize CDC::GetTextExtent(const CString& text) const
{
    return GetTextExtent(text, text.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR text, int count) const
{
    return textExtent(m_hDC, text, count);
}

CSize CDC::GetOutputTextExtent(const CString& text) const
{
    return GetOutputTextExtent(text, text.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR text, int count, int tabCount, LPINT tabStops) const
{
    return tabbedExtent(m_hAttribDC, text, count, tabCount, tabStops);
}

CSize CDC::GetTabbedTextExtent(const CString& text, int tabCount, LPINT tabStops) const
{
    return GetTabbedTextExtent(text, text.GetLength(), tabCount, tabStops);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR text, int count, int tabCount, LPINT tabStops) const
{
    return tabbedExtent(m_hDC, text, count, tabCount, tabStops);
}

CSize CDC::GetOutputTabbedTextExtent(const CString& text, int tabCount, LPINT tabStops) const
{
    return GetOutputTabbedTextExtent(text, text.GetLength(), tabCount, tabStops);
}

BOOL CDC::GetTextExtentExPointI(LPWORD glyphs, int count, int maxExtent, LPINT fit, LPINT dx,
                                LPSIZE size) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, glyphs, count, maxExtent, fit, dx, size);
}

BOOL CDC::GetTextExtentPointI(LPWORD glyphs, int count, LPSIZE size) const
{
    return ::GetTextExtentPointI(m_hAttribDC, glyphs, count, size);
}

BOOL CDC::GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int count, int x,
                     int y, int width, int height)
{
    return ::GrayStringW(m_hDC, handleOf(brush), output, data, count, x, y, width, height);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT flags)
{
    return inBoth(*this, [flags](HDC dc) { return ::SetTextAlign(dc, flags); });
}

int CDC::GetTextFace(int count, LPTSTR name) const
{
    return ::GetTextFaceW(m_hAttribDC, count, name);
}

int CDC::GetTextFace(CString& name) const
{
    const int room = ::GetTextFaceW(m_hAttribDC, 0, nullptr);
    const int length = ::GetTextFaceW(m_hAttribDC, room, name.GetBuffer(room));
    name.ReleaseBuffer();
    return length;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetricsW(m_hAttribDC, metrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetricsW(m_hDC, metrics);
}

int CDC::SetTextJustification(int breakExtra, int breakCount)
{
    return inBoth(*this, [=](HDC dc) { return ::SetTextJustification(dc, breakExtra, breakCount); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int extra)
{
    return inBoth(*this, [extra](HDC dc) { return ::SetTextCharacterExtra(dc, extra); });
}

DWORD CDC::GetCharacterPlacement(LPCTSTR text, int count, int maxExtent, LPGCP_RESULTS results,
                                 DWORD flags) const
{
    return ::GetCharacterPlacementW(m_hAttribDC, text, count, maxExtent, results, flags);
}

DWORD CDC::GetCharacterPlacement(CString& text, int maxExtent, LPGCP_RESULTS results, DWORD flags) const
{
    return GetCharacterPlacement(text, text.GetLength(), maxExtent, results, flags);
}
