// Looking handlers up.
#include <afxwin.h>

namespace
{

constexpr UINT kRegistered = 0xC000;

const AFX_MSGMAP* baseOf(const AFX_MSGMAP* map)
{
    return map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
}

bool matches(const AFX_MSGMAP_ENTRY& entry, UINT message)
{
    return message >= kRegistered && entry.pRegistered ? *entry.pRegistered == message
                                                       : !entry.pRegistered && entry.nMessage == message;
}

const AFX_MSGMAP_ENTRY* search(const AFX_MSGMAP* map, UINT message)
{
    for (; map; map = baseOf(map))
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnThunk; ++entry)
            if (entry->nCode == 0 && matches(*entry, message) && entry->nLastID == 0)
                return entry;
    return nullptr;
}

/// What a class answers to a message hardly ever changes, so answers are kept: one slot for each hash value.
struct CachedAnswer
{
    const AFX_MSGMAP* map = nullptr;
    UINT message = 0;
    const AFX_MSGMAP_ENTRY* entry = nullptr;
};

constexpr std::size_t kSlots = 1024;
thread_local CachedAnswer t_answers[kSlots];

CachedAnswer& slotFor(const AFX_MSGMAP* map, UINT message)
{
    const auto mixed = (reinterpret_cast<std::size_t>(map) >> 4) ^ (std::size_t{message} * 31);
    return t_answers[mixed % kSlots];
}

} // namespace

namespace afxdetail
{

const AFX_MSGMAP_ENTRY* findWindowMessage(const AFX_MSGMAP* map, UINT message)
{
    // The number of a registered message may not be known yet when it is first looked up: never kept.
    if (message >= kRegistered)
        return search(map, message);
    CachedAnswer& slot = slotFor(map, message);
    if (slot.map != map || slot.message != message)
        slot = {map, message, search(map, message)};
    return slot.entry;
}

const AFX_MSGMAP_ENTRY* findCommand(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    for (; map; map = baseOf(map))
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnThunk; ++entry)
            if (entry->nMessage == message && LOWORD(entry->nCode) == LOWORD(code) && id >= entry->nID &&
                id <= entry->nLastID)
                return entry;
    return nullptr;
}

CWnd* wndOf(HWND handle)
{
    return CWnd::FromHandle(handle);
}

CDC* dcOf(HDC handle)
{
    return CDC::FromHandle(handle);
}

CMenu* menuOf(HMENU handle)
{
    return CMenu::FromHandle(handle);
}

void beginUpdate(CCmdUI* ui)
{
    ui->m_bContinueRouting = FALSE;
}

BOOL endUpdate(CCmdUI* ui)
{
    const BOOL handled = !ui->m_bContinueRouting;
    ui->m_bContinueRouting = FALSE;
    return handled;
}

NMHDR* headerOf(AFX_NOTIFY* notify)
{
    return notify->pNMHDR;
}

LRESULT* resultOf(AFX_NOTIFY* notify)
{
    return notify->pResult;
}

} // namespace afxdetail
