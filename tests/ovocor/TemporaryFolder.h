/// A folder of its own for a test, removed with its files afterwards.
#pragma once

#include <string>
#include <string_view>

class TemporaryFolder
{
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::wstring& path() const { return m_path; }

    /// Writes a file of these bytes and gives its full name.
    std::wstring write(const std::wstring& name, std::string_view bytes) const;

private:
    std::wstring m_path;
};
