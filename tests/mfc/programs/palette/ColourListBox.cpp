// ColourListBox.cpp : a list that shows colours with their names
#include "stdafx.h"
#include "ColourListBox.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

int CColourListBox::AddColour(LPCTSTR lpszName, COLORREF crColour)
{
    int nIndex = AddString(lpszName);
    if (nIndex >= 0)
        SetItemData(nIndex, crColour);
    return nIndex;
}

void CColourListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMIS)
{
    // The first colour is twice as high as the others.
    lpMIS->itemHeight = lpMIS->itemID == 0 ? 40 : 20;
}

void CColourListBox::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    if (lpDIS->itemID == static_cast<UINT>(-1))
        return;
    CDC dc;
    dc.Attach(lpDIS->hDC);
    CRect rect(lpDIS->rcItem);
    BOOL bSelected = lpDIS->itemState & ODS_SELECTED;
    dc.FillSolidRect(rect, GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));

    CRect rectColour(rect.left + 4, rect.top + 2, rect.left + 44, rect.bottom - 2);
    dc.FillSolidRect(rectColour, static_cast<COLORREF>(lpDIS->itemData));

    CString strName;
    GetText(lpDIS->itemID, strName);
    COLORREF crOld = dc.SetTextColor(GetSysColor(bSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    int nOldMode = dc.SetBkMode(TRANSPARENT);
    rect.left = rectColour.right + 6;
    dc.DrawText(strName, rect, DT_SINGLELINE | DT_VCENTER);
    dc.SetBkMode(nOldMode);
    dc.SetTextColor(crOld);
    if (lpDIS->itemState & ODS_FOCUS)
        dc.DrawFocusRect(&lpDIS->rcItem);
    dc.Detach();
}
