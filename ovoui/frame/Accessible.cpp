#include <ovoui/frame/Accessible.h>

#include <oleacc.h>

#include <atomic>
#include <utility>

namespace ovoui::frame
{

namespace
{

/// Clients call the control and its parts by numbers: 0 is the control.
constexpr LONG childOf(int part)
{
    return part + 1;
}
static_assert(childOf(Accessible::kSelf) == CHILDID_SELF);

VARIANT numbered(LONG value)
{
    VARIANT result{};
    result.vt = VT_I4;
    result.lVal = value;
    return result;
}

/// No exception may leave a call that comes from another program.
template <class Answer>
HRESULT guarded(const Answer& answer)
{
    try {
        return answer();
    } catch (...) {
        return E_FAIL;
    }
}

/// IAccessible, made of a control's own answers and of what the system knows of any window's client area.
class AccessibleObject final : public IAccessible
{
public:
    explicit AccessibleObject(std::shared_ptr<Accessible> control)
        : m_control(std::move(control))
    {
        ::CreateStdAccessibleObject(m_control->window(), OBJID_CLIENT, __uuidof(IAccessible),
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
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override
    {
        *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override
    {
        return E_NOTIMPL;
    }

    // What belongs to it

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        *parent = nullptr;
        return standard([&](IAccessible& object) { return object.get_accParent(parent); });
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override
    {
        *count = 0;
        return whole([&] {
            *count = m_control->partCount();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override
    {
        *object = nullptr;
        return one(child, [&](int part) {
            const HWND own = part == Accessible::kSelf ? nullptr : m_control->windowOf(part);
            return own ? ::AccessibleObjectFromWindow(own, static_cast<DWORD>(OBJID_WINDOW),
                                                      __uuidof(IDispatch), reinterpret_cast<void**>(object))
                       : S_FALSE;
        });
    }

    // What it is

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override
    {
        return text(child, name, &Accessible::name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override
    {
        return text(child, value, &Accessible::value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override
    {
        return text(child, description, &Accessible::description);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override
    {
        return text(child, action, &Accessible::action);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override { return none(child, help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override
    {
        *topic = 0;
        return none(child, file);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override
    {
        return none(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        *role = {};
        return one(child, [&](int part) {
            *role = numbered(m_control->role(part));
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        *state = {};
        return one(child, [&](int part) {
            const std::optional<LONG> own = m_control->state(part);
            if (!own && part == Accessible::kSelf && m_standard)
                return m_standard->get_accState(child, state);
            *state = numbered(own.value_or(0));
            return S_OK;
        });
    }

    // Where it is

    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override
    {
        *left = *top = *width = *height = 0;
        return one(child, [&](int part) {
            const CRect place = placeOf(part);
            *left = place.left;
            *top = place.top;
            *width = place.Width();
            *height = place.Height();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override
    {
        *child = {};
        return whole([&] {
            const CPoint point(x, y);
            if (!placeOf(Accessible::kSelf).PtInRect(point))
                return S_FALSE;
            *child = numbered(childOf(partAt(point)));
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override
    {
        *child = {};
        return whole([&] {
            const std::optional<int> own = m_control->focused();
            if (!own)
                return m_standard ? m_standard->get_accFocus(child) : S_FALSE;
            if (*own == Accessible::kNone)
                return S_FALSE;
            *child = numbered(childOf(*own));
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override
    {
        *end = {};
        return one(start, [&](int part) {
            const bool amongWindows = part == Accessible::kSelf && m_standard;
            return amongWindows ? m_standard->accNavigate(direction, start, end) : DISP_E_MEMBERNOTFOUND;
        });
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override
    {
        *children = {};
        return S_FALSE;
    }

    // What can be done with it

    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override
    {
        return one(child, [&](int part) {
            if (m_control->action(part).empty())
                return DISP_E_MEMBERNOTFOUND;
            m_control->act(part);
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override
    {
        return one(child, [&](int part) {
            const bool window = part == Accessible::kSelf && m_standard;
            return window ? m_standard->accSelect(flags, child) : DISP_E_MEMBERNOTFOUND;
        });
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~AccessibleObject()
    {
        if (m_standard)
            m_standard->Release();
    }

    /// Answers for the control as a whole, as long as there is one.
    template <class Answer>
    HRESULT whole(const Answer& answer) const
    {
        return guarded([&]() -> HRESULT { return m_control->window() ? answer() : CO_E_OBJNOTCONNECTED; });
    }
    /// Answers for the control or for the part with a client's number.
    template <class Answer>
    HRESULT one(const VARIANT& child, const Answer& answer) const
    {
        return whole([&]() -> HRESULT {
            if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > m_control->partCount())
                return E_INVALIDARG;
            return answer(static_cast<int>(child.lVal) - 1);
        });
    }
    template <class Answer>
    HRESULT standard(const Answer& answer) const
    {
        return whole([&] { return m_standard ? answer(*m_standard) : S_FALSE; });
    }

    HRESULT text(const VARIANT& child, BSTR* out, std::wstring (Accessible::*ask)(int) const) const
    {
        *out = nullptr;
        return one(child, [&](int part) -> HRESULT {
            const std::wstring answer = ((*m_control).*ask)(part);
            if (answer.empty())
                return S_FALSE;
            *out = ::SysAllocStringLen(answer.data(), static_cast<UINT>(answer.size()));
            return *out ? S_OK : E_OUTOFMEMORY;
        });
    }
    HRESULT none(const VARIANT& child, BSTR* out) const
    {
        *out = nullptr;
        return one(child, [](int) { return S_FALSE; });
    }

    CRect placeOf(int part) const
    {
        CRect place(0, 0, 0, 0);
        if (const std::optional<CRect> own = m_control->place(part))
            return *own;
        if (part == Accessible::kSelf) {
            ::GetClientRect(m_control->window(), &place);
            ::MapWindowPoints(m_control->window(), nullptr, reinterpret_cast<POINT*>(&place), 2);
        }
        return place;
    }
    /// The last part there, since later ones are drawn over earlier ones; else the control.
    int partAt(CPoint point) const
    {
        int found = Accessible::kSelf;
        for (int part = 0; part < m_control->partCount(); ++part)
            if (placeOf(part).PtInRect(point))
                found = part;
        return found;
    }

    const std::shared_ptr<Accessible> m_control;
    IAccessible* m_standard = nullptr;
    std::atomic<ULONG> m_references = 1;
};

} // namespace

bool asksForContents(LPARAM lParam)
{
    // Some clients hand over the number as 32 bits without its sign.
    return static_cast<LONG>(static_cast<DWORD>(lParam)) == OBJID_CLIENT;
}

LRESULT accessibleAnswer(WPARAM wParam, std::shared_ptr<Accessible> control)
{
    auto* const object = new AccessibleObject(std::move(control));
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release(); // the result keeps it
    return result;
}

void announce(DWORD event, HWND control, int part)
{
    if (::IsWinEventHookInstalled(event))
        ::NotifyWinEvent(event, control, OBJID_CLIENT, childOf(part));
}

} // namespace ovoui::frame
