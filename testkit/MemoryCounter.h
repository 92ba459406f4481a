#pragma once

#include "Growth.h"

#include <cstddef>

namespace ovo::testkit
{

/// Counts the memory that is allocated on the heaps of the process, in bytes, the heap's own share of each
/// block included. A little comes and goes with every call of the system, so a test lets many rounds pass and
/// compares with what one round would lose.
///
///     const MemoryCounter memory;
///     for (int i = 0; i < 1000; ++i)
///         openAndClose();
///     EXPECT_LT(memory.grown(), 1000 * 16);
class MemoryCounter : public Growth<MemoryCounter, long long>
{
public:
    /// How much there is now.
    static std::size_t live();
};

} // namespace ovo::testkit
