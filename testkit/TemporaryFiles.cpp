#include "TemporaryFiles.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace ovo::testkit
{

TemporaryFiles::TemporaryFiles(std::initializer_list<std::wstring> names)
{
    static int s_count = 0;
    wchar_t temp[MAX_PATH]{};
    ::GetTempPathW(MAX_PATH, temp);
    m_folder = fs::path(temp) /
               (L"ovo" + std::to_wstring(::GetCurrentProcessId()) + L"f" + std::to_wstring(++s_count));
    fs::create_directories(m_folder);
    for (const std::wstring& name : names)
        addFile(name);
}

TemporaryFiles::~TemporaryFiles()
{
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

void TemporaryFiles::addFile(const std::wstring& name) const
{
    const fs::path path = m_folder / name;
    fs::create_directories(path.parent_path());
    if (!std::ofstream(path).put(' '))
        ADD_FAILURE() << path.string() << " cannot be made";
}

void TemporaryFiles::addFolder(const std::wstring& name) const
{
    fs::create_directories(m_folder / name);
}

} // namespace ovo::testkit
