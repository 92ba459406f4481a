#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>

namespace ovo::testkit
{

/// A folder of its own for a test, removed with all that is in it afterwards.
class TemporaryFiles
{
public:
    /// With empty files of these names; a name may have folders in front, which are made.
    TemporaryFiles(std::initializer_list<std::wstring> names = {});
    ~TemporaryFiles();
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;

    std::wstring folder() const { return m_folder.wstring(); }
    std::wstring path(const std::wstring& name) const { return (m_folder / name).wstring(); }

    void addFile(const std::wstring& name) const;
    void addFolder(const std::wstring& name) const;

private:
    std::filesystem::path m_folder;
};

} // namespace ovo::testkit
