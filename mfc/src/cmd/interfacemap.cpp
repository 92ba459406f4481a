// CCmdTarget: COM interfaces and their reference count.
#include <afxwin.h>

namespace
{

BYTE* placeOf(const CCmdTarget& target, const AFX_INTERFACEMAP_ENTRY& entry)
{
    return const_cast<BYTE*>(reinterpret_cast<const BYTE*>(&target)) + entry.nOffset;
}

/// Walks a map and its bases: the first entry of the wanted kind that the question is answered with yes for.
template <class Question>
const AFX_INTERFACEMAP_ENTRY* firstEntry(const AFX_INTERFACEMAP* map, bool aggregate, Question question)
{
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_INTERFACEMAP_ENTRY* entry = map->pEntry; entry->piid || entry->bAggregate; ++entry)
            if (entry->bAggregate == aggregate && question(*entry))
                return entry;
    return nullptr;
}

} // namespace

const AFX_INTERFACEMAP* PASCAL CCmdTarget::GetThisInterfaceMap()
{
    static const AFX_INTERFACEMAP_ENTRY entries[] = {{nullptr, 0, false}};
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
    const AFX_INTERFACEMAP_ENTRY* entry =
        firstEntry(GetInterfaceMap(), false, [&](const auto& part) { return any || *part.piid == wanted; });
    return entry ? reinterpret_cast<LPUNKNOWN>(placeOf(*this, *entry)) : nullptr;
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
    *object = GetInterface(iid);
    if (*object) {
        ExternalAddRef();
        return static_cast<DWORD>(S_OK);
    }
    const IID& wanted = *static_cast<const IID*>(iid);
    const AFX_INTERFACEMAP_ENTRY* inner = firstEntry(GetInterfaceMap(), true, [&](const auto& aggregate) {
        const LPUNKNOWN unknown = *reinterpret_cast<LPUNKNOWN*>(placeOf(*this, aggregate));
        return unknown && SUCCEEDED(unknown->QueryInterface(wanted, object));
    });
    return static_cast<DWORD>(inner ? S_OK : E_NOINTERFACE);
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
