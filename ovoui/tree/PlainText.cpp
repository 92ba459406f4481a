#include <ovoui/tree/PlainText.h>

#include <ovocor/Text.h>

#include <afxole.h>

#include <cstring>

namespace
{

/// Shared memory with a copy of `size` bytes; null when there is none.
HGLOBAL sharedCopy(const void* bytes, std::size_t size)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_SHARE, size);
    void* place = memory ? ::GlobalLock(memory) : nullptr;
    if (!place) {
        ::GlobalFree(memory);
        return nullptr;
    }
    std::memcpy(place, bytes, size);
    ::GlobalUnlock(memory);
    return memory;
}

void offer(COleDataSource& source, CLIPFORMAT format, const void* bytes, std::size_t size)
{
    if (const HGLOBAL memory = sharedCopy(bytes, size))
        source.CacheGlobalData(format, memory);
}

} // namespace

void cachePlaintext(COleDataSource& source, const std::wstring& text)
{
    offer(source, CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    const std::string narrow = getMBS(text);
    offer(source, CF_TEXT, narrow.c_str(), narrow.size() + 1);
}
