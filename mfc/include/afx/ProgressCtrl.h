// CProgressCtrl: how far something long has come.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// A progress bar. Set functions give the value of before.
class OVOMFC_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    void GetRange(int& lower, int& upper);
    int GetPos();
    int SetPos(int position);
    int OffsetPos(int distance);
    int GetStep() const;
    int SetStep(int step);
    int StepIt();
    BOOL SetMarquee(BOOL marquee, int interval); ///< With PBS_MARQUEE; milliseconds between steps.
    int GetState() const;                        ///< PBST_ value.
    int SetState(int state);
    COLORREF GetBarColor() const;
    COLORREF SetBarColor(COLORREF colour);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF colour);
};
