#include <ovoui/frame/GlobalMemory.h>

#include <cstring>

namespace ovoui::frame
{

GlobalMemory globalCopy(const void* bytes, std::size_t size)
{
    GlobalMemory memory(::GlobalAlloc(GMEM_MOVEABLE | GMEM_SHARE, size));
    void* const place = memory ? ::GlobalLock(memory.get()) : nullptr;
    if (!place)
        return nullptr;
    std::memcpy(place, bytes, size);
    ::GlobalUnlock(memory.get());
    return memory;
}

} // namespace ovoui::frame
