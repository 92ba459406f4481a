#include "ResourceGap.h"

#include <cstdint>
#include <cstring>

namespace
{

IMAGE_RESOURCE_DIRECTORY_ENTRY* entriesOf(IMAGE_RESOURCE_DIRECTORY* directory)
{
    return reinterpret_cast<IMAGE_RESOURCE_DIRECTORY_ENTRY*>(directory + 1);
}

int countOf(const IMAGE_RESOURCE_DIRECTORY& directory)
{
    return directory.NumberOfNamedEntries + directory.NumberOfIdEntries;
}

std::string kindOf(WORD type)
{
    switch (type) {
    case 1:
        return "cursor";
    case 2:
        return "bitmap";
    case 4:
        return "menu";
    case 5:
        return "dialog";
    case 6:
        return "string table";
    case 9:
        return "accelerators";
    case 12:
        return "cursor group";
    default:
        return "type " + std::to_string(type);
    }
}

} // namespace

std::vector<ResourcePlace> resourcesOf(HMODULE module)
{
    constexpr WORD kVersion = 16;
    auto* const base = reinterpret_cast<std::uint8_t*>(module);
    const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    auto* const root =
        base + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_RESOURCE].VirtualAddress;
    auto* const types = reinterpret_cast<IMAGE_RESOURCE_DIRECTORY*>(root);
    std::vector<ResourcePlace> found;
    for (int i = 0; i < countOf(*types); ++i) {
        const IMAGE_RESOURCE_DIRECTORY_ENTRY& type = entriesOf(types)[i];
        if (type.NameIsString || type.Id == kVersion)
            continue;
        auto* const names = reinterpret_cast<IMAGE_RESOURCE_DIRECTORY*>(root + type.OffsetToDirectory);
        for (int k = 0; k < countOf(*names); ++k)
            if (!entriesOf(names)[k].NameIsString)
                found.push_back({kindOf(type.Id) + " " + std::to_string(entriesOf(names)[k].Id), names, k});
    }
    return found;
}

ResourceGap::ResourceGap(const ResourcePlace& place)
    : m_directory(place.directory)
{
    const std::size_t size = sizeof *m_directory +
                             static_cast<std::size_t>(countOf(*m_directory)) * sizeof *entriesOf(m_directory);
    const auto* const bytes = reinterpret_cast<const char*>(m_directory);
    m_before.assign(bytes, bytes + size);
    // The entries behind it move up: the system searches them by halves, in their order.
    std::vector<char> without = m_before;
    const auto at = static_cast<std::ptrdiff_t>(sizeof *m_directory) +
                    place.index * static_cast<std::ptrdiff_t>(sizeof *entriesOf(m_directory));
    without.erase(without.begin() + at, without.begin() + at + sizeof *entriesOf(m_directory));
    --reinterpret_cast<IMAGE_RESOURCE_DIRECTORY*>(without.data())->NumberOfIdEntries;
    write(without);
}

ResourceGap::~ResourceGap()
{
    write(m_before);
}

void ResourceGap::write(const std::vector<char>& bytes)
{
    DWORD before = 0;
    ::VirtualProtect(m_directory, m_before.size(), PAGE_READWRITE, &before);
    std::memcpy(m_directory, bytes.data(), bytes.size());
    ::VirtualProtect(m_directory, m_before.size(), before, &before);
}
