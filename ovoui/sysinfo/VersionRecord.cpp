#include <ovoui/sysinfo/VersionRecord.h>

#include <ovoui/sysinfo/core/WordList.h>

#include <ovocor/Text.h>

#include <cstring>

namespace ovoui::sysinfo
{
namespace
{

/// The system's own version of the record may need more room than the file's.
constexpr DWORD kRoom = 2;

} // namespace

VersionRecord::VersionRecord(const wchar_t* path)
{
    DWORD ignored = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(path, &ignored);
    if (size == 0)
        return;
    m_record.resize(std::size_t{size} * kRoom);
    if (!::GetFileVersionInfoW(path, 0, static_cast<DWORD>(m_record.size()), m_record.data()))
        m_record.clear();
}

const VS_FIXEDFILEINFO* VersionRecord::fixedInfo() const
{
    void* block = nullptr;
    UINT length = 0;
    if (empty() || !::VerQueryValueW(m_record.data(), L"\\", &block, &length) ||
        length < sizeof(VS_FIXEDFILEINFO))
        return nullptr;
    const auto* const info = static_cast<const VS_FIXEDFILEINFO*>(block);
    return info->dwSignature == VS_FFI_SIGNATURE ? info : nullptr;
}

std::vector<VersionRecord::Translation> VersionRecord::translations() const
{
    void* block = nullptr;
    UINT length = 0;
    if (empty() || !::VerQueryValueW(m_record.data(), L"\\VarFileInfo\\Translation", &block, &length))
        return {};
    std::vector<Translation> pairs(length / sizeof(Translation)); // a part of a pair at the end is left out
    if (!pairs.empty())
        std::memcpy(pairs.data(), block, pairs.size() * sizeof(Translation));
    return pairs;
}

std::wstring VersionRecord::description(const Translation& translation) const
{
    const std::wstring path = stringPrintf(L"\\StringFileInfo\\%04x%04x\\FileDescription",
                                           translation.language, translation.codePage);
    void* text = nullptr;
    UINT length = 0; // with the terminating zero
    if (!::VerQueryValueW(m_record.data(), path.c_str(), &text, &length) || length == 0)
        return {};
    return {static_cast<const wchar_t*>(text), ::wcsnlen(static_cast<const wchar_t*>(text), length)};
}

std::wstring VersionRecord::descriptions() const
{
    WordList all(L"\t");
    for (const Translation& translation : translations())
        all.add(description(translation));
    return all.take();
}

} // namespace ovoui::sysinfo
