// Internal to OLE: what every object has that lives as long as it is referred to.
#pragma once

#include <objbase.h>

namespace afxdetail
{

/// An object with the interface `Interface`, whose identifier is `kId`, and no other. It begins with one
/// reference and is deleted with the last.
template <class Interface, const IID& kId>
class ComObject : public Interface
{
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) final
    {
        const bool known = iid == IID_IUnknown || iid == kId;
        *object = known ? this : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() final { return static_cast<ULONG>(::InterlockedIncrement(&m_references)); }

    STDMETHODIMP_(ULONG) Release() final
    {
        const LONG left = ::InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return static_cast<ULONG>(left);
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;

private:
    LONG m_references = 1;
};

} // namespace afxdetail
