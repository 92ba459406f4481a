// ColourMenu.h : a menu that shows colours
#pragma once

class CColourMenu : public CMenu
{
public:
    void AppendColour(UINT nID, COLORREF crColour);

    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMIS);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDIS);
};
