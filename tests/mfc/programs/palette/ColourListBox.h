// ColourListBox.h : a list that shows colours with their names
#pragma once

class CColourListBox : public CListBox
{
public:
    int AddColour(LPCTSTR lpszName, COLORREF crColour);

    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMIS);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDIS);
};
