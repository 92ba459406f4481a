#include "GdiCounter.h"
#include "GdiHandles.h"
#include "detail/UnderWine.h"

#include <winternl.h>

#include <cstdint>

namespace ovo::testkit
{

namespace
{

// The process's table of GDI handles as Wine lays it out; an entry in use has a type.
struct HandleEntry
{
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t userPointer;
};
static_assert(sizeof(HandleEntry) == 24);

constexpr std::uintptr_t kTableSize = 0x10000;
constexpr int kTableInPeb = 0xF8;

/// Calls `take` with the handle of each object that is alive. Objects that the system deletes in batches are
/// gone then.
template <class Take>
void eachLive(const Take& take)
{
    ::GdiFlush();
    const auto* peb = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* table = *reinterpret_cast<const HandleEntry* const*>(peb + kTableInPeb);
    for (std::uintptr_t i = 0; table && i < kTableSize; ++i)
        if (table[i].type)
            take(reinterpret_cast<HGDIOBJ>(i | std::uintptr_t{table[i].unique} << 16));
}

} // namespace

int GdiCounter::live()
{
    // Wine answers 0 to GetGuiResources.
    static const bool wine = runsUnderWine();
    if (!wine) {
        ::GdiFlush();
        return static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
    }
    int count = 0;
    eachLive([&count](HGDIOBJ) { ++count; });
    return count;
}

std::vector<HGDIOBJ> gdiHandles()
{
    std::vector<HGDIOBJ> all;
    if (runsUnderWine())
        eachLive([&all](HGDIOBJ object) { all.push_back(object); });
    return all;
}

} // namespace ovo::testkit
