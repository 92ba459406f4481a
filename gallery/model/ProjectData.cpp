#include "ProjectData.h"

#include <ovoui/tree/PlainText.h>

#include <cstring>

namespace
{

CLIPFORMAT itemFormat()
{
    static const auto format = static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(L"ovoui gallery items"));
    return format;
}

/// What the last offer held. Its number is what travels.
struct Offer
{
    DWORD process = ::GetCurrentProcessId();
    DWORD number = 0;
    ProjectData::Items items;
};

Offer& lastOffer()
{
    static Offer offer;
    return offer;
}

struct Ticket
{
    DWORD process;
    DWORD number;
};

} // namespace

void ProjectData::offer(COleDataSource& source, const Items& items)
{
    Offer& offer = lastOffer();
    ++offer.number;
    offer.items = items;
    const Ticket ticket{offer.process, offer.number};
    if (const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_SHARE, sizeof ticket)) {
        std::memcpy(::GlobalLock(memory), &ticket, sizeof ticket);
        ::GlobalUnlock(memory);
        source.CacheGlobalData(itemFormat(), memory);
    }
    std::wstring names;
    for (const ProjectItem::Pointer& item : items)
        names += (names.empty() ? L"" : L"\r\n") + item->name;
    cachePlaintext(source, names);
}

const ProjectData::Items* ProjectData::itemsIn(COleDataObject& data)
{
    const HGLOBAL memory = data.IsDataAvailable(itemFormat()) ? data.GetGlobalData(itemFormat()) : nullptr;
    if (!memory)
        return nullptr;
    Ticket ticket{};
    if (const void* stored = ::GlobalLock(memory)) {
        std::memcpy(&ticket, stored, sizeof ticket);
        ::GlobalUnlock(memory);
    }
    ::GlobalFree(memory);
    const Offer& offer = lastOffer();
    return ticket.process == offer.process && ticket.number == offer.number ? &offer.items : nullptr;
}

std::optional<std::wstring> ProjectData::textIn(COleDataObject& data)
{
    const HGLOBAL memory =
        data.IsDataAvailable(CF_UNICODETEXT) ? data.GetGlobalData(CF_UNICODETEXT) : nullptr;
    if (!memory)
        return std::nullopt;
    std::wstring text;
    if (const auto* stored = static_cast<const wchar_t*>(::GlobalLock(memory))) {
        text = stored;
        ::GlobalUnlock(memory);
    }
    ::GlobalFree(memory);
    return text;
}

bool ProjectData::isUsable(COleDataObject& data)
{
    return itemsIn(data) || data.IsDataAvailable(CF_UNICODETEXT);
}
