// ColourMenu.cpp : a menu that shows colours
#include "stdafx.h"
#include "ColourMenu.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

void CColourMenu::AppendColour(UINT nID, COLORREF crColour)
{
    VERIFY(AppendMenu(MF_ENABLED | MF_OWNERDRAW, nID, reinterpret_cast<LPCTSTR>(static_cast<DWORD_PTR>(crColour))));
}

void CColourMenu::MeasureItem(LPMEASUREITEMSTRUCT lpMIS)
{
    lpMIS->itemWidth = 90;
    lpMIS->itemHeight = 24;
}

void CColourMenu::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    CDC* pDC = CDC::FromHandle(lpDIS->hDC);
    CRect rect(lpDIS->rcItem);
    CBrush brFrame(GetSysColor(lpDIS->itemState & ODS_SELECTED ? COLOR_HIGHLIGHT : COLOR_MENU));
    pDC->FillRect(rect, &brFrame);
    rect.DeflateRect(4, 4);
    CBrush br(static_cast<COLORREF>(lpDIS->itemData));
    pDC->FillRect(rect, &br);
}
