// The memory of a node beside that of a bare item.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

#include <cstdio>

namespace
{

/// What is allocated on the process's heaps, in bytes.
std::size_t allocated()
{
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        ::HeapLock(heaps[i]);
        while (::HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData + entry.cbOverhead;
        ::HeapUnlock(heaps[i]);
    }
    return bytes;
}

} // namespace

TEST_CASE("memory of 100000 items")
{
    constexpr int kCount = 100000;
    const std::vector<std::wstring> names = labels(kCount);
    BenchParent parent;
    const std::size_t before = allocated();
    BareTree bare(parent);
    bare.fill(names);
    const std::size_t between = allocated();
    BenchTree tree(parent);
    tree.fill(names);
    const std::size_t after = allocated();
    std::printf("\nMEMORY an item: bare %zu bytes, with its node %zu bytes\n", (between - before) / kCount,
                (after - between) / kCount);
    CHECK(after > between);
}
