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
    explicit AccessibleView(HWND window);

    /// Whether the window had an answer.
    explicit operator bool() const { return m_object != nullptr; }
    IAccessible* operator->() const { return m_object.get(); }

    // Empty for none
    std::wstring name(LONG child = CHILDID_SELF) const;
    std::wstring value(LONG child = CHILDID_SELF) const;
    std::wstring description(LONG child = CHILDID_SELF) const;
    std::wstring action(LONG child = CHILDID_SELF) const;

    // -1 for none
    LONG role(LONG child = CHILDID_SELF) const;
    LONG state(LONG child = CHILDID_SELF) const;
    long childCount() const;
    LONG focused() const;
    /// The part at a point of the screen.
    LONG at(CPoint point) const;

    /// On the screen; empty for none.
    CRect place(LONG child = CHILDID_SELF) const;

    /// For calls through `->`.
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
