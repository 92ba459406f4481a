// CCmdTarget: COM interfaces and their reference count.
#include <afxwin.h>

namespace
{

LPUNKNOWN partAt(const CCmdTarget* target, const AFX_INTERFACEMAP_ENTRY& entry)
{
    const auto* address = reinterpret_cast<const BYTE*>(target) + entry.nOffset;
    return reinterpret_cast<LPUNKNOWN>(const_cast<BYTE*>(address));
}

} // namespace

const AFX_INTERFACEMAP* PASCAL CCmdTarget::GetThisInterfaceMap()
{
    static const AFX_INTERFACEMAP_ENTRY entries[] = {{nullptr, 0}};
    static const AFX_INTERFACEMAP map{nullptr, entries};
    return &map;
}

const AFX_INTERFACEMAP* CCmdTarget::GetInterfaceMap() const
{
    return GetThisInterfaceMap();
}

LPUNKNOWN CCmdTarget::GetInterface(const void* iid)
{
    const IID& wanted = *static_cast<const IID*>(iid);
    const bool any = wanted == IID_IUnknown; // the first part stands for the object
    for (const AFX_INTERFACEMAP* map = GetInterfaceMap(); map;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_INTERFACEMAP_ENTRY* entry = map->pEntry; entry->piid; ++entry)
            if (any || *entry->piid == wanted)
                return partAt(this, *entry);
    return nullptr;
}

LPUNKNOWN CCmdTarget::GetControllingUnknown()
{
    return m_pOuterUnknown ? m_pOuterUnknown : GetInterface(&IID_IUnknown);
}

DWORD CCmdTarget::InternalAddRef()
{
    return static_cast<DWORD>(++m_dwRef);
}

DWORD CCmdTarget::InternalRelease()
{
    if (m_dwRef == 0)
        return 0;
    const long left = --m_dwRef;
    if (left == 0) {
        AFX_MANAGE_STATE(m_pModuleState)
        OnFinalRelease();
    }
    return static_cast<DWORD>(left);
}

DWORD CCmdTarget::InternalQueryInterface(const void* iid, LPVOID* object)
{
    const LPUNKNOWN part = GetInterface(iid);
    *object = part;
    if (!part)
        return static_cast<DWORD>(E_NOINTERFACE);
    ExternalAddRef();
    return static_cast<DWORD>(S_OK);
}

DWORD CCmdTarget::ExternalAddRef()
{
    return m_pOuterUnknown ? m_pOuterUnknown->AddRef() : InternalAddRef();
}

DWORD CCmdTarget::ExternalRelease()
{
    return m_pOuterUnknown ? m_pOuterUnknown->Release() : InternalRelease();
}

DWORD CCmdTarget::ExternalQueryInterface(const void* iid, LPVOID* object)
{
    return m_pOuterUnknown
               ? static_cast<DWORD>(m_pOuterUnknown->QueryInterface(*static_cast<const IID*>(iid), object))
               : InternalQueryInterface(iid, object);
}

void CCmdTarget::OnFinalRelease()
{
    delete this;
}
