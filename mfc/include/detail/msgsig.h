// Internal: the signatures of message handlers, and how their arguments come out of a message.
#pragma once

#include <afx/MessageMap.h>
#include <atltypes.h>

#include <bit>
#include <type_traits>

class CDC;
class CMenu;
class CScrollBar;
class CListBox;
class CWnd;
class CCmdUI;
struct AFX_NOTIFY;

namespace afxdetail
{

// Objects of handles, without their headers.
OVOMFC_API CWnd* wndOf(HWND handle);
OVOMFC_API CDC* dcOf(HDC handle);
OVOMFC_API CMenu* menuOf(HMENU handle);

/// Around the call of an update handler: whether it took the request, which it does unless it asked for the
/// routing to go on.
OVOMFC_API void beginUpdate(CCmdUI* ui);
OVOMFC_API BOOL endUpdate(CCmdUI* ui);
OVOMFC_API NMHDR* headerOf(AFX_NOTIFY* notify);
OVOMFC_API LRESULT* resultOf(AFX_NOTIFY* notify);

template <class To, class From>
To convert(From value)
{
    if constexpr (std::is_pointer_v<To>)
        return reinterpret_cast<To>(static_cast<INT_PTR>(value));
    else
        return static_cast<To>(value);
}

// Where an argument stands in a message.
template <class T>
struct W
{
    static T get(const Call& call) { return convert<T>(call.wParam); }
};
template <class T>
struct L
{
    static T get(const Call& call) { return convert<T>(call.lParam); }
};
template <class T>
struct LowW
{
    static T get(const Call& call) { return static_cast<T>(LOWORD(call.wParam)); }
};
template <class T>
struct HighW
{
    static T get(const Call& call) { return static_cast<T>(HIWORD(call.wParam)); }
};
template <class T>
struct LowL
{
    static T get(const Call& call) { return static_cast<T>(LOWORD(static_cast<DWORD>(call.lParam))); }
};
template <class T>
struct HighL
{
    static T get(const Call& call) { return static_cast<T>(HIWORD(static_cast<DWORD>(call.lParam))); }
};
struct SignedLowL
{
    static int get(const Call& call) { return static_cast<short>(LOWORD(static_cast<DWORD>(call.lParam))); }
};
struct SignedHighL
{
    static int get(const Call& call) { return static_cast<short>(HIWORD(static_cast<DWORD>(call.lParam))); }
};
struct PointL
{
    static CPoint get(const Call& call) { return CPoint(call.lParam); }
};
struct WndW
{
    static CWnd* get(const Call& call) { return wndOf(convert<HWND>(call.wParam)); }
};
struct WndL
{
    static CWnd* get(const Call& call) { return wndOf(convert<HWND>(call.lParam)); }
};
template <class T>
struct ControlL
{
    static T* get(const Call& call) { return reinterpret_cast<T*>(WndL::get(call)); }
};
struct DcW
{
    static CDC* get(const Call& call) { return dcOf(convert<HDC>(call.wParam)); }
};
struct MenuW
{
    static CMenu* get(const Call& call) { return menuOf(convert<HMENU>(call.wParam)); }
};
struct MenuL
{
    static CMenu* get(const Call& call) { return menuOf(convert<HMENU>(call.lParam)); }
};
// The parts of WM_APPCOMMAND's and WM_INPUT's words.
struct AppCommand
{
    static UINT get(const Call& call) { return HIWORD(static_cast<DWORD>(call.lParam)) & 0x0FFFu; }
};
struct AppCommandDevice
{
    static UINT get(const Call& call) { return HIWORD(static_cast<DWORD>(call.lParam)) & 0xF000u; }
};
struct RawInputCode
{
    static UINT get(const Call& call) { return static_cast<UINT>(call.wParam) & 0xFFu; }
};
struct ColourKind
{
    static UINT get(const Call& call) { return call.message - WM_CTLCOLORMSGBOX; }
};
struct ReflectedColourKind
{
    static UINT get(const Call& call) { return call.code; }
};

/// A window message's handler: `Signature` is its type without the class, `Arguments` where each argument
/// stands.
template <class Signature, class... Arguments>
struct WindowHandler;

template <class Result, class... Parameters, class... Arguments>
struct WindowHandler<Result(Parameters...), Arguments...>
{
    static_assert(sizeof...(Parameters) == sizeof...(Arguments));

    template <class T>
    using Member = Result (T::*)(Parameters...);

    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        if constexpr (std::is_void_v<Result>)
            (target->*handler)(Arguments::get(call)...);
        else
            call.result = toResult((target->*handler)(Arguments::get(call)...));
        return TRUE;
    }

private:
    template <class Value>
    static LRESULT toResult(Value value)
    {
        if constexpr (std::is_pointer_v<Value>)
            return reinterpret_cast<LRESULT>(value);
        else
            return static_cast<LRESULT>(value);
    }
};

/// Handlers that decline a message by answering 0: it then goes to the default procedure.
template <class Signature, class... Arguments>
struct DecliningHandler : WindowHandler<Signature, Arguments...>
{
    template <class T>
    static BOOL call(T* target, typename WindowHandler<Signature, Arguments...>::template Member<T> handler,
                     Call& call)
    {
        WindowHandler<Signature, Arguments...>::call(target, handler, call);
        return call.result != 0;
    }
};

struct CommandHandler
{
    template <class T>
    using Member = void (T::*)();
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call&)
    {
        (target->*handler)();
        return TRUE;
    }
};
struct CommandRangeHandler
{
    template <class T>
    using Member = void (T::*)(UINT);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        (target->*handler)(call.message);
        return TRUE;
    }
};
struct CommandExHandler
{
    template <class T>
    using Member = BOOL (T::*)(UINT);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        return (target->*handler)(call.message);
    }
};
struct ReflectedControlExHandler
{
    template <class T>
    using Member = BOOL (T::*)();
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call&)
    {
        return (target->*handler)();
    }
};
struct UpdateHandler
{
    template <class T>
    using Member = void (T::*)(CCmdUI*);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        auto* ui = static_cast<CCmdUI*>(call.extra);
        if (!ui) // a control's notification of the same code, which is no update request
            return FALSE;
        beginUpdate(ui);
        (target->*handler)(ui);
        return endUpdate(ui);
    }
};
struct NotifyHandler
{
    template <class T>
    using Member = void (T::*)(NMHDR*, LRESULT*);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        (target->*handler)(headerOf(notify), resultOf(notify));
        return TRUE;
    }
};
struct NotifyRangeHandler
{
    template <class T>
    using Member = void (T::*)(UINT, NMHDR*, LRESULT*);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        (target->*handler)(call.message, headerOf(notify), resultOf(notify));
        return TRUE;
    }
};
struct NotifyExHandler
{
    template <class T>
    using Member = BOOL (T::*)(UINT, NMHDR*, LRESULT*);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        return (target->*handler)(call.message, headerOf(notify), resultOf(notify));
    }
};
struct ReflectedNotifyExHandler
{
    template <class T>
    using Member = BOOL (T::*)(NMHDR*, LRESULT*);
    template <class T>
    static BOOL call(T* target, Member<T> handler, Call& call)
    {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        return (target->*handler)(headerOf(notify), resultOf(notify));
    }
};

/// A handler as a member of the map's class. One of a base class converts, an overloaded one is chosen by its
/// type, and no other type does.
template <class Member>
constexpr Member handler(std::type_identity_t<Member> handler)
{
    return handler;
}

/// The handler's address as AFX_CMDHANDLERINFO keeps it. It is never called through that type.
template <class Member>
AFX_PMSG stored(Member handler)
{
    static_assert(sizeof(Member) == sizeof(AFX_PMSG));
    return std::bit_cast<AFX_PMSG>(handler);
}

} // namespace afxdetail

/// One entry: the thunk for this handler, and its address for AFX_CMDHANDLERINFO. `memberFxn` is
/// `&Class::Handler`; g++ for Windows also takes the bare name of a member for its address, the form of older
/// programs.
#define AFX_ENTRY_(message, code, first, last, registered, Kind, memberFxn)                                  \
    {static_cast<UINT>(message),                                                                             \
     static_cast<UINT>(code),                                                                                \
     static_cast<UINT>(first),                                                                               \
     static_cast<UINT>(last),                                                                                \
     registered,                                                                                             \
     [](CCmdTarget* target, afxdetail::Call& call) -> BOOL {                                                 \
         return Kind::call(static_cast<ThisClass*>(target),                                                  \
                           afxdetail::handler<Kind::template Member<ThisClass>>(memberFxn), call);           \
     },                                                                                                      \
     afxdetail::stored(afxdetail::handler<Kind::template Member<ThisClass>>(memberFxn))},
