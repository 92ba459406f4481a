#include "support/HeapCounter.h"

#include <windows.h>

#include <vector>

namespace
{

int blocksOf(HANDLE heap)
{
    int blocks = 0;
    ::HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (::HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            ++blocks;
    ::HeapUnlock(heap);
    return blocks;
}

} // namespace

int HeapCounter::live()
{
    std::vector<HANDLE> heaps(64); // made first: it is on a heap itself
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    int blocks = 0;
    for (DWORD i = 0; i < count && i < heaps.size(); ++i)
        blocks += blocksOf(heaps[i]);
    return blocks;
}
