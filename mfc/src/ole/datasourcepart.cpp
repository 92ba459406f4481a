// COleDataSource: what the system and drop targets see of it.
#include <afxole.h>

#include "formatenumerator.h"
#include "guarded.h"
#include "medium.h"

#pragma GCC diagnostic ignored "-Winvalid-offsetof" // the parts of a class are found by their offset

using afxdetail::guarded;

BEGIN_INTERFACE_MAP(COleDataSource, CCmdTarget)
INTERFACE_PART(COleDataSource, IID_IDataObject, DataObject)
END_INTERFACE_MAP()

STDMETHODIMP_(ULONG) COleDataSource::XDataObject::AddRef()
{
    METHOD_PROLOGUE_EX_(COleDataSource, DataObject)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) COleDataSource::XDataObject::Release()
{
    METHOD_PROLOGUE_EX_(COleDataSource, DataObject)
    return pThis->ExternalRelease();
}

STDMETHODIMP COleDataSource::XDataObject::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(COleDataSource, DataObject)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP COleDataSource::XDataObject::GetData(LPFORMATETC formatEtc, LPSTGMEDIUM medium)
{
    METHOD_PROLOGUE(COleDataSource, DataObject)
    HRESULT status = S_OK;
    const Entry* entry = pThis->find(*formatEtc, DATADIR_GET, &status);
    if (!entry)
        return status;
    *medium = STGMEDIUM{};
    if (entry->medium.tymed != TYMED_NULL)
        return afxdetail::duplicateMedium(entry->format.cfFormat, entry->medium, *medium) ? S_OK
                                                                                          : E_OUTOFMEMORY;
    FORMATETC wanted = *formatEtc;
    wanted.tymed &= entry->format.tymed;
    return guarded([&] { return pThis->OnRenderData(&wanted, medium) ? S_OK : DV_E_FORMATETC; });
}

STDMETHODIMP COleDataSource::XDataObject::GetDataHere(LPFORMATETC formatEtc, LPSTGMEDIUM medium)
{
    METHOD_PROLOGUE(COleDataSource, DataObject)
    FORMATETC wanted = *formatEtc;
    wanted.tymed = medium->tymed; // the caller's medium decides
    HRESULT status = S_OK;
    const Entry* entry = pThis->find(wanted, DATADIR_GET, &status);
    if (!entry)
        return status;
    if (entry->medium.tymed != TYMED_NULL)
        return afxdetail::copyInto(entry->medium, *medium);
    return guarded([&] { return pThis->OnRenderData(&wanted, medium) ? S_OK : DV_E_FORMATETC; });
}

STDMETHODIMP COleDataSource::XDataObject::QueryGetData(LPFORMATETC formatEtc)
{
    METHOD_PROLOGUE(COleDataSource, DataObject)
    HRESULT status = S_OK;
    pThis->find(*formatEtc, DATADIR_GET, &status);
    return status;
}

STDMETHODIMP COleDataSource::XDataObject::GetCanonicalFormatEtc(LPFORMATETC in, LPFORMATETC out)
{
    if (!out)
        return E_INVALIDARG;
    *out = *in;
    out->ptd = nullptr; // no data here depends on the device
    return in->ptd ? S_OK : DATA_S_SAMEFORMATETC;
}

STDMETHODIMP COleDataSource::XDataObject::SetData(LPFORMATETC formatEtc, LPSTGMEDIUM medium, BOOL release)
{
    METHOD_PROLOGUE(COleDataSource, DataObject)
    HRESULT status = S_OK;
    if (!pThis->find(*formatEtc, DATADIR_SET, &status))
        return status;
    return guarded([&] { return pThis->OnSetData(formatEtc, medium, release) ? S_OK : E_FAIL; });
}

STDMETHODIMP COleDataSource::XDataObject::EnumFormatEtc(DWORD direction, LPENUMFORMATETC* enumerator)
{
    METHOD_PROLOGUE(COleDataSource, DataObject)
    *enumerator = nullptr;
    return guarded([&] {
        std::vector<FORMATETC> formats;
        for (const Entry& entry : pThis->m_entries)
            if (static_cast<DWORD>(entry.direction) == direction)
                formats.push_back(entry.format);
        *enumerator = afxdetail::enumerateFormats(formats);
        return S_OK;
    });
}

STDMETHODIMP COleDataSource::XDataObject::DAdvise(LPFORMATETC, DWORD, LPADVISESINK, LPDWORD connection)
{
    *connection = 0;
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP COleDataSource::XDataObject::DUnadvise(DWORD)
{
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP COleDataSource::XDataObject::EnumDAdvise(LPENUMSTATDATA* enumerator)
{
    *enumerator = nullptr;
    return OLE_E_ADVISENOTSUPPORTED;
}
