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

    /// The folder, without a backslash at its end.
    std::wstring folder() const { return m_folder.wstring(); }
    /// The path of `name` in it.
    std::wstring path(const std::wstring& name) const { return (m_folder / name).wstring(); }

    /// Makes another file, `name`, with the folders in front. The test fails when it cannot be made.
    void addFile(const std::wstring& name) const;
    /// Makes a folder, `name`. Throws std::filesystem::filesystem_error when it cannot be made.
    void addFolder(const std::wstring& name) const;

private:
    std::filesystem::path m_folder;
};

} // namespace ovo::testkit
