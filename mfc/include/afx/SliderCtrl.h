// CSliderCtrl: a thumb to drag along a scale.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

class CToolTipCtrl;

/// A trackbar control.
class OVOMFC_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Range and position
    int GetPos() const;
    void SetPos(int position); ///< Repaints; the range limits it.
    void GetRange(int& minimum, int& maximum) const;
    /// Any int, not 16 bits only; keeps the position inside.
    void SetRange(int minimum, int maximum, BOOL redraw = FALSE);
    int GetRangeMin() const;
    void SetRangeMin(int minimum, BOOL redraw = FALSE);
    int GetRangeMax() const;
    void SetRangeMax(int maximum, BOOL redraw = FALSE);
    int GetLineSize() const;
    int SetLineSize(int size); ///< Gives the size of before, as SetPageSize.
    int GetPageSize() const;
    int SetPageSize(int size);
    void GetSelection(int& minimum, int& maximum) const; ///< With TBS_ENABLESELRANGE, as the following.
    void SetSelection(int minimum, int maximum);
    void ClearSel(BOOL redraw = FALSE);

    // Tic marks
    UINT GetNumTics() const;
    DWORD* GetTicArray() const; ///< Positions; the array is the control's.
    int GetTic(int tic) const;
    int GetTicPos(int tic) const; ///< Client coordinate.
    BOOL SetTic(int position);
    void SetTicFreq(int frequency);
    void ClearTics(BOOL redraw = FALSE);

    // Where things are, in client pixels. The channel rectangle is that of a horizontal control even when
    // the control is vertical.
    void GetChannelRect(LPRECT rect) const;
    void GetThumbRect(LPRECT rect) const;
    int GetThumbLength() const;
    void SetThumbLength(int length);

    // Windows beside it
    CWnd* GetBuddy(BOOL leftOrAbove = TRUE) const;
    CWnd* SetBuddy(CWnd* buddy, BOOL leftOrAbove = TRUE); ///< Gives the buddy of before.
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* tip);
    int SetTipSide(int side); ///< TBTS_ value; gives the side of before.
};
