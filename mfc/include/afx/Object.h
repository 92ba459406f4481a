// CObject, and what a class knows about itself at run time.
#pragma once

#include <afx/Diagnostics.h>

#include <cstddef>

class CObject;
class CArchive;
class CDumpContext;

/// A place in a collection or list; null is the end.
struct __POSITION;
using POSITION = __POSITION*;

/// The record of a class. Its base is reached through a function, since the address of another DLL's data is
/// not known before that DLL is loaded.
struct OVOMFC_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                            ///< 0xFFFF: objects are not serialised
    CObject*(PASCAL* m_pfnCreateObject)();     ///< null: objects cannot be created by name
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass = nullptr;     ///< of the list that FromName searches; the framework's own

    /// A new object made by the default constructor, owned by the caller; NULL when the class has none for it.
    CObject* CreateObject();

    /// Whether the class is `base` or derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;

    /// The class of this name, or NULL. The classes of a module are known while it is loaded.
    static CRuntimeClass* PASCAL FromName(LPCSTR name);
    static CRuntimeClass* PASCAL FromName(LPCWSTR name);
    static CObject* PASCAL CreateObject(LPCSTR name);
    static CObject* PASCAL CreateObject(LPCWSTR name);
};

namespace afxdetail
{

/// Keeps a class on the list that FromName searches, as long as the module with its record is loaded.
class OVOMFC_API Enlistment
{
public:
    explicit Enlistment(CRuntimeClass* record);
    ~Enlistment();
    Enlistment(const Enlistment&) = delete;
    Enlistment& operator=(const Enlistment&) = delete;

private:
    CRuntimeClass* m_record;
};

} // namespace afxdetail

/// Root of the class tree.
class OVOMFC_API CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    BOOL IsKindOf(const CRuntimeClass* cls) const;
    BOOL IsSerializable() const;
    virtual void Serialize(CArchive& archive);

    /// For derived classes: asserts that the object is in order.
    virtual void AssertValid() const;
    /// For derived classes: writes the object's state.
    virtual void Dump(CDumpContext& dump) const;

    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject();
};

#define RUNTIME_CLASS(className) (className::GetThisClass())

#define DECLARE_DYNAMIC(className)                                                                                \
public:                                                                                                           \
    static CRuntimeClass* PASCAL GetThisClass();                                                                  \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(className)                                                                              \
    DECLARE_DYNAMIC(className)                                                                                    \
    static CObject* PASCAL CreateObject();

#define AFX_JOINED_(a, b) a##b
#define AFX_NUMBERED_(name, number) AFX_JOINED_(name, number)

#define AFX_IMPLEMENT_RUNTIMECLASS_(className, baseClassName, schema, createFunction)                             \
    CRuntimeClass* PASCAL className::GetThisClass()                                                               \
    {                                                                                                             \
        static CRuntimeClass record{#className, static_cast<int>(sizeof(className)), schema, createFunction,     \
                                    &baseClassName::GetThisClass};                                                \
        return &record;                                                                                           \
    }                                                                                                             \
    CRuntimeClass* className::GetRuntimeClass() const                                                             \
    {                                                                                                             \
        return className::GetThisClass();                                                                         \
    }                                                                                                             \
    static const afxdetail::Enlistment AFX_NUMBERED_(afxEnlistment, __COUNTER__)(className::GetThisClass());

#define IMPLEMENT_DYNAMIC(className, baseClassName)                                                               \
    AFX_IMPLEMENT_RUNTIMECLASS_(className, baseClassName, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(className, baseClassName)                                                             \
    CObject* PASCAL className::CreateObject()                                                                     \
    {                                                                                                             \
        return new className;                                                                                     \
    }                                                                                                             \
    AFX_IMPLEMENT_RUNTIMECLASS_(className, baseClassName, 0xFFFF, &className::CreateObject)

OVOMFC_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* cls, CObject* object);
OVOMFC_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* cls, CObject* object);

/// The object as a `className`, or NULL when it is none.
#define DYNAMIC_DOWNCAST(className, object) (static_cast<className*>(AfxDynamicDownCast(RUNTIME_CLASS(className), object)))
/// The object as a `className`; asserts that it is one.
#define STATIC_DOWNCAST(className, object) (static_cast<className*>(AfxStaticDownCast(RUNTIME_CLASS(className), object)))
