#include <afxwin.h>

#include <cwchar>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace
{

/// The screen's context for as long as a measurement takes.
class ScreenDc
{
public:
    ScreenDc() = default;
    ~ScreenDc() { ::ReleaseDC(nullptr, m_dc); }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;

    operator HDC() const { return m_dc; }

private:
    HDC m_dc = ::GetDC(nullptr);
};

/// Tenths of a point as logical units of a context.
LONG logicalHeight(HDC dc, LONG tenthsOfPoint)
{
    const int pixels = ::MulDiv(tenthsOfPoint, ::GetDeviceCaps(dc, LOGPIXELSY), 720);
    POINT ends[] = {{0, 0}, {0, pixels}};
    ::DPtoLP(dc, ends, 2);
    return std::abs(ends[1].y - ends[0].y);
}

} // namespace

CFont::CFont() = default;

CFont* PASCAL CFont::FromHandle(HFONT font)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(font));
}

BOOL CFont::CreateFontIndirect(const LOGFONT* font)
{
    return adopt(::CreateFontIndirectW(font));
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                       BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                       BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName)
{
    return adopt(::CreateFontW(height, width, escapement, orientation, weight, italic, underline, strikeOut,
                               charSet, outPrecision, clipPrecision, quality, pitchAndFamily, faceName));
}

BOOL CFont::CreatePointFont(int pointSize, LPCTSTR faceName, CDC* dc)
{
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = pointSize;
    ::lstrcpynW(font.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* font, CDC* dc)
{
    LOGFONT scaled = *font;
    // Negative: the height of the characters, as point sizes are meant, not of the line.
    scaled.lfHeight =
        -(dc ? logicalHeight(dc->m_hAttribDC, font->lfHeight) : logicalHeight(ScreenDc(), font->lfHeight));
    return CreateFontIndirect(&scaled);
}

CFont::operator HFONT() const
{
    return static_cast<HFONT>(m_hObject);
}

int CFont::GetLogFont(LOGFONT* font)
{
    return GetObject(sizeof *font, font);
}
