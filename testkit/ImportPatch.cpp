#include "ImportPatch.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace ovo::testkit
{

namespace
{

void** findSlot(HMODULE module, const char* function)
{
    if (!module)
        return nullptr;
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (!directory.VirtualAddress)
        return nullptr;
    auto* import = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; import->Name; ++import) {
        const auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + import->OriginalFirstThunk);
        auto* slots = reinterpret_cast<void**>(base + import->FirstThunk);
        for (int i = 0; names[i].u1.AddressOfData; ++i) {
            if (IMAGE_SNAP_BY_ORDINAL(names[i].u1.Ordinal))
                continue;
            const auto* name = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names[i].u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(name->Name), function) == 0)
                return &slots[i];
        }
    }
    return nullptr;
}

} // namespace

ImportPatch::ImportPatch(const wchar_t* module, const char* function, void* replacement)
    : m_slot(findSlot(::GetModuleHandleW(module), function))
{
    if (!m_slot) {
        std::fprintf(stderr, "no import of %s to patch in %ls\n", function,
                     module ? module : L"this program");
        std::abort();
    }
    m_original = *m_slot;
    write(replacement);
}

ImportPatch::~ImportPatch()
{
    write(m_original);
}

void ImportPatch::write(void* function)
{
    DWORD before = 0;
    ::VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &before);
    *m_slot = function;
    ::VirtualProtect(m_slot, sizeof *m_slot, before, &before);
}

} // namespace ovo::testkit
