// CListCtrl: tiles and groups.
#include <afxwin.h>
#include <afxcmn.h>

#include <detail/send.h>

using afxdetail::send;

BOOL CListCtrl::GetTileInfo(PLVTILEINFO info) const
{
    return send<BOOL>(*this, LVM_GETTILEINFO, 0, info);
}

BOOL CListCtrl::SetTileInfo(PLVTILEINFO info)
{
    return send<BOOL>(*this, LVM_SETTILEINFO, 0, info);
}

BOOL CListCtrl::GetTileViewInfo(PLVTILEVIEWINFO info) const
{
    return send<BOOL>(*this, LVM_GETTILEVIEWINFO, 0, info);
}

BOOL CListCtrl::SetTileViewInfo(PLVTILEVIEWINFO info)
{
    return send<BOOL>(*this, LVM_SETTILEVIEWINFO, 0, info);
}

LRESULT CListCtrl::EnableGroupView(BOOL enable)
{
    return send(*this, LVM_ENABLEGROUPVIEW, enable);
}

BOOL CListCtrl::IsGroupViewEnabled() const
{
    return send<BOOL>(*this, LVM_ISGROUPVIEWENABLED);
}

LRESULT CListCtrl::InsertGroup(int index, PLVGROUP group)
{
    return send(*this, LVM_INSERTGROUP, index, group);
}

LRESULT CListCtrl::InsertGroupSorted(PLVINSERTGROUPSORTED group)
{
    return send(*this, LVM_INSERTGROUPSORTED, group);
}

LRESULT CListCtrl::MoveGroup(int groupId, int index)
{
    return send(*this, LVM_MOVEGROUP, groupId, index);
}

void CListCtrl::MoveItemToGroup(int item, int groupId)
{
    send(*this, LVM_MOVEITEMTOGROUP, item, groupId);
}

LRESULT CListCtrl::RemoveGroup(int groupId)
{
    return send(*this, LVM_REMOVEGROUP, groupId);
}

void CListCtrl::RemoveAllGroups()
{
    send(*this, LVM_REMOVEALLGROUPS);
}

BOOL CListCtrl::HasGroup(int groupId) const
{
    return send<BOOL>(*this, LVM_HASGROUP, groupId);
}

int CListCtrl::GetGroupCount() const
{
    return send<int>(*this, LVM_GETGROUPCOUNT);
}

int CListCtrl::GetFocusedGroup() const
{
    return send<int>(*this, LVM_GETFOCUSEDGROUP);
}

int CListCtrl::GetGroupInfo(int groupId, PLVGROUP group) const
{
    return send<int>(*this, LVM_GETGROUPINFO, groupId, group);
}

BOOL CListCtrl::GetGroupInfoByIndex(int index, PLVGROUP group) const
{
    return send<BOOL>(*this, LVM_GETGROUPINFOBYINDEX, index, group);
}

int CListCtrl::SetGroupInfo(int groupId, PLVGROUP group)
{
    return send<int>(*this, LVM_SETGROUPINFO, groupId, group);
}

void CListCtrl::GetGroupMetrics(PLVGROUPMETRICS metrics) const
{
    send(*this, LVM_GETGROUPMETRICS, 0, metrics);
}

void CListCtrl::SetGroupMetrics(PLVGROUPMETRICS metrics)
{
    send(*this, LVM_SETGROUPMETRICS, 0, metrics);
}

BOOL CListCtrl::GetGroupRect(int groupId, LPRECT rect, int type) const
{
    rect->top = type; // the control expects the type here
    return send<BOOL>(*this, LVM_GETGROUPRECT, groupId, rect);
}

UINT CListCtrl::GetGroupState(int groupId, DWORD mask) const
{
    return send<UINT>(*this, LVM_GETGROUPSTATE, groupId, mask);
}

BOOL CListCtrl::SortGroups(PFNLVGROUPCOMPARE compare, LPVOID data)
{
    return send<BOOL>(*this, LVM_SORTGROUPS, compare, data);
}
