/// Not exported. The version record of a file.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ovoui::sysinfo
{

class VersionRecord
{
public:
    /// Reads the record of a file; empty when the file has none, or it cannot be read.
    explicit VersionRecord(const wchar_t* path);

    bool empty() const { return m_record.empty(); }

    /// Null when the record lacks it or holds something else in its place.
    const VS_FIXEDFILEINFO* fixedInfo() const;

    /// The descriptions in all languages that have one, with tabs between them.
    std::wstring descriptions() const;

private:
    struct Translation
    {
        WORD language;
        WORD codePage;
    };
    std::vector<Translation> translations() const;
    std::wstring description(const Translation& translation) const;

    std::vector<BYTE> m_record;
};

} // namespace ovoui::sysinfo
