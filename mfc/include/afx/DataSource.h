// COleDataSource: data that this program offers, by drag and drop or on the clipboard.
#pragma once

#include <afx/CmdTarget.h>
#include <afx/DropEffect.h>
#include <ole2.h>

#include <vector>

class COleDropSource;

/// Keeps data in any number of formats, or the promise to make it when it is asked for.
///
/// Where a FORMATETC may be given, NULL stands for the content aspect and all of it; a clipboard format other
/// than 0 replaces the structure's own. Offering a format again replaces it.
///
/// An object for the clipboard lies on the heap and belongs to the clipboard from SetClipboard on: it goes
/// when other data takes its place. For DoDragDrop it may lie anywhere; one on the heap is let go by
/// InternalRelease.
class OVOMFC_API COleDataSource : public CCmdTarget
{
public:
    COleDataSource();
    ~COleDataSource() override;

    /// Forgets all formats and frees their data.
    void Empty();

    /// Offers data that exists. The medium and formatEtc->ptd belong to the source afterwards.
    void CacheData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc = nullptr);
    void CacheGlobalData(CLIPFORMAT format, HGLOBAL memory, LPFORMATETC formatEtc = nullptr);

    /// Offers data that OnRenderData or OnRenderGlobalData makes. Without a FORMATETC in global memory.
    void DelayRenderData(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);
    /// Takes data of this format from others: OnSetData gets it.
    void DelaySetData(CLIPFORMAT format, LPFORMATETC formatEtc = nullptr);

    /// Lets the user drag. Waits first until the pointer leaves `startRect` (screen coordinates; NULL: the
    /// pixel under it) or the system's drag delay has passed. Gives DROPEFFECT_NONE when the button goes up
    /// before that, the user cancels or no target takes the data. What the overridables of source and target
    /// raise comes out of here.
    DROPEFFECT DoDragDrop(DWORD effects = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK,
                          LPCRECT startRect = nullptr, COleDropSource* dropSource = nullptr);

    /// Puts the data on the clipboard. Throws COleException on failure; the object is the caller's then.
    void SetClipboard();
    /// Makes all data on the clipboard that this program put there independent of the program.
    static void PASCAL FlushClipboard();
    /// The source whose data is on the clipboard; NULL when it is not this program's.
    static COleDataSource* PASCAL GetClipboardOwner();

    /// Makes the data of a delayed format. If medium->tymed is TYMED_NULL the medium is to be allocated as
    /// formatEtc says, else to be filled. The default asks OnRenderGlobalData for global memory.
    virtual BOOL OnRenderData(LPFORMATETC formatEtc, LPSTGMEDIUM medium);
    /// As OnRenderData: `*memory` is NULL, or a block to be filled that cannot grow. FALSE by default.
    virtual BOOL OnRenderGlobalData(LPFORMATETC formatEtc, HGLOBAL* memory);
    /// Takes data from others. With `release` and TRUE as result the medium is the source's. FALSE by
    /// default.
    virtual BOOL OnSetData(LPFORMATETC formatEtc, LPSTGMEDIUM medium, BOOL release);

    BEGIN_INTERFACE_PART(DataObject, IDataObject)
    STDMETHOD(GetData)(LPFORMATETC formatEtc, LPSTGMEDIUM medium) override;
    STDMETHOD(GetDataHere)(LPFORMATETC formatEtc, LPSTGMEDIUM medium) override;
    STDMETHOD(QueryGetData)(LPFORMATETC formatEtc) override;
    STDMETHOD(GetCanonicalFormatEtc)(LPFORMATETC in, LPFORMATETC out) override;
    STDMETHOD(SetData)(LPFORMATETC formatEtc, LPSTGMEDIUM medium, BOOL release) override;
    STDMETHOD(EnumFormatEtc)(DWORD direction, LPENUMFORMATETC* enumerator) override;
    STDMETHOD(DAdvise)(LPFORMATETC formatEtc, DWORD flags, LPADVISESINK sink, LPDWORD connection) override;
    STDMETHOD(DUnadvise)(DWORD connection) override;
    STDMETHOD(EnumDAdvise)(LPENUMSTATDATA* enumerator) override;
    END_INTERFACE_PART(DataObject)

    DECLARE_INTERFACE_MAP()

private:
    /// A format that is offered (DATADIR_GET) or taken (DATADIR_SET). A medium of TYMED_NULL is made on
    /// demand.
    struct Entry
    {
        FORMATETC format;
        STGMEDIUM medium;
        DATADIR direction;
    };

    Entry* find(const FORMATETC& wanted, DATADIR direction, HRESULT* status = nullptr);
    void keep(const FORMATETC& format, const STGMEDIUM& medium, DATADIR direction);
    static void release(Entry& entry);

    std::vector<Entry> m_entries;
};
