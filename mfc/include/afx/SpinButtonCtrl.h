// CSpinButtonCtrl: a pair of arrows that count up and down.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// An up-down control.
class OVOMFC_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    BOOL SetAccel(int count, UDACCEL* accelerations);
    UINT GetAccel(int room, UDACCEL* accelerations) const; ///< Gives how many there are.
    int SetBase(int base); ///< 10 or 16; gives the base of before, 0 for a wrong one.
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* buddy); ///< Gives the buddy of before.
    CWnd* GetBuddy() const;
    int GetPos() const;       ///< Low word: position; high word: nonzero when the buddy shows no valid one.
    int SetPos(int position); ///< Gives the position of before, as SetPos32.
    int GetPos32(LPBOOL error = nullptr) const;
    int SetPos32(int position);
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    DWORD GetRange() const; ///< Low word upper, high word lower.
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
};
