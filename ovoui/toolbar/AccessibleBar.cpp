#include <ovoui/toolbar/AccessibleBar.h>

#include <ovoui/toolbar/ButtonNames.h>

#include <oleacc.h>

#include <atomic>
#include <utility>

namespace ovoui::toolbar
{

namespace
{

constexpr wchar_t kPress[] = L"Press";

/// The object itself, as against one of its buttons.
constexpr int kSelf = -1;

VARIANT number(LONG value)
{
    VARIANT result{};
    result.vt = VT_I4;
    result.lVal = value;
    return result;
}

/// An empty text is none.
HRESULT give(const std::wstring& text, BSTR* out)
{
    *out = text.empty() ? nullptr : ::SysAllocString(text.c_str());
    return *out ? S_OK : S_FALSE;
}

/// IAccessible of a bar; buttons are its children, by number from 1.
class BarObject final : public IAccessible
{
public:
    explicit BarObject(std::shared_ptr<AccessibleBar> bar)
        : m_bar(std::move(bar))
    {
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

    // The tree of objects
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        *parent = nullptr;
        return isThere() ? objectOf(window(), OBJID_WINDOW, parent) : CO_E_OBJNOTCONNECTED;
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override
    {
        *count = isThere() ? buttonCount() : 0;
        return isThere() ? S_OK : CO_E_OBJNOTCONNECTED;
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override
    {
        *object = nullptr;
        int index = kSelf;
        if (const HRESULT wrong = find(child, index))
            return wrong;
        const HWND control = index == kSelf ? nullptr : controlAt(index);
        return control ? objectOf(control, OBJID_WINDOW, object) : S_FALSE;
    }

    // What they are
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override
    {
        return text(child, name, [this](int index) {
            if (index == kSelf)
                return m_bar->name();
            return isSeparator(index) ? std::wstring() : m_bar->nameOf(index);
        });
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override
    {
        return text(child, description, [this](int index) {
            return index == kSelf ? std::wstring() : promptOfCommand(button(index).idCommand);
        });
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override
    {
        return text(child, action,
                    [this](int index) { return canPress(index) ? std::wstring(kPress) : std::wstring(); });
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override { return none(child, value); }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override { return none(child, help); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override
    {
        return none(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override
    {
        *topic = 0;
        return none(child, file);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        return numberOf(child, role, [this](int index) { return roleOf(index); });
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        return numberOf(child, state, [this](int index) { return stateOf(index); });
    }

    // Where they are
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override
    {
        int index = kSelf;
        if (const HRESULT wrong = find(child, index))
            return wrong;
        const CRect place = placeOf(index);
        *left = place.left;
        *top = place.top;
        *width = place.Width();
        *height = place.Height();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override
    {
        *child = {};
        if (!isThere())
            return CO_E_OBJNOTCONNECTED;
        const CPoint point(x, y);
        if (!placeOf(kSelf).PtInRect(point))
            return S_FALSE;
        *child = number(CHILDID_SELF);
        for (int i = 0; i < buttonCount(); ++i)
            if (placeOf(i).PtInRect(point))
                *child = number(i + 1);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long, VARIANT, VARIANT* end) override
    {
        *end = {};
        return DISP_E_MEMBERNOTFOUND; // clients walk over the children
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override
    {
        *child = {};
        if (!isThere())
            return CO_E_OBJNOTCONNECTED;
        const int index = m_bar->focused();
        if (index == kSelf)
            return S_FALSE;
        *child = number(index + 1);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override
    {
        *children = {};
        return S_FALSE;
    }

    // What can be done with them
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override
    {
        int index = kSelf;
        if (const HRESULT wrong = find(child, index))
            return wrong;
        if (!canPress(index))
            return DISP_E_MEMBERNOTFOUND;
        // The command may show a dialog, for which the client must not wait.
        ::PostMessageW(window(), pressMessage(), static_cast<WPARAM>(index), 0);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE accSelect(long, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

private:
    ~BarObject() = default;

    bool isThere() const { return m_bar->bar() != nullptr; }
    HWND window() const { return m_bar->bar()->m_hWnd; }
    int buttonCount() const { return static_cast<int>(::SendMessageW(window(), TB_BUTTONCOUNT, 0, 0)); }

    TBBUTTON button(int index) const
    {
        TBBUTTON found{};
        ::SendMessageW(window(), TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&found));
        return found;
    }
    bool isSeparator(int index) const { return (button(index).fsStyle & TBSTYLE_SEP) != 0; }
    bool canPress(int index) const
    {
        return index != kSelf && !isSeparator(index) && (button(index).fsState & TBSTATE_ENABLED);
    }
    /// The control whose place a separator keeps; null for none.
    HWND controlAt(int index) const
    {
        const TBBUTTON place = button(index);
        const bool keeps = (place.fsStyle & TBSTYLE_SEP) && place.idCommand != 0;
        return keeps ? ::GetDlgItem(window(), place.idCommand) : nullptr;
    }

    /// kSelf or a button's index; an error for anything else.
    HRESULT find(const VARIANT& child, int& index) const
    {
        if (!isThere())
            return CO_E_OBJNOTCONNECTED;
        if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > buttonCount())
            return E_INVALIDARG;
        index = static_cast<int>(child.lVal) - 1;
        return S_OK;
    }

    template <class Ask>
    HRESULT text(const VARIANT& child, BSTR* out, const Ask& ask) const
    {
        *out = nullptr;
        int index = kSelf;
        const HRESULT wrong = find(child, index);
        return wrong ? wrong : give(ask(index), out);
    }
    HRESULT none(const VARIANT& child, BSTR* out) const
    {
        return text(child, out, [](int) { return std::wstring(); });
    }
    template <class Ask>
    HRESULT numberOf(const VARIANT& child, VARIANT* out, const Ask& ask) const
    {
        *out = {};
        int index = kSelf;
        if (const HRESULT wrong = find(child, index))
            return wrong;
        *out = number(ask(index));
        return S_OK;
    }

    LONG roleOf(int index) const
    {
        if (index == kSelf)
            return ROLE_SYSTEM_TOOLBAR;
        const TBBUTTON shown = button(index);
        if (shown.fsStyle & TBSTYLE_SEP)
            return ROLE_SYSTEM_SEPARATOR;
        if (m_bar->opensFlyout(index))
            return ROLE_SYSTEM_BUTTONDROPDOWN;
        return (shown.fsStyle & TBSTYLE_CHECK) ? ROLE_SYSTEM_CHECKBUTTON : ROLE_SYSTEM_PUSHBUTTON;
    }
    LONG stateOf(int index) const
    {
        if (index == kSelf)
            return ::IsWindowVisible(window()) ? 0 : STATE_SYSTEM_INVISIBLE;
        const BYTE shown = button(index).fsState;
        const auto when = [](bool holds, LONG state) { return holds ? state : 0; };
        return when(!(shown & TBSTATE_ENABLED), STATE_SYSTEM_UNAVAILABLE) |
               when((shown & TBSTATE_HIDDEN) != 0, STATE_SYSTEM_INVISIBLE) |
               when((shown & TBSTATE_CHECKED) != 0, STATE_SYSTEM_CHECKED) |
               when((shown & TBSTATE_INDETERMINATE) != 0, STATE_SYSTEM_MIXED) |
               when((shown & TBSTATE_PRESSED) != 0, STATE_SYSTEM_PRESSED) |
               when(!isSeparator(index), STATE_SYSTEM_FOCUSABLE) |
               when(m_bar->opensFlyout(index), STATE_SYSTEM_HASPOPUP) |
               when(m_bar->focused() == index, STATE_SYSTEM_FOCUSED | STATE_SYSTEM_HOTTRACKED);
    }

    /// On the screen.
    CRect placeOf(int index) const
    {
        CRect place(0, 0, 0, 0);
        if (index == kSelf) {
            ::GetWindowRect(window(), &place);
            return place;
        }
        ::SendMessageW(window(), TB_GETITEMRECT, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(static_cast<RECT*>(&place)));
        m_bar->bar()->ClientToScreen(&place);
        return place;
    }

    static HRESULT objectOf(HWND wnd, LONG id, IDispatch** object)
    {
        return ::AccessibleObjectFromWindow(wnd, static_cast<DWORD>(id), __uuidof(IDispatch),
                                            reinterpret_cast<void**>(object));
    }

    std::shared_ptr<AccessibleBar> m_bar;
    std::atomic<ULONG> m_references = 1;
};

} // namespace

LRESULT accessibleObject(WPARAM wParam, std::shared_ptr<AccessibleBar> bar)
{
    auto* const object = new BarObject(std::move(bar));
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release(); // the result keeps it
    return result;
}

UINT pressMessage()
{
    static const UINT message = ::RegisterWindowMessageW(L"OVO_TOOLBAR_PRESS");
    return message;
}

void announceButton(HWND bar, int index)
{
    ::NotifyWinEvent(EVENT_OBJECT_FOCUS, bar, OBJID_CLIENT, index + 1);
}

} // namespace ovoui::toolbar
