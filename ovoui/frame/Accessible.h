/// Not exported. A control as clients of accessibility see it.
#pragma once

#include <afxwin.h>

#include <memory>
#include <optional>
#include <string>

namespace ovoui::frame
{

/// What a control tells about itself and about its parts: elements without a window of their own, which count
/// from 0. Clients keep the object as long as they like, so it refers to the control by something that
/// outlives it.
///
///     LRESULT CKnob::OnGetObject(WPARAM wParam, LPARAM lParam)
///     {
///         if (!asksForContents(lParam))
///             return Default();
///         return accessibleAnswer(wParam, std::make_shared<AccessibleKnob>(m_state));
///     }
///
/// What an operation throws counts as an error of the call, and reaches no client.
class Accessible
{
public:
    static constexpr int kSelf = -1; ///< in place of a part: the control itself
    static constexpr int kNone = -2; ///< neither the control nor a part

    virtual ~Accessible() = default;

    /// The control's window. Null once it is gone; nothing else is asked then.
    virtual HWND window() const = 0;

    virtual int partCount() const { return 0; }

    // What the control or a part is. An empty text is none.

    virtual LONG role(int part) const = 0; ///< ROLE_SYSTEM_...
    virtual std::wstring name(int part) const = 0;
    virtual std::wstring value(int /*part*/) const { return {}; }
    virtual std::wstring description(int /*part*/) const { return {}; }
    /// What `act` does, in a word; empty when nothing can be done.
    virtual std::wstring action(int /*part*/) const { return {}; }

    /// Flags STATE_SYSTEM_... Without an answer those of the window, and none for a part.
    virtual std::optional<LONG> state(int /*part*/) const { return std::nullopt; }

    // Where it is

    /// In pixels of the screen. Without an answer the window's client area, and nowhere for a part.
    virtual std::optional<CRect> place(int /*part*/) const { return std::nullopt; }
    /// The window that stands in a part's place, and is an object of its own; null for none.
    virtual HWND windowOf(int /*part*/) const { return nullptr; }
    /// What has the keyboard: a part, kSelf or kNone. Without an answer the window goes by its own focus.
    virtual std::optional<int> focused() const { return std::nullopt; }

    // What can be done with it

    /// Does what `action` names. The client waits for the end: what takes longer is to be posted.
    virtual void act(int /*part*/) {}
};

/// Whether WM_GETOBJECT, whose lParam is given, asks for what is inside the window.
bool asksForContents(LPARAM lParam);

/// The answer to WM_GETOBJECT, whose wParam is given.
LRESULT accessibleAnswer(WPARAM wParam, std::shared_ptr<Accessible> control);

/// Tells clients of an event (EVENT_OBJECT_...) at a control or one of its parts. Costs little while no
/// client listens.
void announce(DWORD event, HWND control, int part = Accessible::kSelf);

} // namespace ovoui::frame
