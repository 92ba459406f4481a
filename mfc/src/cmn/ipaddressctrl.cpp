#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)

CIPAddressCtrl::CIPAddressCtrl() = default;

BOOL CIPAddressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_IPADDRESSW, nullptr, style, rect, parent, id);
}

BOOL CIPAddressCtrl::CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::CreateEx(exStyle, WC_IPADDRESSW, nullptr, style | WS_CHILD, rect, parent, id);
}

BOOL CIPAddressCtrl::IsBlank() const
{
    return send<BOOL>(*this, IPM_ISBLANK);
}

void CIPAddressCtrl::ClearAddress()
{
    send(*this, IPM_CLEARADDRESS);
}

int CIPAddressCtrl::GetAddress(BYTE& field0, BYTE& field1, BYTE& field2, BYTE& field3) const
{
    DWORD address = 0;
    const int filled = GetAddress(address);
    field0 = FIRST_IPADDRESS(address);
    field1 = SECOND_IPADDRESS(address);
    field2 = THIRD_IPADDRESS(address);
    field3 = FOURTH_IPADDRESS(address);
    return filled;
}

int CIPAddressCtrl::GetAddress(DWORD& address) const
{
    return send<int>(*this, IPM_GETADDRESS, 0, &address);
}

void CIPAddressCtrl::SetAddress(DWORD address)
{
    send(*this, IPM_SETADDRESS, 0, address);
}

void CIPAddressCtrl::SetAddress(BYTE field0, BYTE field1, BYTE field2, BYTE field3)
{
    SetAddress(static_cast<DWORD>(MAKEIPADDRESS(field0, field1, field2, field3)));
}

void CIPAddressCtrl::SetFieldFocus(WORD field)
{
    send(*this, IPM_SETFOCUS, field);
}

void CIPAddressCtrl::SetFieldRange(int field, BYTE lower, BYTE upper)
{
    send(*this, IPM_SETRANGE, field, MAKEIPRANGE(lower, upper));
}
