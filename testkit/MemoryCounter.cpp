#include "MemoryCounter.h"

#include <windows.h>

#include <array>

namespace ovo::testkit
{

namespace
{

constexpr DWORD kHeapsMost = 256;

std::size_t allocatedOn(HANDLE heap)
{
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry{};
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData + entry.cbOverhead;
    ::HeapUnlock(heap);
    return bytes;
}

} // namespace

std::size_t MemoryCounter::live()
{
    std::array<HANDLE, kHeapsMost> heaps{};
    const DWORD count = ::GetProcessHeaps(kHeapsMost, heaps.data());
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count && i < kHeapsMost; ++i)
        bytes += allocatedOn(heaps[i]);
    return bytes;
}

} // namespace ovo::testkit
