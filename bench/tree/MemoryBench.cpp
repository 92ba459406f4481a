// The memory of a node beside that of a bare item.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

#include <psapi.h>

#include <cstdio>

namespace
{

std::size_t privateBytes()
{
    PROCESS_MEMORY_COUNTERS_EX counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                           sizeof counters);
    return counters.PrivateUsage;
}

} // namespace

TEST_CASE("memory of 100000 items")
{
    constexpr int kCount = 100000;
    const std::vector<std::wstring> names = labels(kCount);
    BenchParent parent;
    const std::size_t before = privateBytes();
    BareTree bare(parent);
    bare.fill(names);
    const std::size_t between = privateBytes();
    BenchTree tree(parent);
    tree.fill(names);
    const std::size_t after = privateBytes();
    std::printf("\nMEMORY an item: bare %zu bytes, with its node %zu bytes\n", (between - before) / kCount,
                (after - between) / kCount);
    CHECK(after > between);
}
