// Message maps: tables that lead from a message or command to its handler.
#pragma once

#include <afx/Platform.h>

#include <atomic>

class CCmdTarget;

using AFX_PMSG = void (CCmdTarget::*)();

namespace afxdetail
{

/// What a handler is called with, and what it gives back.
struct Call
{
    UINT message = 0; ///< or the command id
    int code = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    void* extra = nullptr; ///< CCmdUI* or AFX_NOTIFY* of a command
    LRESULT result = 0;
};

} // namespace afxdetail

/// One line of a message map.
struct AFX_MSGMAP_ENTRY
{
    using Thunk = BOOL (*)(CCmdTarget* target, afxdetail::Call& call);

    UINT nMessage;           ///< WM_COMMAND for commands; WM_NOTIFY, or a window message
    UINT nCode;              ///< notification code; 0 for window messages
    UINT nID;                ///< first control or command id
    UINT nLastID;            ///< last one of a range
    const UINT* pRegistered; ///< where the number of a registered message stands, else null
    Thunk pfnThunk;          ///< unpacks the arguments and calls; FALSE when the handler declines
    AFX_PMSG pfn;            ///< for AFX_CMDHANDLERINFO only, never called
};

namespace afxdetail
{
class DispatchTable;
}

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries; ///< ends with an entry without a thunk
    /// The entries of this map and its bases, looked up by their message; made when the first one comes.
    mutable std::atomic<const afxdetail::DispatchTable*> pTable{};
};

namespace afxdetail
{

/// The entry for a window message, from the most derived map to the bases; null when there is none.
OVOMFC_API const AFX_MSGMAP_ENTRY* findWindowMessage(const AFX_MSGMAP* map, UINT message);

/// The first entry for a command or notification, likewise.
OVOMFC_API const AFX_MSGMAP_ENTRY* findCommand(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

} // namespace afxdetail

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                   \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, typeName, baseClass)                                            \
    template <typename typeName>                                                                             \
    const AFX_MSGMAP* theClass<typeName>::GetMessageMap() const                                              \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    template <typename typeName>                                                                             \
    const AFX_MSGMAP* PASCAL theClass<typeName>::GetThisMessageMap()                                         \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass<typeName>;                                               \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr, nullptr, nullptr                                                                \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP map{&TheBaseClass::GetThisMessageMap, entries};                                  \
    return &map;                                                                                             \
    }
