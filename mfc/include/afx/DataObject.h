// COleDataObject: data that a source offers, by drag and drop or on the clipboard.
#pragma once

#include <afx.h>
#include <ole2.h>

/// Asks an IDataObject for its data.
///
/// Where a FORMATETC may be given, NULL stands for the content aspect, all of it and any medium (global
/// memory for GetGlobalData), and a clipboard format other than 0 replaces the structure's own.
class OVOMFC_API COleDataObject
{
public:
    COleDataObject();
    COleDataObject(const COleDataObject&) = delete;
    COleDataObject& operator=(const COleDataObject&) = delete;
    ~COleDataObject();

    /// Takes the place of what was attached before. With `autoRelease` the reference is this object's from
    /// now on; without, it stays the caller's.
    void Attach(LPDATAOBJECT dataObject, BOOL autoRelease = TRUE);
    /// Gives the data object and, if it was owned, its reference away.
    LPDATAOBJECT Detach();
    /// Ends the attachment and releases the reference if it is owned.
    void Release();
    /// Attaches what is on the clipboard. FALSE when there is no access to it.
    BOOL AttachClipboard();

    BOOL IsDataAvailable(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);
    /// The caller frees the medium (ReleaseStgMedium). FALSE when the data is not to be had.
    BOOL GetData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc = nullptr);
    /// The caller frees the memory. NULL when the data is not to be had.
    HGLOBAL GetGlobalData(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);

    void BeginEnumFormats();
    /// FALSE at the end. The caller frees formatEtc->ptd (CoTaskMemFree) if it is not NULL.
    BOOL GetNextFormat(LPFORMATETC formatEtc);

    LPDATAOBJECT m_lpDataObject = nullptr;
    LPENUMFORMATETC m_lpEnumerator = nullptr;

private:
    void endEnumeration();

    BOOL m_bAutoRelease = FALSE;
};
