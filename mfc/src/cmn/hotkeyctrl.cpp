#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

CHotKeyCtrl::CHotKeyCtrl() = default;

BOOL CHotKeyCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(HOTKEY_CLASSW, nullptr, style, rect, parent, id);
}

BOOL CHotKeyCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, HOTKEY_CLASSW, nullptr, style | WS_CHILD, rect, parent, id);
}

void CHotKeyCtrl::SetHotKey(WORD virtualKey, WORD modifiers)
{
    send(*this, HKM_SETHOTKEY, MAKEWORD(virtualKey, modifiers));
}

DWORD CHotKeyCtrl::GetHotKey() const
{
    return send<DWORD>(*this, HKM_GETHOTKEY);
}

void CHotKeyCtrl::GetHotKey(WORD& virtualKey, WORD& modifiers) const
{
    const DWORD key = GetHotKey();
    virtualKey = LOBYTE(LOWORD(key));
    modifiers = HIBYTE(LOWORD(key));
}

CString CHotKeyCtrl::GetHotKeyName() const
{
    WORD key = 0;
    WORD modifiers = 0;
    GetHotKey(key, modifiers);
    if (key == 0 && modifiers == 0)
        return CString();

    static constexpr struct
    {
        WORD bit;
        UINT key;
    } kModifiers[] = {{HOTKEYF_CONTROL, VK_CONTROL}, {HOTKEYF_SHIFT, VK_SHIFT}, {HOTKEYF_ALT, VK_MENU}};
    CString name;
    for (const auto& modifier : kModifiers)
        if (modifiers & modifier.bit)
            name += GetKeyName(modifier.key, FALSE) + L" + ";
    return name + GetKeyName(key, (modifiers & HOTKEYF_EXT) != 0);
}

CString CHotKeyCtrl::GetKeyName(UINT virtualKey, BOOL extended)
{
    constexpr LONG kExtended = 1L << 24;
    LONG scan = static_cast<LONG>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
    if (extended)
        scan |= kExtended;
    wchar_t name[64]{};
    ::GetKeyNameTextW(scan, name, static_cast<int>(std::size(name)));
    return name;
}

void CHotKeyCtrl::SetRules(WORD invalidCombinations, WORD modifiers)
{
    send(*this, HKM_SETRULES, invalidCombinations, afxdetail::pack(modifiers, 0));
}
