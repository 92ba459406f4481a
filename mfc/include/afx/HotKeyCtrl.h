// CHotKeyCtrl: a field for a key with its modifiers.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>

/// A hot key control. `virtualKey` is a VK_ code, `modifiers` are HOTKEYF_ bits.
class OVOMFC_API CHotKeyCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHotKeyCtrl)

public:
    CHotKeyCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    void SetHotKey(WORD virtualKey, WORD modifiers);
    DWORD GetHotKey() const; ///< Low byte the key, high byte of the low word the modifiers.
    void GetHotKey(WORD& virtualKey, WORD& modifiers) const;
    CString GetHotKeyName() const; ///< As "Ctrl + Shift + A".
    static CString GetKeyName(UINT virtualKey, BOOL extended);
    /// Combinations (HKCOMB_ bits) that the user cannot enter; `modifiers` are used in their place.
    void SetRules(WORD invalidCombinations, WORD modifiers);
};
