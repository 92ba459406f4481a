// CIPAddressCtrl: four numbers with dots between them.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// An IP address control. Fields count from 0 at the left, which is the high byte of an address in one
/// number.
class OVOMFC_API CIPAddressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CIPAddressCtrl)

public:
    CIPAddressCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    BOOL IsBlank() const;
    void ClearAddress();
    int GetAddress(BYTE& field0, BYTE& field1, BYTE& field2,
                   BYTE& field3) const; ///< How many fields are filled in.
    int GetAddress(DWORD& address) const;
    void SetAddress(DWORD address);
    void SetAddress(BYTE field0, BYTE field1, BYTE field2, BYTE field3);
    void SetFieldFocus(WORD field); ///< Beyond 3: the first one that is empty.
    void SetFieldRange(int field, BYTE lower, BYTE upper);
};
