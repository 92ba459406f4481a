#include <afxole.h>

#include <detail/pending.h>

using afxdetail::callOut;

namespace
{

constexpr DWORD kAnyMedium =
    TYMED_HGLOBAL | TYMED_FILE | TYMED_ISTREAM | TYMED_ISTORAGE | TYMED_GDI | TYMED_MFPICT | TYMED_ENHMF;

/// What to ask for: the caller's description or the usual one, with the format put in.
FORMATETC request(CLIPFORMAT format, LPFORMATETC formatEtc, DWORD medium)
{
    FORMATETC wanted{format, nullptr, DVASPECT_CONTENT, -1, medium};
    if (formatEtc) {
        wanted = *formatEtc;
        if (format)
            wanted.cfFormat = format;
    }
    return wanted;
}

} // namespace

COleDataObject::COleDataObject() = default;

COleDataObject::~COleDataObject()
{
    Release();
}

void COleDataObject::Attach(LPDATAOBJECT dataObject, BOOL autoRelease)
{
    ASSERT(dataObject);
    Release();
    m_lpDataObject = dataObject;
    m_bAutoRelease = autoRelease;
}

LPDATAOBJECT COleDataObject::Detach()
{
    endEnumeration();
    return std::exchange(m_lpDataObject, nullptr);
}

void COleDataObject::Release()
{
    LPDATAOBJECT const dataObject = Detach();
    if (dataObject && m_bAutoRelease)
        dataObject->Release();
}

BOOL COleDataObject::AttachClipboard()
{
    LPDATAOBJECT dataObject = nullptr;
    if (FAILED(::OleGetClipboard(&dataObject)) || !dataObject)
        return FALSE;
    Attach(dataObject);
    return TRUE;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT format, LPFORMATETC formatEtc)
{
    ASSERT(m_lpDataObject);
    FORMATETC wanted = request(format, formatEtc, kAnyMedium);
    return callOut([&] { return m_lpDataObject->QueryGetData(&wanted) == S_OK; });
}

BOOL COleDataObject::GetData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc)
{
    ASSERT(m_lpDataObject);
    FORMATETC wanted = request(format, formatEtc, kAnyMedium);
    return callOut([&] { return SUCCEEDED(m_lpDataObject->GetData(&wanted, medium)); });
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT format, LPFORMATETC formatEtc)
{
    FORMATETC wanted = request(format, formatEtc, TYMED_HGLOBAL);
    if (!formatEtc && wanted.cfFormat == CF_METAFILEPICT)
        wanted.tymed = TYMED_MFPICT; // a handle to global memory as well
    STGMEDIUM medium{};
    if (!GetData(0, &medium, &wanted))
        return nullptr;
    const bool inMemory = medium.tymed == TYMED_HGLOBAL || medium.tymed == TYMED_MFPICT;
    if (inMemory && !medium.pUnkForRelease)
        return medium.hGlobal;
    // The memory belongs to the source: the caller gets a copy.
    const HGLOBAL copy =
        inMemory ? ::OleDuplicateData(medium.hGlobal, wanted.cfFormat, GMEM_MOVEABLE) : nullptr;
    ::ReleaseStgMedium(&medium);
    return copy;
}

void COleDataObject::BeginEnumFormats()
{
    ASSERT(m_lpDataObject);
    endEnumeration();
    const HRESULT status =
        callOut([this] { return m_lpDataObject->EnumFormatEtc(DATADIR_GET, &m_lpEnumerator); });
    if (FAILED(status))
        m_lpEnumerator = nullptr;
}

BOOL COleDataObject::GetNextFormat(LPFORMATETC formatEtc)
{
    if (!m_lpEnumerator)
        return FALSE;
    if (m_lpEnumerator->Next(1, formatEtc, nullptr) == S_OK)
        return TRUE;
    endEnumeration();
    return FALSE;
}

void COleDataObject::endEnumeration()
{
    if (m_lpEnumerator)
        std::exchange(m_lpEnumerator, nullptr)->Release();
}
