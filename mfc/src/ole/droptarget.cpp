#include <afxole.h>

#include "comobject.h"
#include "guarded.h"

#include <detail/handleof.h>

#pragma GCC diagnostic ignored "-Winvalid-offsetof" // the parts of a class are found by their offset

using afxdetail::guarded;

BEGIN_INTERFACE_MAP(COleDropTarget, CCmdTarget)
INTERFACE_PART(COleDropTarget, IID_IDropTarget, DropTarget)
END_INTERFACE_MAP()

namespace
{

/// What OnDropEx gives to have OnDrop asked.
constexpr DROPEFFECT kNotHandled = static_cast<DROPEFFECT>(-1);

/// OLE leaves the Alt key out.
DWORD withAlt(DWORD keyState)
{
    return ::GetKeyState(VK_MENU) < 0 ? keyState | MK_ALT : keyState;
}

/// What the system is given for a target. A drag may hold on to it while the target, or its registration,
/// goes: it is what remains then.
class RegisteredTarget final : public afxdetail::ComObject<IDropTarget, IID_IDropTarget>
{
public:
    RegisteredTarget(COleDropTarget& target, HWND wnd, std::weak_ptr<void> life)
        : m_target(target)
        , m_wnd(wnd)
        , m_life(std::move(life))
    {
    }

    STDMETHODIMP DragEnter(LPDATAOBJECT dataObject, DWORD keyState, POINTL point, LPDWORD effect) override
    {
        return isRegistered() ? m_target.m_xDropTarget.DragEnter(dataObject, keyState, point, effect)
                              : nothing(*effect);
    }
    STDMETHODIMP DragOver(DWORD keyState, POINTL point, LPDWORD effect) override
    {
        return isRegistered() ? m_target.m_xDropTarget.DragOver(keyState, point, effect) : nothing(*effect);
    }
    STDMETHODIMP DragLeave() override { return isRegistered() ? m_target.m_xDropTarget.DragLeave() : S_OK; }
    STDMETHODIMP Drop(LPDATAOBJECT dataObject, DWORD keyState, POINTL point, LPDWORD effect) override
    {
        return isRegistered() ? m_target.m_xDropTarget.Drop(dataObject, keyState, point, effect)
                              : nothing(*effect);
    }

private:
    bool isRegistered() const { return !m_life.expired() && m_target.m_hWnd == m_wnd; }

    static HRESULT nothing(DWORD& effect)
    {
        effect = DROPEFFECT_NONE;
        return S_OK;
    }

    COleDropTarget& m_target;
    const HWND m_wnd;
    const std::weak_ptr<void> m_life;
};

} // namespace

COleDropTarget::COleDropTarget() = default;

COleDropTarget::~COleDropTarget()
{
    COleDropTarget::Revoke();
}

BOOL COleDropTarget::Register(CWnd* window)
{
    const HWND wnd = afxdetail::handleOf(window);
    if (m_hWnd)
        return FALSE;
    auto* const registered = new RegisteredTarget(*this, wnd, m_life);
    const HRESULT status = ::RegisterDragDrop(wnd, registered);
    registered->Release(); // the system keeps it
    if (FAILED(status))
        return FALSE;
    m_hWnd = wnd;
    window->m_pDropTarget = this;
    return TRUE;
}

void COleDropTarget::Revoke()
{
    const HWND wnd = std::exchange(m_hWnd, nullptr);
    if (!wnd)
        return;
    ::RevokeDragDrop(wnd);
    if (CWnd* window = CWnd::FromHandlePermanent(wnd); window && window->m_pDropTarget == this)
        window->m_pDropTarget = nullptr;
    keepData(nullptr);
}

DROPEFFECT COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint)
{
    return DROPEFFECT_NONE;
}

DROPEFFECT COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint)
{
    return DROPEFFECT_NONE;
}

DROPEFFECT COleDropTarget::OnDragScroll(CWnd*, DWORD, CPoint)
{
    return DROPEFFECT_NONE;
}

void COleDropTarget::OnDragLeave(CWnd*) {}

DROPEFFECT COleDropTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint)
{
    return kNotHandled;
}

BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint)
{
    return FALSE;
}

CPoint COleDropTarget::clientPoint(POINTL screen) const
{
    POINT point{screen.x, screen.y};
    ::ScreenToClient(m_hWnd, &point);
    return point;
}

void COleDropTarget::keepData(LPDATAOBJECT dataObject)
{
    if (dataObject)
        dataObject->AddRef();
    if (LPDATAOBJECT former = std::exchange(m_lpDataObject, dataObject))
        former->Release();
}

DROPEFFECT COleDropTarget::answer(Question ask, DWORD keyState, POINTL screen, DROPEFFECT allowed)
{
    const std::weak_ptr<void> life = m_life;
    CWnd* const window = CWnd::FromHandle(m_hWnd);
    const CPoint point = clientPoint(screen);
    keyState = withAlt(keyState);
    COleDataObject data;
    m_lpDataObject->AddRef(); // the overridables may revoke the target
    data.Attach(m_lpDataObject);
    DROPEFFECT effect = OnDragScroll(window, keyState, point);
    if (!life.expired() && !(effect & DROPEFFECT_SCROLL))
        effect = (this->*ask)(window, &data, keyState, point);
    return effect & (allowed | DROPEFFECT_SCROLL);
}

DROPEFFECT COleDropTarget::drop(LPDATAOBJECT dataObject, DWORD keyState, POINTL screen, DROPEFFECT allowed)
{
    const std::weak_ptr<void> life = m_life;
    CWnd* const window = CWnd::FromHandle(m_hWnd);
    const CPoint point = clientPoint(screen);
    COleDataObject data;
    data.Attach(dataObject, FALSE);
    const DROPEFFECT usual =
        OnDragOver(window, &data, withAlt(keyState), point) & allowed & ~DROPEFFECT_SCROLL;
    if (life.expired())
        return DROPEFFECT_NONE;
    const DROPEFFECT effect = OnDropEx(window, &data, usual, allowed, point);
    if (effect != kNotHandled)
        return effect;
    if (life.expired())
        return DROPEFFECT_NONE;
    if (usual != DROPEFFECT_NONE)
        return OnDrop(window, &data, usual, point) ? usual : DROPEFFECT_NONE;
    OnDragLeave(window);
    return DROPEFFECT_NONE;
}

STDMETHODIMP_(ULONG) COleDropTarget::XDropTarget::AddRef()
{
    METHOD_PROLOGUE_EX_(COleDropTarget, DropTarget)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) COleDropTarget::XDropTarget::Release()
{
    METHOD_PROLOGUE_EX_(COleDropTarget, DropTarget)
    return pThis->ExternalRelease();
}

STDMETHODIMP COleDropTarget::XDropTarget::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(COleDropTarget, DropTarget)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP COleDropTarget::XDropTarget::DragEnter(LPDATAOBJECT dataObject, DWORD keyState, POINTL point,
                                                    LPDWORD effect)
{
    METHOD_PROLOGUE(COleDropTarget, DropTarget)
    const DROPEFFECT allowed = std::exchange(*effect, DROPEFFECT_NONE);
    pThis->keepData(dataObject);
    return guarded([&] {
        *effect = pThis->answer(&COleDropTarget::OnDragEnter, keyState, point, allowed);
        return S_OK;
    });
}

STDMETHODIMP COleDropTarget::XDropTarget::DragOver(DWORD keyState, POINTL point, LPDWORD effect)
{
    METHOD_PROLOGUE(COleDropTarget, DropTarget)
    const DROPEFFECT allowed = std::exchange(*effect, DROPEFFECT_NONE);
    if (!pThis->m_lpDataObject)
        return E_UNEXPECTED;
    return guarded([&] {
        *effect = pThis->answer(&COleDropTarget::OnDragOver, keyState, point, allowed);
        return S_OK;
    });
}

STDMETHODIMP COleDropTarget::XDropTarget::DragLeave()
{
    METHOD_PROLOGUE(COleDropTarget, DropTarget)
    const std::weak_ptr<void> life = pThis->m_life;
    const HRESULT status = guarded([&] {
        pThis->OnDragLeave(CWnd::FromHandle(pThis->m_hWnd));
        return S_OK;
    });
    if (!life.expired())
        pThis->keepData(nullptr);
    return status;
}

STDMETHODIMP COleDropTarget::XDropTarget::Drop(LPDATAOBJECT dataObject, DWORD keyState, POINTL point,
                                               LPDWORD effect)
{
    METHOD_PROLOGUE(COleDropTarget, DropTarget)
    const DROPEFFECT allowed = std::exchange(*effect, DROPEFFECT_NONE);
    const std::weak_ptr<void> life = pThis->m_life;
    const HRESULT status = guarded([&] {
        *effect = pThis->drop(dataObject, keyState, point, allowed);
        return S_OK;
    });
    if (!life.expired())
        pThis->keepData(nullptr);
    return status;
}
