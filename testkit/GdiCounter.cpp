#include "GdiCounter.h"

#include <windows.h>
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

constexpr int kTableSize = 0x10000;
constexpr int kTableInPeb = 0xF8;

bool runsUnderWine()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

int countTable()
{
    const auto* peb = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* table = *reinterpret_cast<const HandleEntry* const*>(peb + kTableInPeb);
    int live = 0;
    for (int i = 0; table && i < kTableSize; ++i)
        live += table[i].type != 0;
    return live;
}

} // namespace

int GdiCounter::live()
{
    // Objects that the system deletes in batches are gone after this.
    ::GdiFlush();
    // Wine answers 0 to GetGuiResources.
    static const bool wine = runsUnderWine();
    return wine ? countTable() : static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}

} // namespace ovo::testkit
