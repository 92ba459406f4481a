// CObject and its class records.
#include <afx.h>

#include <cstring>
#include <utility>

namespace
{

CRuntimeClass* s_firstClass = nullptr;

} // namespace

afxdetail::Enlistment::Enlistment(CRuntimeClass* record)
    : m_record(record)
{
    record->m_pNextClass = std::exchange(s_firstClass, record);
}

afxdetail::Enlistment::~Enlistment()
{
    CRuntimeClass** link = &s_firstClass;
    while (*link && *link != m_record)
        link = &(*link)->m_pNextClass;
    if (*link)
        *link = m_record->m_pNextClass;
}

CObject* CRuntimeClass::CreateObject()
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* cls = this; cls;
         cls = cls->m_pfnGetBaseClass ? cls->m_pfnGetBaseClass() : nullptr)
        if (cls == base)
            return TRUE;
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR name)
{
    for (CRuntimeClass* cls = s_firstClass; cls; cls = cls->m_pNextClass)
        if (std::strcmp(cls->m_lpszClassName, name) == 0)
            return cls;
    return nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR name)
{
    char narrow[256];
    return ::WideCharToMultiByte(CP_ACP, 0, name, -1, narrow, sizeof narrow, nullptr, nullptr)
               ? FromName(narrow)
               : nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR name)
{
    CRuntimeClass* cls = FromName(name);
    return cls ? cls->CreateObject() : nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR name)
{
    CRuntimeClass* cls = FromName(name);
    return cls ? cls->CreateObject() : nullptr;
}

static const afxdetail::Enlistment rootEnlistment(CObject::GetThisClass());

CObject::CObject() = default;

CObject::~CObject() = default;

CRuntimeClass* PASCAL CObject::GetThisClass()
{
    static CRuntimeClass record{"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr};
    return &record;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

BOOL CObject::IsKindOf(const CRuntimeClass* cls) const
{
    return GetRuntimeClass()->IsDerivedFrom(cls);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext&) const {}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* cls, CObject* object)
{
    return object && object->IsKindOf(cls) ? object : nullptr;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* cls, CObject* object)
{
    ASSERT(!object || object->IsKindOf(cls));
    static_cast<void>(cls);
    return object;
}
