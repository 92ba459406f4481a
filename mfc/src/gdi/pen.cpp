#include <afxwin.h>

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen() = default;

CPen::CPen(int style, int width, COLORREF colour)
{
    if (!CreatePen(style, width, colour))
        AfxThrowResourceException();
}

CPen::CPen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    if (!CreatePen(style, width, brush, styleCount, styles))
        AfxThrowResourceException();
}

CPen* PASCAL CPen::FromHandle(HPEN pen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(pen));
}

BOOL CPen::CreatePen(int style, int width, COLORREF colour)
{
    return adopt(::CreatePen(style, width, colour));
}

BOOL CPen::CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    return adopt(::ExtCreatePen(static_cast<DWORD>(style), static_cast<DWORD>(width), brush,
                                static_cast<DWORD>(styleCount), styles));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN pen)
{
    return adopt(::CreatePenIndirect(pen));
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(m_hObject);
}

int CPen::GetLogPen(LOGPEN* pen)
{
    return GetObject(sizeof *pen, pen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pen)
{
    return GetObject(GetObject(0, nullptr), pen);
}
