#include <afxole.h>

#include "guarded.h"

#include <detail/handleof.h>
#include <detail/pending.h>

namespace
{

/// What the running thread has put there. Asked from another one, the system says that it is not there any
/// more.
thread_local COleDataSource* s_onClipboard = nullptr;

FORMATETC describe(CLIPFORMAT format, LPFORMATETC formatEtc, DWORD medium)
{
    FORMATETC described{format, nullptr, DVASPECT_CONTENT, -1, medium};
    if (formatEtc) {
        described = *formatEtc;
        if (format)
            described.cfFormat = format;
    }
    return described;
}

/// Keeps an object alive while others may release it.
class Reference
{
public:
    explicit Reference(CCmdTarget& object)
        : m_object(object)
    {
        m_object.InternalAddRef();
    }
    ~Reference() { m_object.InternalRelease(); }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

private:
    CCmdTarget& m_object;
};

/// The window that a drag is taken to start from.
CWnd* windowOfDrag()
{
    for (CWnd* window : {CWnd::GetCapture(), CWnd::GetFocus(), AfxGetMainWnd()})
        if (afxdetail::handleOf(window))
            return window;
    return nullptr;
}

} // namespace

COleDataSource::COleDataSource() = default;

COleDataSource::~COleDataSource()
{
    if (s_onClipboard == this)
        s_onClipboard = nullptr;
    Empty();
}

void COleDataSource::release(Entry& entry)
{
    ::CoTaskMemFree(entry.format.ptd);
    if (entry.medium.tymed != TYMED_NULL)
        ::ReleaseStgMedium(&entry.medium);
}

void COleDataSource::Empty()
{
    for (Entry& entry : m_entries)
        release(entry);
    m_entries.clear();
}

/// The entry that fits. Otherwise null, and `status` says what there is none of.
COleDataSource::Entry* COleDataSource::find(const FORMATETC& wanted, DATADIR direction, HRESULT* status)
{
    HRESULT missing = DV_E_FORMATETC;
    for (Entry& entry : m_entries) {
        if (entry.direction != direction || entry.format.cfFormat != wanted.cfFormat)
            continue;
        if (!(entry.format.dwAspect & wanted.dwAspect))
            missing = DV_E_DVASPECT;
        else if (entry.format.lindex != wanted.lindex)
            missing = DV_E_LINDEX;
        else if (!(entry.format.tymed & wanted.tymed))
            missing = DV_E_TYMED;
        else
            return &entry;
    }
    if (status)
        *status = missing;
    return nullptr;
}

void COleDataSource::keep(const FORMATETC& format, const STGMEDIUM& medium, DATADIR direction)
{
    const Entry entry{format, medium, direction};
    if (Entry* former = find(format, direction)) {
        release(*former);
        *former = entry;
    } else {
        m_entries.push_back(entry);
    }
}

void COleDataSource::CacheData(CLIPFORMAT format, LPSTGMEDIUM medium, LPFORMATETC formatEtc)
{
    FORMATETC described = describe(format, formatEtc, medium->tymed);
    described.tymed = medium->tymed;
    keep(described, *medium, DATADIR_GET);
}

void COleDataSource::CacheGlobalData(CLIPFORMAT format, HGLOBAL memory, LPFORMATETC formatEtc)
{
    ASSERT(memory);
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memory;
    CacheData(format, &medium, formatEtc);
}

void COleDataSource::DelayRenderData(CLIPFORMAT format, LPFORMATETC formatEtc)
{
    keep(describe(format, formatEtc, TYMED_HGLOBAL), STGMEDIUM{}, DATADIR_GET);
}

void COleDataSource::DelaySetData(CLIPFORMAT format, LPFORMATETC formatEtc)
{
    keep(describe(format, formatEtc, TYMED_HGLOBAL), STGMEDIUM{}, DATADIR_SET);
}

BOOL COleDataSource::OnRenderData(LPFORMATETC formatEtc, LPSTGMEDIUM medium)
{
    if (!(formatEtc->tymed & TYMED_HGLOBAL) ||
        (medium->tymed != TYMED_NULL && medium->tymed != TYMED_HGLOBAL))
        return FALSE;
    HGLOBAL memory = medium->tymed == TYMED_HGLOBAL ? medium->hGlobal : nullptr;
    if (!OnRenderGlobalData(formatEtc, &memory))
        return FALSE;
    ASSERT(medium->tymed == TYMED_NULL || medium->hGlobal == memory); // memory to be filled stays where it is
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = memory;
    return TRUE;
}

BOOL COleDataSource::OnRenderGlobalData(LPFORMATETC, HGLOBAL*)
{
    return FALSE;
}

BOOL COleDataSource::OnSetData(LPFORMATETC, LPSTGMEDIUM, BOOL)
{
    return FALSE;
}

DROPEFFECT COleDataSource::DoDragDrop(DWORD effects, LPCRECT startRect, COleDropSource* dropSource)
{
    COleDropSource standard;
    COleDropSource& source = dropSource ? *dropSource : standard;
    DWORD effect = DROPEFFECT_NONE;
    HRESULT status = DRAGDROP_S_CANCEL;
    {
        const Reference alive(*this);
        source.prepare(startRect);
        if (source.OnBeginDrag(windowOfDrag())) {
            afxdetail::callOut([&] {
                source.m_dragStarted = true;
                status = ::DoDragDrop(&m_xDataObject, &source.m_xDropSource, effects, &effect);
                source.m_dragStarted = false;
            });
        }
    }
    return status == DRAGDROP_S_DROP ? effect : DROPEFFECT_NONE;
}

void COleDataSource::SetClipboard()
{
    const bool again = GetClipboardOwner() == this;
    const Reference alive(*this); // what was there before, perhaps this very object, is released first
    const HRESULT status = ::OleSetClipboard(&m_xDataObject);
    if (FAILED(status))
        AfxThrowOleException(status);
    s_onClipboard = this;
    if (!again)
        InternalRelease(); // the clipboard's reference is the one that counts from now on
}

void PASCAL COleDataSource::FlushClipboard()
{
    if (GetClipboardOwner())
        afxdetail::callOut([] { ::OleFlushClipboard(); });
}

COleDataSource* PASCAL COleDataSource::GetClipboardOwner()
{
    if (s_onClipboard && ::OleIsCurrentClipboard(&s_onClipboard->m_xDataObject) != S_OK)
        s_onClipboard = nullptr; // others have put something there
    return s_onClipboard;
}
