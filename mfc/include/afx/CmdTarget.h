// CCmdTarget: whatever can handle commands, and answer for COM interfaces.
#pragma once

#include <afx.h>
#include <afx/MessageMap.h>
#include <afx/ModuleState.h>

#include <unknwn.h>

#include <bit>
#include <cstddef>

class CCmdUI;

/// Asked for instead of a call: who would handle a command.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

/// What a WM_NOTIFY carries along the command routing.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// One interface of a class: its id, and the offset of the nested object that implements it. Or the offset of a
/// pointer to an inner object, which has no id here.
struct AFX_INTERFACEMAP_ENTRY
{
    const IID* piid; ///< null without `bAggregate` ends the map
    std::ptrdiff_t nOffset;
    bool bAggregate;
};

namespace afxdetail
{

/// Where a member lies in its class, derived from others or not.
template <class Owner, class Member>
std::ptrdiff_t offsetOf(Member Owner::*member)
{
    static_assert(sizeof member == sizeof(std::ptrdiff_t)); // what a pointer to a data member is
    return std::bit_cast<std::ptrdiff_t>(member);
}

} // namespace afxdetail

struct AFX_INTERFACEMAP
{
    const AFX_INTERFACEMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_INTERFACEMAP_ENTRY* pEntry;
};

class OVOMFC_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Routes a command, an update request (CN_UPDATE_COMMAND_UI, `extra` a CCmdUI) or a notification
    /// (MAKELONG(code, WM_NOTIFY), `extra` an AFX_NOTIFY) to its handler. With `info` nothing is called: the
    /// handler's place is written there. TRUE when there is a handler that took it.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor(); ///< After something else, such as a message box, has changed the pointer.

    /// Called when the last reference is released; deletes the object. Objects that are owned otherwise
    /// override it.
    virtual void OnFinalRelease();

    // What the parts do for IUnknown. The external ones go through the outer object, if there is one. The queries
    // give an HRESULT, and add a reference for the interface they find.
    DWORD ExternalAddRef();
    DWORD ExternalRelease();
    DWORD ExternalQueryInterface(const void* iid, LPVOID* object);
    DWORD InternalAddRef();
    DWORD InternalRelease();
    DWORD InternalQueryInterface(const void* iid, LPVOID* object);

    /// The part for an interface without a new reference, or null. IID_IUnknown gives the first part.
    LPUNKNOWN GetInterface(const void* iid);
    /// The outer object, else the object's own IUnknown; without a new reference.
    LPUNKNOWN GetControllingUnknown();

    long m_dwRef = 1;                     ///< references of the outside world, and the maker's
    LPUNKNOWN m_pOuterUnknown = nullptr;  ///< the object that this one is part of
    AFX_MODULE_STATE* m_pModuleState;     ///< of the module that made the object

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_INTERFACEMAP* PASCAL GetThisInterfaceMap();
    virtual const AFX_INTERFACEMAP* GetInterfaceMap() const;
};

/// Shows the hourglass while it lives.
class OVOMFC_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    void Restore();
};

#define DECLARE_INTERFACE_MAP()                                                                                   \
protected:                                                                                                        \
    static const AFX_INTERFACEMAP* PASCAL GetThisInterfaceMap();                                                  \
    const AFX_INTERFACEMAP* GetInterfaceMap() const override;

#define BEGIN_INTERFACE_MAP(theClass, theBase)                                                                    \
    const AFX_INTERFACEMAP* theClass::GetInterfaceMap() const                                                     \
    {                                                                                                             \
        return GetThisInterfaceMap();                                                                             \
    }                                                                                                             \
    const AFX_INTERFACEMAP* PASCAL theClass::GetThisInterfaceMap()                                                \
    {                                                                                                             \
        using ThisClass [[maybe_unused]] = theClass;                                                              \
        using TheBaseClass = theBase;                                                                             \
        static const AFX_INTERFACEMAP_ENTRY entries[] = {

/// `localClass` names the part: the member m_x<localClass>.
#define INTERFACE_PART(theClass, iid, localClass) {&iid, afxdetail::offsetOf<theClass>(&theClass::m_x##localClass), false},

/// `theAggr` is a member of type LPUNKNOWN: an inner object, or null. It is asked for what the parts do not answer.
#define INTERFACE_AGGREGATE(theClass, theAggr) {nullptr, afxdetail::offsetOf<theClass>(&theClass::theAggr), true},

#define END_INTERFACE_MAP()                                                                                       \
    {nullptr, 0, false}                                                                                           \
    }                                                                                                             \
    ;                                                                                                             \
    static const AFX_INTERFACEMAP map{&TheBaseClass::GetThisInterfaceMap, entries};                               \
    return &map;                                                                                                  \
    }

/// Declares the nested class X<localClass> that implements an interface, up to END_INTERFACE_PART.
#define BEGIN_INTERFACE_PART(localClass, baseClass)                                                               \
    class X##localClass : public baseClass                                                                        \
    {                                                                                                             \
    public:                                                                                                       \
        STDMETHOD_(ULONG, AddRef)() override;                                                                     \
        STDMETHOD_(ULONG, Release)() override;                                                                    \
        STDMETHOD(QueryInterface)(REFIID iid, LPVOID* object) override;

#define END_INTERFACE_PART(localClass)                                                                            \
    }                                                                                                             \
    m_x##localClass;                                                                                              \
    friend class X##localClass;

/// Inside a method of a part: `pThis` is the object that the part belongs to.
#define METHOD_PROLOGUE(theClass, localClass)                                                                     \
    METHOD_PROLOGUE_EX_(theClass, localClass)                                                                     \
    AFX_MANAGE_STATE(pThis->m_pModuleState)

#define METHOD_PROLOGUE_EX(theClass, localClass) METHOD_PROLOGUE(theClass, localClass)

/// The same without the module state, for AddRef and the like.
#define METHOD_PROLOGUE_EX_(theClass, localClass)                                                                 \
    theClass* const pThis [[maybe_unused]] = reinterpret_cast<theClass*>(                                         \
        reinterpret_cast<BYTE*>(this) - afxdetail::offsetOf<theClass>(&theClass::m_x##localClass));
