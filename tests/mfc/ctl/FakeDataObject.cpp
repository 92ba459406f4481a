#include "FakeDataObject.h"

#include <cstring>

FakeDataObject::FakeDataObject(std::wstring text)
    : m_text(std::move(text))
{
}

STDMETHODIMP FakeDataObject::QueryInterface(REFIID iid, void** object)
{
    const bool known = iid == IID_IUnknown || iid == IID_IDataObject;
    *object = known ? this : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) FakeDataObject::AddRef()
{
    return static_cast<ULONG>(++references);
}

STDMETHODIMP_(ULONG) FakeDataObject::Release()
{
    return static_cast<ULONG>(--references);
}

STDMETHODIMP FakeDataObject::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    const HRESULT status = QueryGetData(format);
    if (status != S_OK)
        return status;
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = memoryWith(m_text);
    medium->pUnkForRelease = keepsMemory ? &m_owner : nullptr;
    return S_OK;
}

STDMETHODIMP FakeDataObject::GetDataHere(FORMATETC*, STGMEDIUM*)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeDataObject::QueryGetData(FORMATETC* format)
{
    if (format->cfFormat != CF_UNICODETEXT)
        return DV_E_FORMATETC;
    return format->tymed & TYMED_HGLOBAL ? S_OK : DV_E_TYMED;
}

STDMETHODIMP FakeDataObject::GetCanonicalFormatEtc(FORMATETC*, FORMATETC*)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeDataObject::SetData(FORMATETC*, STGMEDIUM*, BOOL)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeDataObject::EnumFormatEtc(DWORD, IEnumFORMATETC** enumerator)
{
    *enumerator = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP FakeDataObject::DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*)
{
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP FakeDataObject::DUnadvise(DWORD)
{
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP FakeDataObject::EnumDAdvise(IEnumSTATDATA**)
{
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP FakeDataObject::Owner::QueryInterface(REFIID, void** object)
{
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) FakeDataObject::Owner::AddRef()
{
    return 1;
}

STDMETHODIMP_(ULONG) FakeDataObject::Owner::Release()
{
    ++m_object.freed;
    return 0;
}

HGLOBAL memoryWith(const std::wstring& text)
{
    const SIZE_T size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(::GlobalLock(memory), text.c_str(), size);
    ::GlobalUnlock(memory);
    return memory;
}

std::wstring textIn(HGLOBAL memory)
{
    if (!memory)
        return L"(nothing)";
    std::wstring text = static_cast<const wchar_t*>(::GlobalLock(memory));
    ::GlobalUnlock(memory);
    return text;
}

std::wstring takeText(HGLOBAL memory)
{
    std::wstring text = textIn(memory);
    ::GlobalFree(memory);
    return text;
}
