#include <ovoui/sliders/AccessibleSlider.h>

#include <oleacc.h>

#include <atomic>
#include <utility>

namespace ovoui::sliders
{
namespace
{

VARIANT number(LONG value)
{
    VARIANT result{};
    result.vt = VT_I4;
    result.lVal = value;
    return result;
}

/// What the system itself knows of a window's client area, with role, name and value of a slider.
class SliderObject final : public IAccessible
{
public:
    explicit SliderObject(std::shared_ptr<SliderIdentity> slider)
        : m_slider(std::move(slider))
    {
        ::CreateStdAccessibleObject(m_slider->window, OBJID_CLIENT, __uuidof(IAccessible),
                                    reinterpret_cast<void**>(&m_standard));
    }

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override
    {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
        *out = known ? this : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    // IDispatch: clients use the methods
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
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

    // What makes it a slider
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override
    {
        return text(child, name, m_slider->name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override
    {
        return text(child, value, m_slider->value);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        *role = {};
        if (const HRESULT wrong = check(child))
            return wrong;
        *role = number(ROLE_SYSTEM_SLIDER);
        return S_OK;
    }

    // What the system knows
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        *parent = nullptr;
        return standard([&](IAccessible& object) { return object.get_accParent(parent); });
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override
    {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT, IDispatch** object) override
    {
        *object = nullptr;
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        return standard([&](IAccessible& object) { return object.get_accState(child, state); });
    }
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override
    {
        return standard(
            [&](IAccessible& object) { return object.accLocation(left, top, width, height, child); });
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override
    {
        return standard([&](IAccessible& object) { return object.accHitTest(x, y, child); });
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override
    {
        return standard([&](IAccessible& object) { return object.get_accFocus(child); });
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override
    {
        return standard([&](IAccessible& object) { return object.accSelect(flags, child); });
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override
    {
        return standard([&](IAccessible& object) { return object.accNavigate(direction, start, end); });
    }

    // What it has not
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR* description) override
    {
        return none(description);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override { return none(help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, long* topic) override
    {
        *topic = 0;
        return none(file);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR* keys) override { return none(keys); }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT, BSTR* action) override { return none(action); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override
    {
        *children = {};
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~SliderObject()
    {
        if (m_standard)
            m_standard->Release();
    }

    HRESULT check(const VARIANT& child) const
    {
        if (!m_slider->window)
            return CO_E_OBJNOTCONNECTED;
        return child.vt == VT_I4 && child.lVal == CHILDID_SELF ? S_OK : E_INVALIDARG;
    }
    HRESULT text(const VARIANT& child, BSTR* out, const std::function<std::wstring()>& ask) const
    {
        *out = nullptr;
        if (const HRESULT wrong = check(child))
            return wrong;
        const std::wstring answer = ask();
        if (answer.empty())
            return S_FALSE;
        *out = ::SysAllocString(answer.c_str());
        return *out ? S_OK : E_OUTOFMEMORY;
    }
    static HRESULT none(BSTR* out)
    {
        *out = nullptr;
        return S_FALSE;
    }
    template <class Ask>
    HRESULT standard(const Ask& ask) const
    {
        return m_slider->window && m_standard ? ask(*m_standard) : CO_E_OBJNOTCONNECTED;
    }

    std::shared_ptr<SliderIdentity> m_slider;
    IAccessible* m_standard = nullptr;
    std::atomic<ULONG> m_references = 1;
};

} // namespace

LRESULT accessibleSlider(WPARAM wParam, std::shared_ptr<SliderIdentity> slider)
{
    auto* const object = new SliderObject(std::move(slider));
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release(); // the result keeps it
    return result;
}

void announceValue(HWND slider)
{
    ::NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, slider, OBJID_CLIENT, CHILDID_SELF);
}

std::wstring labelBefore(HWND control)
{
    const HWND label = ::GetWindow(control, GW_HWNDPREV);
    wchar_t text[200]{};
    wchar_t kind[16]{};
    ::GetClassNameW(label, kind, 16);
    if (::lstrcmpiW(kind, L"Static") != 0)
        return {};
    ::GetWindowTextW(label, text, 200);
    std::wstring name = text;
    std::erase(name, L'&');
    if (name.ends_with(L':'))
        name.pop_back();
    return name;
}

} // namespace ovoui::sliders
