/// Not exported: an object that a window has, and that hears the window's messages.
#pragma once

#include <ovoui/frame/AsHandler.h>
#include <ovoui/frame/Subclass.h>

#include <memory>

namespace ovoui::frame
{

/// The base of `Object`, of which a window has one at most: from when it is first asked for until the window
/// goes. It subclasses the window once, for all who want to hear of it, since each subclass costs some
/// platforms more than what is done in it. It stays until the window goes: taking it away in the middle of a
/// message is not safe on every platform.
///
/// `Object` has
///     static constexpr wchar_t kProperty[];   // of the window, which keeps the object there
///     LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);   // nextProcedure goes on
///     void end();   // the window goes: before its WM_NCDESTROY is handled
template <class Object>
class WindowCompanion : public std::enable_shared_from_this<Object>
{
public:
    /// Null when the window has none yet.
    static Object* knownFor(HWND window)
    {
        return static_cast<Object*>(::GetPropW(window, Object::kProperty));
    }

    /// Null when the window cannot be subclassed.
    static Object* madeFor(HWND window)
    {
        if (Object* const known = knownFor(window))
            return known;
        const auto made = std::make_shared<Object>();
        if (!::SetPropW(window, Object::kProperty, made.get()))
            return nullptr;
        if (!setSubclass(window, &procedure, 0, reinterpret_cast<DWORD_PTR>(made.get()))) {
            ::RemovePropW(window, Object::kProperty);
            return nullptr;
        }
        made->m_keepsItself = made;
        return made.get();
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR self)
    {
        const std::shared_ptr<Object> object = reinterpret_cast<Object*>(self)->shared_from_this();
        if (message == WM_NCDESTROY) {
            removeSubclass(window, &procedure, 0);
            ::RemovePropW(window, Object::kProperty);
            object->end();
            object->m_keepsItself.reset();
        }
        return asHandler(window, message, wParam, lParam,
                         [&] { return object->handle(window, message, wParam, lParam); });
    }

    std::shared_ptr<Object> m_keepsItself;
};

} // namespace ovoui::frame
