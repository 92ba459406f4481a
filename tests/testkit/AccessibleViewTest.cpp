#include <testkit/AccessibleView.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Answers as a client of accessibility may meet them: of the numbers 0 (the whole) and 1, with 2 none at all
/// and everything else an error.
class Spoken final : public IAccessible
{
public:
    int references = 1;
    bool givesObjects = false; ///< instead of numbers: itself

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override
    {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
        *out = known ? this : nullptr;
        references += known;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); } // on the stack
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override
    {
        *count = 2;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT, IDispatch**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* text) override
    {
        return say(child, L"name", text);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* text) override
    {
        return say(child, L"value", text);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override
    {
        return say(child, L"description", text);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        return number(child, ROLE_SYSTEM_SLIDER, role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        return number(child, STATE_SYSTEM_FOCUSABLE, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR*, VARIANT, long*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override
    {
        return number(AccessibleView::numbered(0), 1, child);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* text) override
    {
        return say(child, L"action", text);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long, VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override
    {
        *left = 10 + child.lVal;
        *top = 20;
        *width = 30;
        *height = 40;
        return answer(child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long, VARIANT, VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override
    {
        return number(AccessibleView::numbered(x == 11 && y == 22 ? 0 : 2), 1, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    static HRESULT answer(const VARIANT& child)
    {
        if (child.vt != VT_I4)
            return E_INVALIDARG;
        return child.lVal <= 1 ? S_OK : child.lVal == 2 ? S_FALSE : E_INVALIDARG;
    }
    /// Where there is none, some objects leave a text all the same; it does not count.
    static HRESULT say(const VARIANT& child, const std::wstring& what, BSTR* text)
    {
        *text = child.lVal <= 2 ? ::SysAllocString((what + std::to_wstring(child.lVal)).c_str()) : nullptr;
        return answer(child);
    }
    HRESULT number(const VARIANT& child, LONG value, VARIANT* out)
    {
        *out = {};
        if (givesObjects) {
            out->vt = VT_DISPATCH;
            out->pdispVal = this;
            AddRef();
            return answer(child);
        }
        out->vt = VT_I4;
        out->lVal = value + child.lVal;
        return answer(child);
    }
};

/// A window that answers with a Spoken, or with nothing.
class Window : public CWnd
{
public:
    explicit Window(Spoken* spoken)
        : m_spoken(spoken)
    {
        CreateEx(0, AfxRegisterWndClass(0), L"Window", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    }
    ~Window() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT && m_spoken)
            return ::LresultFromObject(__uuidof(IAccessible), wParam, m_spoken);
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    Spoken* m_spoken;
};

} // namespace

TEST(AccessibleView, GivesWhatTheWholeAndAPartSay)
{
    Spoken spoken;
    Window window(&spoken);
    {
        const AccessibleView seen(window);
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen.childCount(), 2);
        EXPECT_EQ(seen.focused(), 1);
        for (const LONG child : {0, 1}) {
            const std::wstring number = std::to_wstring(child);
            EXPECT_EQ(seen.name(child), L"name" + number);
            EXPECT_EQ(seen.value(child), L"value" + number);
            EXPECT_EQ(seen.description(child), L"description" + number);
            EXPECT_EQ(seen.action(child), L"action" + number);
            EXPECT_EQ(seen.role(child), ROLE_SYSTEM_SLIDER + child);
            EXPECT_EQ(seen.state(child), STATE_SYSTEM_FOCUSABLE + child);
            EXPECT_EQ(seen.place(child), CRect(CPoint(10 + child, 20), CSize(30, 40)));
        }
        EXPECT_EQ(seen.name(), L"name0") << "the whole, unless said otherwise";
        EXPECT_EQ(seen.at({11, 22}), 1);
    }
    EXPECT_EQ(spoken.references, 1) << "it gives back what it asked for";
}

TEST(AccessibleView, WhereThereIsNoneItSaysSo)
{
    Spoken spoken;
    Window window(&spoken);
    const AccessibleView seen(window);
    for (const LONG child : {2, 3}) {
        EXPECT_EQ(seen.name(child), L"") << child;
        EXPECT_EQ(seen.value(child), L"") << child;
        EXPECT_EQ(seen.description(child), L"") << child;
        EXPECT_EQ(seen.action(child), L"") << child;
        EXPECT_EQ(seen.role(child), -1) << child;
        EXPECT_EQ(seen.state(child), -1) << child;
        EXPECT_EQ(seen.place(child), CRect(0, 0, 0, 0)) << child;
    }
    EXPECT_EQ(seen.at({0, 0}), -1);
}

TEST(AccessibleView, TakesNothingElseForANumber)
{
    Spoken spoken;
    spoken.givesObjects = true;
    Window window(&spoken);
    {
        const AccessibleView seen(window);
        EXPECT_EQ(seen.role(), -1);
        EXPECT_EQ(seen.state(), -1);
        EXPECT_EQ(seen.focused(), -1);
        EXPECT_EQ(seen.at({11, 22}), -1);
    }
    EXPECT_EQ(spoken.references, 1) << "the objects are given back as well";
}

TEST(AccessibleView, OfAnyWindowTheSystemAnswers)
{
    Window window(nullptr);
    const AccessibleView seen(window);
    ASSERT_TRUE(seen);
    EXPECT_EQ(seen.name(), L"Window");
    EXPECT_EQ(seen.role(), ROLE_SYSTEM_CLIENT);
    EXPECT_EQ(seen.childCount(), 0);
}

TEST(AccessibleView, OfNoWindowThereIsNone)
{
    HWND gone = nullptr;
    {
        Window window(nullptr);
        gone = window;
    }
    EXPECT_FALSE(AccessibleView(gone));
}
