#pragma once

#include <afxwin.h>

#include <oleacc.h>

#include <memory>
#include <string>

namespace ovo::testkit
{

/// What is inside a window, as a client of accessibility sees it. Parts have numbers from 1; 0 is the whole.
///
///     const AccessibleView seen(slider);
///     EXPECT_EQ(seen.role(), ROLE_SYSTEM_SLIDER);
///     EXPECT_EQ(seen.value(), L"12");
class AccessibleView
{
public:
    /// Asks `window`, which must belong to the calling thread, for its answer.
    explicit AccessibleView(HWND window);

    /// Whether the window had an answer.
    explicit operator bool() const { return m_object != nullptr; }
    /// For what is not here; the object is this one's.
    IAccessible* operator->() const { return m_object.get(); }

    /// The name of `child`, 0 for the whole; empty for none.
    std::wstring name(LONG child = CHILDID_SELF) const;
    /// The value of `child`, as a text.
    std::wstring value(LONG child = CHILDID_SELF) const;
    /// The description of `child`.
    std::wstring description(LONG child = CHILDID_SELF) const;
    /// What the default action of `child` is called.
    std::wstring action(LONG child = CHILDID_SELF) const;

    /// The role of `child`, ROLE_SYSTEM_; -1 for none.
    LONG role(LONG child = CHILDID_SELF) const;
    /// The states of `child`, STATE_SYSTEM_ bits; -1 for none.
    LONG state(LONG child = CHILDID_SELF) const;
    /// How many parts there are; -1 for none.
    long childCount() const;
    /// The part with the focus; -1 for none.
    LONG focused() const;
    /// The part at a point of the screen.
    LONG at(CPoint point) const;

    /// Where `child` is on the screen; empty for none.
    CRect place(LONG child = CHILDID_SELF) const;

    /// The number `child` for calls through `->`.
    static VARIANT numbered(LONG child);

private:
    using AskText = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::wstring text(AskText ask, LONG child) const;

    struct Release
    {
        void operator()(IAccessible* object) const { object->Release(); }
    };
    std::unique_ptr<IAccessible, Release> m_object;
};

} // namespace ovo::testkit
