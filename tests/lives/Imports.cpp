#include "Imports.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

extern "C" {
void failFirstCall();
volatile long g_faultCountdown = 0;
void* g_faultOriginal = nullptr;
std::uintptr_t g_faultValue = 0;
void* g_faultSetLastError = nullptr;
}

// Goes on to the function with all registers and the stack as they came, or answers in its place.
asm(R"(
    .text
    .globl failFirstCall
failFirstCall:
    lock decl g_faultCountdown(%rip)
    je 1f
    jmp *g_faultOriginal(%rip)
1:  subq $40, %rsp
    movl $8, %ecx
    call *g_faultSetLastError(%rip)
    addq $40, %rsp
    movq g_faultValue(%rip), %rax
    ret
)");

std::vector<Import> importsOf(HMODULE module)
{
    auto* const base = reinterpret_cast<std::uint8_t*>(module);
    const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& where = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::vector<Import> found;
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + where.VirtualAddress);
         library->Name; ++library) {
        std::string name = reinterpret_cast<const char*>(base + library->Name);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* slot = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; entry->u1.AddressOfData; ++entry, ++slot)
            if (!IMAGE_SNAP_BY_ORDINAL(entry->u1.Ordinal))
                found.push_back(
                    {name, reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + entry->u1.AddressOfData)->Name,
                     slot});
    }
    return found;
}

void writeSlot(void** slot, void* function)
{
    DWORD before = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
    *slot = function;
    ::VirtualProtect(slot, sizeof *slot, before, &before);
}

FirstCallFails::FirstCallFails(const Import& import, std::uintptr_t value)
    : m_slot(import.slot)
    , m_original(*import.slot)
{
    g_faultCountdown = 1;
    g_faultOriginal = m_original;
    g_faultValue = value;
    g_faultSetLastError = reinterpret_cast<void*>(&::SetLastError);
    writeSlot(m_slot, reinterpret_cast<void*>(&failFirstCall));
}

FirstCallFails::~FirstCallFails()
{
    writeSlot(m_slot, m_original);
}

bool FirstCallFails::happened() const
{
    return g_faultCountdown < 1;
}
