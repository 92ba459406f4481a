// Looking handlers up.
#include <afxwin.h>

#include <algorithm>
#include <atomic>

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

/// What a class answers to a message never changes while its module is loaded, so answers are kept: one for each
/// hash value.
struct Answers
{
    struct Answer
    {
        const AFX_MSGMAP* map = nullptr;
        UINT message = 0;
        const AFX_MSGMAP_ENTRY* entry = nullptr;
    };

    static constexpr std::size_t kSlots = 1024;

    Answer& slotFor(const AFX_MSGMAP* map, UINT message)
    {
        const auto mixed = (reinterpret_cast<std::size_t>(map) >> 4) ^ (std::size_t{message} * 31);
        return slots[mixed % kSlots];
    }

    unsigned generation = 0;
    Answer slots[kSlots];
};

thread_local Answers t_answers;
std::atomic<unsigned> g_generation = 0;

} // namespace

namespace afxdetail
{

void forgetHandlers()
{
    ++g_generation;
}

const AFX_MSGMAP_ENTRY* findWindowMessage(const AFX_MSGMAP* map, UINT message)
{
    // The number of a registered message may not be known yet when it is first looked up: never kept.
    if (message >= kRegistered)
        return search(map, message);
    Answers& answers = t_answers;
    if (const unsigned current = g_generation.load(std::memory_order_relaxed); answers.generation != current) {
        std::fill(std::begin(answers.slots), std::end(answers.slots), Answers::Answer{});
        answers.generation = current;
    }
    Answers::Answer& answer = answers.slotFor(map, message);
    if (answer.map != map || answer.message != message)
        answer = {map, message, search(map, message)};
    return answer.entry;
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
