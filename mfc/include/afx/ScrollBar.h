// CScrollBar: a scroll bar that is a control, not part of a window's frame.
#pragma once

#include <afx/Wnd.h>

/// A scroll bar control.
class OVOMFC_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetScrollPos() const;
    int SetScrollPos(int position, BOOL redraw = TRUE); ///< Gives the position of before.
    void GetScrollRange(LPINT minimum, LPINT maximum) const;
    void SetScrollRange(int minimum, int maximum, BOOL redraw = TRUE);
    void ShowScrollBar(BOOL show = TRUE);
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH);
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE);  ///< Sets info->cbSize itself.
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL); ///< Sets info->cbSize and fMask itself.
    int GetScrollLimit(); ///< The greatest position that the user can reach: maximum less page, plus 1.
    BOOL GetScrollBarInfo(PSCROLLBARINFO info) const;
};
